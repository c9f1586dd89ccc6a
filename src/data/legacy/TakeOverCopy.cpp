#include "BulkStatement.h"
#include "Counters.h"
#include "Database.h"
#include "Dialect.h"
#include "LegacyFile.h"
#include "LegacyStamp.h"
#include "Schema.h"
#include "SqliteEngine.h"
#include "TakeOverSteps.h"
#include "TurkishText.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

/// Which of the two descriptions the file is completed with.
const QList<TableDef> &descriptionFor(const QList<LegacyTable> &tables)
{
    for (const LegacyTable &table : tables) {
        if (sameText(table.definition.name, u"SirketKayit"))
            return registryTables();
    }
    return companyTables();
}

bool isWholeNumber(FieldType type)
{
    return type == FieldType::Long || type == FieldType::Integer || type == FieldType::Byte;
}

/// The field by which the database numbers this table's rows: what this program
/// relies on, else what the legacy file had. Empty when there is none.
QString counterOf(const TableDef &table, const QList<TableDef> &description)
{
    for (const TableDef &known : description) {
        if (!sameText(known.name, table.name) || known.counter() == nullptr)
            continue;
        const FieldDef *field = table.field(known.counter()->name);
        return field != nullptr && isWholeNumber(field->type) ? field->name : QString();
    }
    return table.counter() != nullptr ? table.counter()->name : QString();
}

TableDef withCounter(TableDef table, const QString &counterName)
{
    for (FieldDef &field : table.fields) {
        field.counter = field.name == counterName;
        if (field.counter)
            field.defaultValue = {};
    }
    table.indexes.clear();
    return table;
}

/// Makes the table and copies its rows; false when a row's counter does not
/// tell it from the others. Then nothing of the table is left.
bool copyRows(LegacyFile &file, const LegacyTable &source, const TableDef &target, Database &db,
              TakeOverSteps::Reporter &reporter)
{
    const SqliteEngine &engine = db.engine();
    db.createTable(target);
    qsizetype counterPlace = -1;
    for (qsizetype i = 0; i < target.fields.size(); ++i) {
        if (target.fields[i].counter)
            counterPlace = i;
    }
    bool good = true;
    {
        BulkStatement insert(engine, u"INSERT INTO %1 VALUES (%2)"_s.arg(
                                         quotedName(target.name),
                                         QStringList(target.fields.size(), u"?"_s).join(u',')));
        LegacyRows rows = file.rows(source);
        while (good && rows.next()) {
            // Without a number the database would give the row one of its own.
            good = counterPlace < 0 || rows.value(counterPlace).kind == RawValue::Kind::Integer;
            for (qsizetype i = 0; i < rows.fieldCount(); ++i)
                insert.bind(int(i), rows.value(i));
            good = good && insert.insert();
            reporter.row(target.name);
        }
        if (good)
            reporter.tableDone(target.name, rows.rowCount());
    }
    if (!good)
        engine.run(u"DROP TABLE "_s + quotedName(target.name));
    return good;
}

void copyTable(LegacyFile &file, const LegacyTable &source, const QList<TableDef> &description,
               Database &db, TakeOverSteps::Reporter &reporter)
{
    const QString counter = counterOf(source.definition, description);
    if (!counter.isEmpty() &&
        copyRows(file, source, withCounter(source.definition, counter), db, reporter))
        return;
    // Without a counter they all fit; one that is needed is made afterwards.
    if (!copyRows(file, source, withCounter(source.definition, {}), db, reporter)) {
        throw DatabaseError(
            u"\"%1\" tablosunun kayıtları yazılamadı."_s.arg(source.definition.name));
    }
}

/// Whether a search by these fields is served by another index too, which
/// begins with them: keeping both would only slow down every save.
bool isServedBy(const QList<IndexDef> &others, const IndexDef &index)
{
    return std::any_of(others.begin(), others.end(), [&index](const IndexDef &other) {
        return other.fields.size() > index.fields.size() &&
               std::equal(index.fields.begin(), index.fields.end(), other.fields.begin(),
                          [](const QString &a, const QString &b) { return sameText(a, b); });
    });
}

void makeIndexes(const QList<LegacyTable> &tables, const QList<TableDef> &description, Database &db,
                 TakeOverSteps::Reporter &reporter)
{
    for (const LegacyTable &table : tables) {
        const TableDef &definition = table.definition;
        QList<IndexDef> others = definition.indexes;
        for (const TableDef &known : description) {
            if (sameText(known.name, definition.name))
                others += known.indexes;
        }
        for (const IndexDef &index : definition.indexes) {
            reporter.alive(definition.name);
            if (index.unique || !isServedBy(others, index))
                createIndexAsAllowed(db, definition.name, index);
        }
    }
}

} // namespace

void TakeOverSteps::copy(const QString &source, const QString &part, Reporter &reporter)
{
    const LegacyStamp stamp = stampOf(source);
    LegacyFile file(source);
    const QList<LegacyTable> tables = file.tables();
    if (tables.isEmpty())
        throw DatabaseError(u"Dosyada hiç tablo yok."_s);
    qint64 total = 0;
    for (const LegacyTable &table : tables)
        total += table.declaredRows;
    reporter.begin(total);

    const std::unique_ptr<Database> db = Database::create(part);
    const SqliteEngine &engine = db->engine();
    // The file counts for nothing until it is whole, so a failure needs no
    // journal on disk; the one commit still waits for the disk.
    engine.run(u"PRAGMA journal_mode = MEMORY"_s);
    engine.run(u"PRAGMA locking_mode = EXCLUSIVE"_s);
    engine.run(u"PRAGMA cache_size = -16000"_s);
    Transaction transaction(*db);
    const QList<TableDef> &description = descriptionFor(tables);
    for (const LegacyTable &table : tables)
        copyTable(file, table, description, *db, reporter);
    if (&description == &companyTables()) {
        reporter.alive({});
        noteWhatIsMissing(*db);
        completeCounters(*db, description);
    }
    makeIndexes(tables, description, *db, reporter);
    completeTables(*db, description);
    writeStamp(*db, stamp);
    db->setSchemaVersion(currentSchemaVersion);
    transaction.commit();
}

} // namespace kuyum
