#include "Counters.h"

#include "Database.h"
#include "Dialect.h"
#include "OpeningNotes.h"
#include "References.h"
#include "Schema.h"
#include "SqliteEngine.h"
#include "TableRebuild.h"
#include "TurkishText.h"

#include <limits>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

bool hasCounter(const TableDef &table, const QString &name)
{
    const FieldDef *counter = table.counter();
    return counter != nullptr && sameText(counter->name, name);
}

/// Rows that are the same thing, whichever of them a number means: a model has
/// a row for each of its materials.
QStringList sameThing(const QString &table)
{
    return sameText(table, u"Model") ? QStringList{u"Model"_s, u"M_Uruntip"_s} : QStringList();
}

/// Gives new numbers to the rows of one table that need one.
class Renumbering
{
public:
    Renumbering(Database &db, const TableDef &table, const QString &counter)
        : m_db(db), m_engine(db.engine()), m_table(table), m_counter(counter)
    {
    }

    void run()
    {
        refuseOtherValues();
        m_engine.run(
            u"CREATE TABLE IF NOT EXISTS kuyum_sayac (tablo TEXT, eski LONG, yeni LONG)"_s);
        m_highest = number(u"SELECT coalesce(max(%1), 0) FROM %2"_s);
        QSqlQuery twice = m_engine.run(
            text(u"SELECT %1 FROM %2 WHERE %1 IS NOT NULL GROUP BY %1 HAVING count(*) > 1"_s));
        QVariantList numbers;
        while (m_engine.next(twice))
            numbers.append(twice.value(0));
        for (const QVariant &used : std::as_const(numbers)) {
            refuseWhenMeant(used);
            renumber(text(u"SELECT _rowid_ FROM %2 WHERE %1 = ? ORDER BY _rowid_ LIMIT -1 "
                          "OFFSET 1"_s),
                     {used});
        }
        renumber(text(u"SELECT _rowid_ FROM %2 WHERE %1 IS NULL ORDER BY _rowid_"_s), {});
    }

private:
    QString text(const QString &sql) const
    {
        // arg() would take a text without a %1 for one that begins with %2.
        return QString(sql)
            .replace(u"%1"_s, quotedName(m_counter))
            .replace(u"%2"_s, quotedName(m_table.name));
    }
    qint64 number(const QString &sql) const
    {
        QSqlQuery row = m_engine.run(text(sql));
        m_engine.next(row);
        return row.value(0).toLongLong();
    }
    void refuseOtherValues() const
    {
        if (number(u"SELECT count(*) FROM %2 WHERE typeof(%1) NOT IN ('integer', 'null')"_s) > 0)
            throw DatabaseError(
                u"\"%1\" tablosunun \"%2\" alanında tam sayı olmayan değerler var; sayaç olamaz."_s
                    .arg(m_table.name, m_counter));
    }

    /// Refuses a number that others refer to while it stands for several things.
    void refuseWhenMeant(const QVariant &used) const
    {
        for (const Reference &reference : companyReferences()) {
            if (!sameText(reference.target, m_table.name) ||
                !sameText(reference.keys.first(), m_counter) || !m_db.hasTable(reference.table) ||
                m_db.tableDef(reference.table).field(reference.fields.first()) == nullptr)
                continue;
            QSqlQuery row =
                m_engine.run(u"SELECT count(*) FROM %1 a WHERE a.%2 = ? AND %3"_s.arg(
                                 quotedName(reference.table), quotedName(reference.fields.first()),
                                 reference.bearsCode()),
                             {used});
            m_engine.next(row);
            if (row.value(0).toLongLong() == 0 || thingsOf(used) < 2)
                continue;
            throw DatabaseError(
                u"\"%1\" tablosunda %2 numarası (%3) birden fazla kayıtta var ve \"%4\" "
                "tablosundaki kayıtlar bu numarayı kullanıyor; hangisinin kastedildiği "
                "bilinemez. Numaralardan birini eski programda ya da Access'te değiştirip yeniden "
                "deneyin. Kayıtlar: %5"_s.arg(m_table.name, used.toString(), m_counter,
                                              reference.table, describeAll(used)));
        }
    }

    /// How many different things bear the number.
    qint64 thingsOf(const QVariant &used) const
    {
        QStringList fields;
        for (const QString &field : sameThing(m_table.name)) {
            if (m_table.field(field) != nullptr)
                fields.append(quotedName(field));
        }
        if (fields.isEmpty())
            fields = {u"_rowid_"_s};
        QSqlQuery row = m_engine.run(text(u"SELECT count(*) FROM (SELECT DISTINCT "_s +
                                          fields.join(u',') + u" FROM %2 WHERE %1 = ?)"_s),
                                     {used});
        m_engine.next(row);
        return row.value(0).toLongLong();
    }

