#include "NullFill.h"

#include "Database.h"
#include "Dialect.h"
#include "FieldTypes.h"
#include "RowSlices.h"
#include "SqliteEngine.h"
#include "TurkishText.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

/// A field with nulls, and whether an index forbids it to hold a value twice.
struct Gap
{
    const FieldDef *field;
    qint64 nulls;
    bool guarded;
};

bool isGuarded(const TableDef &table, const FieldDef &field)
{
    return std::any_of(table.indexes.begin(), table.indexes.end(), [&](const IndexDef &index) {
        return index.unique &&
               std::any_of(index.fields.begin(), index.fields.end(),
                           [&](const QString &name) { return sameText(name, field.name); });
    });
}

QList<Gap> gapsOf(const SqliteEngine &engine, const TableDef &table, qint64 &rows)
{
    QStringList counts = {u"count(*)"_s};
    for (const FieldDef &field : table.fields)
        counts.append(u"count(%1)"_s.arg(quotedName(field.name)));
    QSqlQuery counted =
        engine.run(u"SELECT %1 FROM %2"_s.arg(counts.join(u','), quotedName(table.name)));
    engine.next(counted);
    rows = counted.value(0).toLongLong();
    QList<Gap> gaps;
    for (qsizetype i = 0; i < table.fields.size(); ++i) {
        const qint64 nulls = rows - counted.value(int(i) + 1).toLongLong();
        if (nulls > 0)
            gaps.append({&table.fields[i], nulls, isGuarded(table, table.fields[i])});
    }
    return gaps;
}

/// One statement for all fields that nothing guards.
struct Filling
{
    QString sql;
    QVariantList values;
};

QList<Filling> fillings(const TableDef &table, const QList<Gap> &gaps)
{
    const QString name = quotedName(table.name);
    QStringList settings;
    QStringList nulls;
    Filling free;
    QList<Filling> result;
    for (const Gap &gap : gaps) {
        const QString field = quotedName(gap.field->name);
        if (gap.guarded) {
            // A row whose neutral value another row has already keeps its null.
            result.append(
                {u"UPDATE OR IGNORE %1 SET %2 = ? WHERE %2 IS NULL AND "_s.arg(name, field) +
                     RowSlices::condition(),
                 {neutralValue(gap.field->type)}});
            continue;
        }
        settings.append(u"%1 = ifnull(%1, ?)"_s.arg(field));
        nulls.append(field + u" IS NULL"_s);
        free.values.append(neutralValue(gap.field->type));
    }
    if (!settings.isEmpty()) {
        free.sql = u"UPDATE %1 SET %2 WHERE (%3) AND "_s.arg(name, settings.join(u", "_s),
                                                             nulls.join(u" OR "_s)) +
                   RowSlices::condition();
        result.prepend(free);
    }
    return result;
}

qint64 nullsLeft(const SqliteEngine &engine, const QString &table, const Gap &gap)
{
    if (!gap.guarded)
        return 0;
    QSqlQuery left = engine.run(u"SELECT count(*) FROM %1 WHERE %2 IS NULL"_s.arg(
        quotedName(table), quotedName(gap.field->name)));
    engine.next(left);
    return left.value(0).toLongLong();
}

} // namespace

qint64 filledNulls(const QList<FilledTable> &tables)
{
    qint64 sum = 0;
    for (const FilledTable &table : tables) {
        for (const FilledField &field : table.fields)
            sum += field.filled;
    }
    return sum;
}

FilledTable fillNulls(Database &db, const QString &table,
                      const std::function<void(qint64 rows)> &rowsDone)
{
    const SqliteEngine &engine = db.engine();
    const TableDef definition = db.tableDef(table);
    FilledTable result{definition.name};
    const QList<Gap> gaps = gapsOf(engine, definition, result.rows);
    const QList<Filling> statements = fillings(definition, gaps);
    RowSlices slices(db, definition.name);
    while (!gaps.isEmpty() && slices.next()) {
        for (const Filling &filling : statements)
            engine.run(filling.sql, filling.values + slices.bounds());
        rowsDone(slices.rowsDone());
    }
    rowsDone(result.rows);
    for (const Gap &gap : gaps) {
        const qint64 left = nullsLeft(engine, definition.name, gap);
        result.fields.append({gap.field->name, gap.nulls - left, left});
    }
    return result;
}

} // namespace kuyum
