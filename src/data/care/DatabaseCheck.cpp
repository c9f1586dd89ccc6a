#include "DatabaseCheck.h"

#include "Counters.h"
#include "Database.h"
#include "Dialect.h"
#include "Integrity.h"
#include "OpeningNotes.h"
#include "References.h"
#include "Schema.h"
#include "SqliteEngine.h"

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

/// The codes without their row, and how many rows bear each, the most frequent
/// ones first.
QString danglingSql(const Reference &reference)
{
    QStringList codes;
    QStringList joins;
    for (qsizetype i = 0; i < reference.fields.size(); ++i) {
        const QString code = u"a."_s + quotedName(reference.fields[i]);
        codes.append(code);
        joins.append(u"b.%1 = %2"_s.arg(quotedName(reference.keys[i]), code));
    }
    const QString list = codes.join(u", "_s);
    return u"SELECT count(*), %1 FROM %2 a WHERE %3 AND NOT EXISTS (SELECT 1 FROM %4 b WHERE %5) "
           "GROUP BY %1 ORDER BY 1 DESC, %1"_s.arg(
               list, quotedName(reference.table), reference.bearsCode(),
               quotedName(reference.target), joins.join(u" AND "_s));
}

DatabaseCheck::Dangling findDangling(const Database &db, const Reference &reference)
{
    constexpr int shown = 5;
    const auto side = [](const QString &table, const QStringList &fields) {
        return table + u'.' + fields.join(u" + "_s);
    };
    DatabaseCheck::Dangling found{side(reference.table, reference.fields) + u" -> "_s +
                                      side(reference.target, reference.keys),
                                  0,
                                  0,
                                  {}};
    QSqlQuery codes = db.engine().run(danglingSql(reference));
    while (db.engine().next(codes)) {
        const qint64 rows = codes.value(0).toLongLong();
        found.rows += rows;
        if (++found.codes > shown)
            continue;
        QStringList values;
        for (qsizetype i = 0; i < reference.fields.size(); ++i)
            values.append(codes.value(int(i) + 1).toString());
        found.examples.append(u"%1 (%2)"_s.arg(values.join(u" + "_s), QString::number(rows)));
    }
    return found;
}

QList<DatabaseCheck::Empty> findEmpties(const Database &db, const TableDef &table)
{
    QStringList counts;
    for (const FieldDef &field : table.fields)
        counts.append(u"count(*) - count(%1)"_s.arg(quotedName(field.name)));
    QSqlQuery query =
        db.engine().run(u"SELECT %1 FROM %2"_s.arg(counts.join(u", "_s), quotedName(table.name)));
    db.engine().next(query);
    QList<DatabaseCheck::Empty> found;
    for (qsizetype i = 0; i < table.fields.size(); ++i) {
        const qint64 rows = query.value(int(i)).toLongLong();
        if (rows > 0)
            found.append({table.name, table.fields[i].name, rows});
    }
    return found;
}

} // namespace

DatabaseCheck checkDatabase(const Database &db)
{
    DatabaseCheck check;
    check.faults = integrityFaults(db.engine());
    // What is damaged cannot be counted on.
    if (!check.faults.isEmpty())
        return check;
    const QMap<QString, qint64> rows = rowCounts(db.engine());
    for (const QString &table : db.tableNames()) {
        check.rows.insert(table, rows.value(table));
        check.empties.append(findEmpties(db, db.tableDef(table)));
    }
    for (const TableDef &table : companyTables()) {
        if (!db.hasTable(table.name))
            check.missingTables.append(table.name);
    }
    check.isOlder = db.schemaVersion() < currentSchemaVersion;
    check.missingCounters = missingCounters(db, companyTables());
    check.notes = openingNotes(db);
    for (const Reference &reference : companyReferences()) {
        if (!db.hasTable(reference.table) || !db.hasTable(reference.target))
            continue;
        const DatabaseCheck::Dangling found = findDangling(db, reference);
        if (found.rows > 0)
            check.dangling.append(found);
    }
    return check;
}

QStringList checkReport(const DatabaseCheck &check)
{
    QStringList lines;
    const auto section = [&lines](const QString &heading, const QStringList &entries) {
        lines += QString();
        lines += heading;
        for (const QString &entry : entries.isEmpty() ? QStringList{u"yok"_s} : entries)
            lines += u"  "_s + entry;
    };
    lines += check.faults.isEmpty() ? u"Dosya sağlam."_s : u"DOSYA BOZUK:"_s;
    for (const QString &fault : check.faults)
        lines += u"  "_s + fault;
    if (!check.faults.isEmpty())
        return lines;

    if (!check.missingTables.isEmpty())
        section(u"EKSİK TABLOLAR"_s, check.missingTables);
    if (!check.missingCounters.isEmpty())
        section(u"SAYACI OLMAYAN TABLOLAR"_s, check.missingCounters);
    if (!check.notes.isEmpty())
        section(u"Aktarılırken ya da açılırken görülenler"_s, check.notes);
    QStringList entries;
    for (auto table = check.rows.begin(); table != check.rows.end(); ++table)
        entries.append(u"%1 %2"_s.arg(table.key(), -20).arg(table.value(), 10));
    section(u"Kayıt sayıları"_s, entries);

    entries.clear();
    for (const DatabaseCheck::Dangling &found : check.dangling) {
        entries.append(u"%1: %2 kayıt, %3 ayrı kod: %4%5"_s.arg(
            found.reference, QString::number(found.rows), QString::number(found.codes),
            found.examples.join(u", "_s),
            found.codes > found.examples.size() ? u", ..."_s : QString()));
    }
    section(u"Karşılığı olmayan kodlar"_s, entries);

    entries.clear();
    for (const DatabaseCheck::Empty &found : check.empties)
        entries.append(
            u"%1.%2: %3 kayıt"_s.arg(found.table, found.field, QString::number(found.rows)));
    section(u"Boş (null) alanlar"_s, entries);
    return lines;
}

} // namespace kuyum
