#include "BulkStatement.h"
#include "Counters.h"
#include "Database.h"
#include "Dialect.h"
#include "LegacyFile.h"
#include "RowChecksum.h"
#include "SqliteEngine.h"
#include "TakeOverSteps.h"
#include "TurkishText.h"

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

RowChecksum checksumOfSource(LegacyFile &file, const LegacyTable &table,
                             TakeOverSteps::Reporter &reporter)
{
    RowChecksum checksum;
    LegacyRows rows = file.rows(table);
    while (rows.next()) {
        for (qsizetype i = 0; i < rows.fieldCount(); ++i)
            checksum.add(rows.value(i));
        checksum.endRow();
        reporter.row(table.definition.name);
    }
    return checksum;
}

/// What stood in the source where a row was given a new number.
void restoreNumber(RawValue &value, const QHash<qint64, std::optional<qint64>> &before)
{
    const auto given = before.find(value.integer);
    if (given == before.end())
        return;
    if (given->has_value())
        value.setInteger(**given);
    else
        value.setNull();
}

RowChecksum checksumOfCopy(Database &db, const TableDef &table, TakeOverSteps::Reporter &reporter)
{
    QStringList fields;
    for (const FieldDef &field : table.fields)
        fields.append(quotedName(field.name));
    const QHash<qint64, std::optional<qint64>> before = numbersBefore(db, table.name);
    const QString counter = before.isEmpty() ? QString() : db.tableDef(table.name).counter()->name;
    RowChecksum checksum;
    BulkStatement rows(db.engine(),
                       u"SELECT %1 FROM %2"_s.arg(fields.join(u','), quotedName(table.name)));
    RawValue value;
    while (rows.step()) {
        for (int i = 0; i < int(fields.size()); ++i) {
            rows.column(i, value);
            if (!before.isEmpty() && sameText(table.fields[i].name, counter))
                restoreNumber(value, before);
            checksum.add(value);
        }
        checksum.endRow();
        reporter.row(table.name);
    }
    return checksum;
}

void compare(const TableDef &table, const RowChecksum &expected, const RowChecksum &copied)
{
    if (expected.rowCount() != copied.rowCount()) {
        throw DatabaseError(u"\"%1\" tablosunda kaynakta %2, aktarılanda %3 kayıt var."_s.arg(
            table.name, QString::number(expected.rowCount()), QString::number(copied.rowCount())));
    }
    if (!(expected == copied)) {
        throw DatabaseError(
            u"\"%1\" tablosunun değerleri aktarılınca değişti; kayıtlarında saklanamayan bir "
            "değer var."_s.arg(table.name));
    }
}

} // namespace

void TakeOverSteps::prove(const QString &source, const QString &part, Reporter &reporter)
{
    LegacyFile file(source);
    const QList<LegacyTable> tables = file.tables();
    qint64 total = 0;
    for (const LegacyTable &table : tables)
        total += 2 * table.declaredRows;
    reporter.begin(total);
    QList<RowChecksum> expected;
    for (const LegacyTable &table : tables)
        expected.append(checksumOfSource(file, table, reporter));

    reporter.waitForCopy();
    const std::unique_ptr<Database> db = Database::open(part, Database::Access::ReadOnly);
    for (qsizetype i = 0; i < tables.size(); ++i) {
        const TableDef &table = tables[i].definition;
        compare(table, expected[i], checksumOfCopy(*db, table, reporter));
    }
}

} // namespace kuyum
