#include "EmptyDatabase.h"

#include "CompanyLock.h"
#include "LegacyPath.h"
#include "Oturum.h"
#include "OutputPlace.h"
#include "RegistryPaths.h"
#include "RegistryStore.h"
#include "Schema.h"

#include <algorithm>
#include <filesystem>
#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

/// What the new database is made after.
struct Plan
{
    QList<TableDef> tables;
    int version = 0;
};

Plan planOf(const Database &db)
{
    Plan plan{{}, db.schemaVersion()};
    for (const QString &name : db.tableNames())
        plan.tables.append(db.tableDef(name));
    return plan;
}

bool sameFile(const QString &a, const QString &b)
{
    const QString known = QFileInfo(a).canonicalFilePath();
    return !known.isEmpty() && known == QFileInfo(b).canonicalFilePath();
}

/// An empty one that was made here before may go; what somebody entered may not.
bool hasRows(const QString &path)
{
    const std::unique_ptr<Database> db = Database::open(path, Database::Access::ReadOnly);
    const QStringList tables = db->tableNames();
    return std::any_of(tables.begin(), tables.end(),
                       [&db](const QString &table) { return db->rowCount(table) > 0; });
}

void refuseCompanies(const Oturum &oturum, const QString &registryFile, const QString &target)
{
    const std::unique_ptr<Database> registry =
        Database::open(registryFile, Database::Access::ReadOnly);
    const RegistryPaths paths(oturum.kayitYolu);
    for (const Sirket &company : RegistryStore(*registry).companies()) {
        const QString path = paths.resolveDatabase(company.DataYolu);
        if (sameFile(target, path) || sameFile(target, takenOverPath(path))) {
            throw DatabaseError(
                u"Bu dosya bir şirketin veri tabanı (%1); başka bir ad verin."_s.arg(
                    company.Srkadi));
        }
    }
}

void refuseTaken(const Oturum &oturum, const QString &target)
{
    if (sameFile(target, oturum.Veritabani->path()))
        throw DatabaseError(u"Bu dosya, çalışılan veri tabanının kendisi; başka bir ad verin."_s);
    // Opened again, it would be taken for a legacy file.
    if (isLegacyPath(target))
        throw DatabaseError(u"Yeni dosyaya .kuyum ile biten bir ad verin."_s);
    const QString refusal = placeRefusal(target);
    if (!refusal.isEmpty())
        throw DatabaseError(refusal + u'\n' + QDir::toNativeSeparators(target),
                            DatabaseError::Cause::FileMissing, DatabaseError::cannotOpen);
    const QString registryFile = takenOverPath(oturum.kayitYolu);
    if (sameFile(target, registryFile))
        throw DatabaseError(u"Bu dosya şirketlerin kayıt dosyası; başka bir ad verin."_s);
    // Its journal would be taken for the new file's own.
    for (const QString &beside : {u"-journal"_s, u"-wal"_s}) {
        if (QFileInfo::exists(target + beside))
            throw DatabaseError(u"Bu dosya şu anda kullanılıyor ya da son kaydı yarım kalmış; "
                                "başka bir ad verin."_s);
    }
    if (QFileInfo::exists(registryFile))
        refuseCompanies(oturum, registryFile, target);
    if (holdsDatabase(target) && hasRows(target))
        throw DatabaseError(
            u"Bu dosya içinde kayıtlar olan bir veri tabanı; başka bir ad verin."_s);
}

void makeTables(const QString &path, const Plan &plan, const MaintenanceProgress &progress)
{
    const std::unique_ptr<Database> db = Database::create(path);
    Transaction transaction(*db);
    for (qsizetype i = 0; i < plan.tables.size(); ++i) {
        tellProgress(progress, plan.tables[i].name, int(i), int(plan.tables.size()));
        db->createTable(plan.tables[i]);
    }
    db->setSchemaVersion(plan.version);
    transaction.commit();
}

bool sameDefinition(const TableDef &a, const TableDef &b)
{
    const auto sameField = [](const FieldDef &x, const FieldDef &y) {
        return x.name == y.name && x.declaration() == y.declaration() &&
               x.defaultValue == y.defaultValue;
    };
    const auto sameIndex = [](const IndexDef &x, const IndexDef &y) {
        return x.name == y.name && x.fields == y.fields && x.unique == y.unique &&
               x.primary == y.primary;
    };
    return a.name == b.name &&
           std::equal(a.fields.begin(), a.fields.end(), b.fields.begin(), b.fields.end(),
                      sameField) &&
           std::equal(a.indexes.begin(), a.indexes.end(), b.indexes.begin(), b.indexes.end(),
                      sameIndex);
}

/// Reads it back from the disk.
void check(const QString &path, const Plan &plan)
{
    const std::unique_ptr<Database> db = Database::open(path, Database::Access::ReadOnly);
    const Plan made = planOf(*db);
    if (made.version != plan.version ||
        !std::equal(made.tables.begin(), made.tables.end(), plan.tables.begin(), plan.tables.end(),
                    sameDefinition))
        throw DatabaseError(u"Yeni veri tabanı denetlenirken farklı bulundu, yerine konmadı."_s);
}

void build(const QString &target, const Plan &plan, const MaintenanceProgress &progress)
{
    const QString part = target + u".yapim"_s;
    const auto removePart = [&part] {
        QFile::remove(part + u"-journal"_s);
        QFile::remove(part);
    };
    removePart(); // one that a program left which was ended
    try {
        makeTables(part, plan, progress);
        check(part, plan);
        std::error_code failure;
        std::filesystem::rename(part.toStdU16String(), target.toStdU16String(), failure);
        if (failure) {
            throw DatabaseError(u"Yeni veri tabanı yerine konamadı: "_s +
                                    QDir::toNativeSeparators(target),
                                DatabaseError::Cause::FileMissing, DatabaseError::cannotOpen);
        }
    } catch (...) {
        removePart();
        throw;
    }
}

} // namespace

void makeEmptyDatabase(Oturum &oturum, const QString &place, const MaintenanceProgress &progress)
{
    const QString target = resolvedPlace(place);
    refuseTaken(oturum, target);
    std::unique_ptr<CompanyLock> alone;
    if (QFileInfo::exists(target))
        alone = std::make_unique<CompanyLock>(target, CompanyLock::Kind::Alone);
    const QString company = oturum.Veritabani->path();
    const Plan plan = planOf(*oturum.Veritabani);
    const auto reopen = [&] {
        try {
            oturum.Veritabani = openCompany(company);
        } catch (const DatabaseError &error) {
            throw CompanyLost(error.text(), error.cause(), error.number());
        }
    };
    oturum.Veritabani.reset();
    try {
        build(target, plan, progress);
    } catch (...) {
        reopen();
        throw;
    }
    reopen();
}

} // namespace kuyum
