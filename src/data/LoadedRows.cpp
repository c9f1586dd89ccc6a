#include "LoadedRows.h"

#include "Database.h"
#include "Numbers.h"
#include "RowComparison.h"
#include "Savepoint.h"

#include <algorithm>
#include <map>
#include <QSet>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

const QString placeField = u"#"_s;

LoadedRows::Rows readRows(Database &db, const RecordRows &of)
{
    Recordset set = db.query(u"Select * From %1 Where %2"_s.arg(of.table, of.where));
    LoadedRows::Rows result;
    for (int i = 0; i < set.fieldCount(); ++i)
        result.fields.append(set.fieldName(i));
    if (of.ordered)
        result.fields.append(placeField);
    while (set.next()) {
        QVariantList row;
        for (int i = 0; i < set.fieldCount(); ++i)
            row.append(set.value(i));
        if (of.ordered)
            row.append(result.rows.size() + 1);
        result.rows.append(row);
    }
    return result;
}

void addRow(Database &db, const QString &table, const QStringList &fields, const QVariantList &row)
{
    Recordset set = db.table(table);
    set.addNew();
    for (int i = 0; i < fields.size(); ++i)
        set.set(fields[i], row[i]);
    set.update();
}

} // namespace

std::function<QString(const QVariant &)> lookedUp(Database &db, const QString &table,
                                                  const QString &number, const QString &text)
{
    return [&db, table, number, text](const QVariant &value) {
        const QString plain = value.toString();
        if (!value.isValid())
            return plain;
        Recordset set = db.query(
            u"Select * From %1 Where %2 = %3"_s.arg(table, number, sqlNumber(value.toDouble())));
        return set.next() ? set.text(text) : plain;
    };
}

LoadedRows::LoadedRows(Database &db, const QList<RecordRows> &record)
{
    for (const RecordRows &of : record) {
        const Rows rows = readRows(db, of);
        m_parts.append({of, rows, rows, rows});
    }
}

void LoadedRows::write(Database &db, const Writing &writing)
{
    Transaction transaction(db);
    const QList<Rows> standing = readAll(db);
    bringBack(db, standing);
    writing.write();
    requireNothingUndone(db, standing, writing.rest);
    std::map<qsizetype, Rows> written;
    for (qsizetype i = 0; i < m_parts.size(); ++i) {
        if (writing.goesOn.contains(m_parts[i].of.table))
            written[i] = readRows(db, m_parts[i].of);
    }
    transaction.commit();
    for (const auto &[i, rows] : written)
        m_parts[i].first = m_parts[i].loaded = rows;
}

void LoadedRows::check(Database &db, const std::function<void()> &write)
{
    const Transaction rolledBack(db);
    requireNothingUndone(db, readAll(db), write);
}

QList<LoadedRows::Rows> LoadedRows::readAll(Database &db) const
{
    QList<Rows> all;
    for (const Part &part : m_parts)
        all.append(readRows(db, part.of));
    return all;
}

/// What would be undone is seen from what the save makes of the rows, so that
/// neither fields that it does not write nor the same change made twice count.
void LoadedRows::requireNothingUndone(Database &db, const QList<Rows> &standing,
                                      const std::function<void()> &rest)
{
    bool changed = false;
    for (qsizetype i = 0; i < m_parts.size(); ++i)
        changed = changed || !RowComparison::same(m_parts[i].of, m_parts[i].loaded, standing[i]);
    if (!changed)
        return;
    QList<Rows> mine;
    {
        const Savepoint trial(db); // undone: the rest is for another transaction
        if (rest)
            rest();
        mine = readAll(db);
    }
    bool undoes = false;
    QList<FieldChange> changes;
    for (qsizetype i = 0; i < m_parts.size(); ++i) {
        const RowComparison comparison(m_parts[i].of, {m_parts[i].loaded, standing[i], mine[i]});
        undoes = undoes || comparison.undoes();
        changes += comparison.differences();
    }
    if (!undoes)
        return;
    for (qsizetype i = 0; i < m_parts.size(); ++i)
        m_parts[i].standing = standing[i];
    const auto none = [](const QList<Rows> &parts) {
        return parts.isEmpty() || parts.first().rows.isEmpty();
    };
    throw ChangedMeanwhile(
        changes, none(mine) ? ChangedMeanwhile::Save::Removes : ChangedMeanwhile::Save::Changes,
        !none(standing));
}

void LoadedRows::acceptStanding()
{
    for (Part &part : m_parts)
        part.loaded = part.standing;
}

void LoadedRows::bringBack(Database &db, const QList<Rows> &standing) const
{
    for (qsizetype i = 0; i < m_parts.size(); ++i) {
        const Part &part = m_parts[i];
        if (!part.of.comesBack || !standing[i].rows.isEmpty())
            continue;
        for (const QVariantList &row : part.first.rows)
            addRow(db, part.of.table, part.first.fields, row);
    }
}

void LoadedRows::bringBack(Database &db, const QString &table, const QString &field,
                           const QList<qint32> &numbers) const
{
    const Part *known = part(table);
    if (known == nullptr || numbers.isEmpty())
        return;
    const qsizetype place = known->first.fields.indexOf(field);
    QSet<qint64> missing(numbers.begin(), numbers.end());
    const Rows now = readRows(db, known->of);
    for (const QVariantList &row : now.rows)
        missing.remove(row[place].toLongLong());
    for (const QVariantList &row : known->first.rows) {
        if (missing.contains(row[place].toLongLong()))
            addRow(db, table, known->first.fields, row);
    }
}

const LoadedRows::Part *LoadedRows::part(const QString &table) const
{
    const auto found =
        std::ranges::find_if(m_parts, [&](const Part &p) { return p.of.table == table; });
    return found == m_parts.end() ? nullptr : &*found;
}

LoadedRows LoadedRows::row(const QString &table, const QString &where, const QString &field,
                           const QList<qint32> &numbers) const
{
    LoadedRows result;
    const Part *known = part(table);
    if (known == nullptr)
        return result;
    Part one = *known;
    one.of.where = where;
    one.loaded.rows.clear();
    const qsizetype place = known->loaded.fields.indexOf(field);
    for (const qint32 number : numbers) {
        for (const QVariantList &row : known->loaded.rows) {
            if (one.loaded.rows.isEmpty() && row[place].toLongLong() == number)
                one.loaded.rows.append(row);
        }
    }
    one.first = one.standing = one.loaded;
    result.m_parts.append(one);
    return result;
}

} // namespace kuyum
