#include "TableRebuild.h"

#include "BulkStatement.h"
#include "Database.h"
#include "Dialect.h"
#include "RowChecksum.h"
#include "RowSlices.h"
#include "SqliteEngine.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

/// Until it takes the old one's name; no screen sees a table of this beginning.
const QString &interimName()
{
    static const QString name = u"kuyum_yeni"_s;
    return name;
}

struct Columns
{
    QStringList target; ///< the row's own number first
    QStringList source;
};

Columns columnsOf(const TableDef &present, const TableDef &wanted)
{
    const QString rowNumber = u"_rowid_"_s;
    Columns columns{{rowNumber}, {rowNumber}};
    for (const FieldDef &field : wanted.fields) {
        const QString name = quotedName(field.name);
        if (field.counter) // it is the row's number under its own name
            columns.target.first() = name;
        else
            columns.target.append(name);
        if (!field.counter)
            columns.source.append(name);
        else if (present.field(field.name) != nullptr)
            columns.source.first() = name;
    }
    return columns;
}

RowChecksum checksumOf(const SqliteEngine &engine, const QStringList &columns, const QString &table)
{
    BulkStatement rows(engine, u"SELECT %1 FROM %2"_s.arg(columns.join(u','), quotedName(table)));
    RowChecksum checksum;
    RawValue value;
    while (rows.step()) {
        for (int i = 0; i < int(columns.size()); ++i) {
            rows.column(i, value);
            checksum.add(value);
        }
        checksum.endRow();
    }
    return checksum;
}

/// Whether another program gave the table what a TableDef cannot tell, and what
/// would be lost with the old table: rules, computed fields, triggers, indexes
/// over a part of the rows.
bool hasForeignRules(const SqliteEngine &engine, const QString &table)
{
    static const QRegularExpression quoted(uR"(\[[^\]]*\]|"[^"]*"|`[^`]*`|'[^']*')"_s);
    static const QRegularExpression rules(
        uR"(\b(CHECK|REFERENCES|AS|NOT\s+NULL|WITHOUT|STRICT)\b|\bDEFAULT\s*[^-+\s\dN]|)"
        uR"(\bINTEGER\s+PRIMARY\s+KEY(?!\s+AUTOINCREMENT)|\bPRIMARY\s+KEY\s*\()"_s,
        QRegularExpression::CaseInsensitiveOption);
    QSqlQuery made =
        engine.run(u"SELECT sql FROM sqlite_master WHERE type = 'table' AND name = ?"_s, {table});
    engine.next(made);
    if (made.value(0).toString().replace(quoted, u"0"_s).contains(rules))
        return true;
    QSqlQuery beside = engine.run(
        u"SELECT count(*) FROM sqlite_master WHERE type = 'trigger' AND tbl_name = ? COLLATE "
        u"NOCASE "
        "UNION ALL SELECT count(*) FROM pragma_index_list(?) AS i WHERE i.partial OR EXISTS "
        "(SELECT 1 FROM pragma_index_info(i.name) AS f WHERE f.name IS NULL)"_s,
        {table, table});
    while (engine.next(beside)) {
        if (beside.value(0).toInt() > 0)
            return true;
    }
    return false;
}

qint64 highestGiven(const SqliteEngine &engine, const QString &table)
{
    QSqlQuery sequence =
        engine.run(u"SELECT max(seq) FROM sqlite_sequence WHERE name = ?"_s, {table});
    engine.next(sequence);
    return sequence.value(0).toLongLong();
}

} // namespace

void rebuildTable(Database &db, const TableDef &wanted,
                  const std::function<void(qint64 rows)> &rowsDone)
{
    const SqliteEngine &engine = db.engine();
    const TableDef present = db.tableDef(wanted.name);
    if (hasForeignRules(engine, present.name)) {
        throw DatabaseError(u"\"%1\" tablosunda başka bir programın koyduğu kurallar var; tablo "
                            "yeniden kurulursa bunlar kaybolur."_s.arg(present.name));
    }
    const Columns columns = columnsOf(present, wanted);
    TableDef interim = wanted;
    interim.name = interimName();
    interim.indexes.clear();
    db.createTable(interim);

    const QString copy = u"INSERT INTO %1 (%2) SELECT %3 FROM %4 WHERE %5 ORDER BY _rowid_"_s.arg(
        interim.name, columns.target.join(u','), columns.source.join(u','),
        quotedName(present.name), RowSlices::condition());
    RowSlices slices(db, present.name);
    while (slices.next()) {
        engine.run(copy, slices.bounds());
        rowsDone(slices.rowsDone());
    }
    if (!(checksumOf(engine, columns.source, present.name) ==
          checksumOf(engine, columns.target, interim.name))) {
        throw DatabaseError(
            u"\"%1\" tablosunda yeni alan türünün saklayamadığı bir değer var."_s.arg(
                present.name));
    }
    if (wanted.counter() != nullptr)
        db.raiseCounter(interim.name, highestGiven(engine, present.name));
    engine.run(u"DROP TABLE "_s + quotedName(present.name));
    engine.run(u"ALTER TABLE %1 RENAME TO %2"_s.arg(interim.name, quotedName(present.name)));
}

} // namespace kuyum
