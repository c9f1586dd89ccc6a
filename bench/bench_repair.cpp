// bench_repair [LINES [RUNS]]: the nulls of so many order lines filled by
// DosyaDuzelt1, against the same edit record by record: edit, set the fields
// that are null, update. Both in one transaction.

#include "Database.h"
#include "Dates.h"
#include "DosyaDuzelt.h"
#include "FieldTypes.h"
#include "Measured.h"
#include "Schema.h"
#include "SqliteEngine.h"

#include <cstdio>
#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

using namespace kuyum;

namespace {

void makeLines(const QString &path, int count)
{
    const std::unique_ptr<Database> db = createCompany(path);
    db->engine().run(u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < ?) "
                     "INSERT INTO SiparisD (SipnumD, SipModel) SELECT i / 8, 'M' || i FROM n"_s,
                     {count});
}

/// The neutral value as a record set takes it.
QVariant entered(FieldType type)
{
    return type == FieldType::Date ? QVariant(noDate()) : neutralValue(type);
}

void repairByRecord(Database &db)
{
    Transaction transaction(db);
    const TableDef table = db.tableDef(u"SiparisD"_s);
    Recordset lines = db.table(table.name);
    while (lines.next()) {
        lines.edit();
        for (const FieldDef &field : table.fields) {
            if (lines.isNull(field.name))
                lines.set(field.name, entered(field.type));
        }
        lines.update();
    }
    transaction.commit();
}

void repair(Database &db)
{
    Transaction transaction(db);
    DosyaDuzelt1(db, u"SiparisD"_s, {}, 0, 1);
    transaction.commit();
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const int count = arguments.value(1, u"100000"_s).toInt();
    const int runs = arguments.value(2, u"5"_s).toInt();
    const QTemporaryDir folder(QDir(QDir::currentPath()).filePath(u"bench_repair-XXXXXX"_s));
    const QString first = folder.filePath(u"once.kuyum"_s);
    makeLines(first, count);
    std::unique_ptr<Database> db;
    const auto fresh = [&] {
        const QString company = folder.filePath(u"atolye.kuyum"_s);
        db.reset();
        QFile::remove(company);
        QFile::copy(first, company);
        db = openCompany(company);
    };
    std::printf("%d lines\n", count);
    const double baseline = middleMilliseconds(
        runs, [&] { repairByRecord(*db); }, fresh);
    printMeasured(u"record by record"_s, baseline);
    printRatio(u"DosyaDuzelt1"_s,
               middleMilliseconds(
                   runs, [&] { repair(*db); }, fresh),
               baseline);
    return 0;
}