    void renumber(const QString &sql, const QVariantList &values)
    {
        QSqlQuery found = m_engine.run(sql, values);
        QVariantList rows;
        while (m_engine.next(found))
            rows.append(found.value(0));
        found.finish();
        const QVariant before = values.value(0);
        for (const QVariant &row : std::as_const(rows)) {
            if (++m_highest > std::numeric_limits<qint32>::max())
                throw DatabaseError(u"\"%1\" tablosunda yeni numara kalmamış."_s.arg(m_table.name));
            m_engine.run(text(u"UPDATE %2 SET %1 = ? WHERE _rowid_ = ?"_s), {m_highest, row});
            m_engine.run(u"INSERT INTO kuyum_sayac VALUES (?, ?, ?)"_s,
                         {m_table.name, before, m_highest});
            addNote(m_db,
                    u"%1.%2: %3, yeni numarası %4 (%5)"_s.arg(
                        m_table.name, m_counter,
                        before.isNull() ? u"numarası yoktu"_s
                                        : before.toString() + u" başka bir kayıtta da vardı"_s,
                        QString::number(m_highest), describe(row)));
            // Labels that are stuck on goods bear the number.
            if (sameText(m_table.name, u"Model"))
                addNote(m_db, u"  Bu modelin basılmış etiketleri varsa yeniden basın."_s);
        }
    }

    /// The row's first fields that say something.
    QString describe(const QVariant &row) const
    {
        constexpr qsizetype enough = 4;
        QSqlQuery values = m_engine.run(text(u"SELECT * FROM %2 WHERE _rowid_ = ?"_s), {row});
        m_engine.next(values);
        QStringList parts;
        for (int i = 0; i < int(m_table.fields.size()) && parts.size() < enough; ++i) {
            const QString value = values.value(i).toString().trimmed();
            if (!value.isEmpty() && !sameText(m_table.fields[i].name, m_counter))
                parts.append(m_table.fields[i].name + u' ' + value);
        }
        return parts.join(u", "_s);
    }
    QString describeAll(const QVariant &used) const
    {
        constexpr qsizetype enough = 5;
        QSqlQuery found =
            m_engine.run(text(u"SELECT _rowid_ FROM %2 WHERE %1 = ? ORDER BY _rowid_"_s), {used});
        QStringList rows;
        while (rows.size() < enough && m_engine.next(found))
            rows.append(u'[' + describe(found.value(0)) + u']');
        return rows.join(u' ');
    }

    Database &m_db;
    const SqliteEngine &m_engine;
    const TableDef &m_table;
    QString m_counter;
    qint64 m_highest = 0;
};

void completeCounter(Database &db, const FieldDef &counter, const TableDef &present)
{
    TableDef wanted = present;
    wanted.indexes.clear();
    bool isThere = false;
    for (FieldDef &field : wanted.fields) {
        field.counter = sameText(field.name, counter.name);
        if (field.counter) {
            isThere = true;
            field.type = FieldType::Long;
            field.size = 0;
            field.defaultValue = {};
        }
    }
    if (isThere) {
        Renumbering(db, present, wanted.counter()->name).run();
    } else {
        wanted.fields.append(counter);
        addNote(db, u"%1 tablosunda %2 alanı yoktu; kayıtlar baştan numaralandı."_s.arg(
                        present.name, counter.name));
    }
    rebuildTable(db, wanted, [](qint64) {});
    for (const IndexDef &index : present.indexes)
        createIndexAsAllowed(db, present.name, index);
}

} // namespace

QStringList missingCounters(const Database &db, const QList<TableDef> &description)
{
    // One statement: this is asked at every opening.
    QSqlQuery rows = db.engine().run(
        u"SELECT m.name, p.name FROM sqlite_master m LEFT JOIN pragma_table_info(m.name) p ON p.pk "
        "> 0 AND instr(upper(m.sql), 'AUTOINCREMENT') > 0 WHERE m.type = 'table'"_s);
    QHash<QString, QString> counters;
    while (db.engine().next(rows))
        counters.insert(foldedText(rows.value(0).toString()), rows.value(1).toString());
    QStringList missing;
    for (const TableDef &known : description) {
        const FieldDef *counter = known.counter();
        const auto present = counters.constFind(foldedText(known.name));
        if (counter != nullptr && present != counters.constEnd() &&
            !sameText(*present, counter->name))
            missing.append(known.name + u'.' + counter->name);
    }
    return missing;
}

void completeCounters(Database &db, const QList<TableDef> &description)
{
    for (const TableDef &known : description) {
        const FieldDef *counter = known.counter();
        if (counter == nullptr || !db.hasTable(known.name))
            continue;
        const TableDef present = db.tableDef(known.name);
        if (!hasCounter(present, counter->name))
            completeCounter(db, *counter, present);
    }
}

QHash<qint64, std::optional<qint64>> numbersBefore(const Database &db, const QString &table)
{
    const SqliteEngine &engine = db.engine();
    QHash<qint64, std::optional<qint64>> numbers;
    QSqlQuery present =
        engine.run(u"SELECT 1 FROM sqlite_master WHERE type = 'table' AND name = 'kuyum_sayac'"_s);
    if (!engine.next(present))
        return numbers;
    QSqlQuery rows = engine.run(u"SELECT yeni, eski FROM kuyum_sayac WHERE tablo = ?"_s, {table});
    while (engine.next(rows)) {
        const QVariant before = rows.value(1);
        numbers.insert(rows.value(0).toLongLong(),
                       before.isNull() ? std::nullopt : std::optional(before.toLongLong()));
    }
    return numbers;
}

} // namespace kuyum
