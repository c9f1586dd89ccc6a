#include "Backup.h"
#include "BackupCopy.h"
#include "CompanyLock.h"
#include "Database.h"
#include "OutputPlace.h"
#include "Schema.h"
#include "SqliteEngine.h"
#include "WholeFile.h"

#include <filesystem>
#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

/// What the engine may leave beside a database and plays into whatever file
/// bears the database's name.
constexpr QLatin1StringView companionEndings[] = {"-journal"_L1, "-wal"_L1, "-shm"_L1};

/// Copies a file to a place of no meaning, whole and on the disk.
void copyFile(const QString &source, const QString &target, const WorkStage &stage)
{
    QFile file(source);
    if (!file.open(QIODevice::ReadOnly))
        throw DatabaseError(u"Dosya okunamıyor: "_s + QDir::toNativeSeparators(source));
    const auto size = double(qMax<qint64>(1, file.size()));
    try {
        const WholeFile copy(u"Veri tabanı"_s, target, WholeFile::Readers::OwnerOnly);
        copy.write(file, [&](qint64 written) {
            if (!stage.tell(qMin(1.0, double(written) / size)))
                throw Cancelled();
        });
    } catch (const DatabaseError &) {
        throw;
    } catch (const std::runtime_error &error) {
        throw DatabaseError(QString::fromUtf8(error.what()));
    }
}

/// A backup comes into the place of a company only, or where there is nothing.
void requireReplaceable(const QString &database)
{
    const auto refuse = [&database](const QString &reason) {
        throw DatabaseError(u"Buraya yedek geri yüklenemez: %1\n%2"_s.arg(
            QDir::toNativeSeparators(database), reason));
    };
    const QString refusal = placeRefusal(database);
    if (!refusal.isEmpty())
        refuse(refusal);
    // One that is too damaged to be known is known by its backups.
    if (QFileInfo::exists(database) && !holdsDatabase(database) && backups(database).isEmpty())
        refuse(
            u"Bu dosya bir şirketin veri tabanı değil. Yerine yedek konacaksa önce başka bir yere "
            "taşıyın."_s);
}

/// Keeps a damaged database as it is, with the journal that may belong to it.
QString keepDamaged(const BackupPlace &place, const QString &database, const WorkStage &stage)
{
    const QString path = place.freePath(u"bozuk"_s);
    const auto keep = [&](QLatin1StringView ending, const WorkStage &part) {
        copyFile(database + ending, path + ending + u".part"_s, part);
        if (!QFile::rename(path + ending + u".part"_s, path + ending))
            throw DatabaseError(u"Bozuk dosya saklanamadı: "_s + QDir::toNativeSeparators(path));
    };
    for (const QLatin1StringView ending : companionEndings) {
        if (QFileInfo::exists(database + ending))
            keep(ending, stage.part(0, 0));
    }
    keep({}, stage);
    return path;
}

QString keepCurrent(const BackupPlace &place, const QString &database, const WorkStage &stage)
{
    if (!QFileInfo::exists(database))
        return {};
    try {
        // Takes back a save that was cut off, too.
        const std::unique_ptr<Database> db = Database::open(database);
        // A slip in what was typed, and every company would be gone.
        if (db->hasTable(u"SirketKayit"_s) && !isCompany(*db))
            throw DatabaseError(u"Bu, şirketlerin kayıt dosyası; yerine bir şirketin yedeği "
                                "konamaz: "_s +
                                QDir::toNativeSeparators(database));
        // One that has lost a table is a company still.
        if (!db->hasTable(u"SiparisB"_s) && !db->hasTable(u"SiparisD"_s))
            throw DatabaseError(
                u"Bu dosya bir şirketin veri tabanı değil; yerine yedek konamaz: "_s +
                QDir::toNativeSeparators(database));
        // A save is short: who holds the file for longer works with it.
        db->engine().run(u"PRAGMA busy_timeout = 500"_s);
        db->engine().run(u"BEGIN EXCLUSIVE"_s);
        db->engine().run(u"ROLLBACK"_s);
        return copyToBackup(*db, place.freePath(BackupKind::BeforeRestore), stage);
    } catch (const DatabaseError &error) {
        if (error.cause() != DatabaseError::Cause::FileDamaged)
            throw;
    }
    return keepDamaged(place, database, stage);
}

/// Copies that an ended process left beside the database.
void removeLeftovers(const QString &part)
{
    const QFileInfo file(part);
    QDir folder = file.dir();
    for (const QString &name : folder.entryList(QDir::Files | QDir::Hidden)) {
        if (name.startsWith(file.fileName()))
            folder.remove(name);
    }
}

/// What comes into the place belongs to who put it there.
void refuseToLockOut(const QString &part, const QString &database)
{
    constexpr QFile::Permissions others =
        QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
    const QFileInfo present(database);
    if (present.exists() && present.ownerId() != QFileInfo(part).ownerId() &&
        !(QFile::permissions(database) & others))
        throw DatabaseError(
            u"Bu veri tabanını yalnız sahibi (%1) açabilir; geri yüklemeyi o kullanıcıyla "
            "yapın: %2"_s.arg(present.owner(), QDir::toNativeSeparators(database)));
}

void putInPlace(const QString &part, const QString &database)
{
    for (const QLatin1StringView ending : companionEndings) {
        const QString companion = database + ending;
        if (QFileInfo::exists(companion) && !QFile::remove(companion))
            throw DatabaseError(u"Yarım kalmış kaydın dosyası silinemiyor: "_s +
                                QDir::toNativeSeparators(companion));
    }
    // Colleagues who may write the one may write the other.
    if (QFileInfo::exists(database))
        QFile::setPermissions(part, QFile::permissions(database));
    // QFile renames over no file, and removing it first would leave none.
    std::error_code failed;
    std::filesystem::rename(QFileInfo(part).filesystemAbsoluteFilePath(),
                            QFileInfo(database).filesystemAbsoluteFilePath(), failed);
    if (failed) {
        throw DatabaseError(u"Yedek, veri tabanının yerine konamadı; dosya başka bir program "
                            "tarafından kullanılıyor olabilir: "_s +
                            QDir::toNativeSeparators(database));
    }
}

} // namespace

QString restoreBackup(const QString &database, const QString &backup, const WorkProgress &progress)
{
    const WorkStage stage(progress, 0, 1000);
    requireReplaceable(database);
    if (QFileInfo(resolvedPlace(database)) == QFileInfo(resolvedPlace(backup)))
        throw DatabaseError(u"Yedek, yerine konacağı dosyanın kendisi."_s);
    const BackupPlace place(database);
    const CompanyLock alone(database, CompanyLock::Kind::Alone);
    // A link to a company stays one: the file that it leads to is replaced.
    const QString file = resolvedPlace(database);
    const QString part = file + u".geriyukle"_s;
    removeLeftovers(part);
    try {
        copyFile(backup, part, stage.part(0, 0.2));
        refuseToLockOut(part, file);
        // What comes into the place is what is checked.
        checkBackupFile(part, backup, stage.part(0.2, 0.5));
        const QString kept = keepCurrent(place, file, stage.part(0.5, 1));
        putInPlace(part, file);
        return kept;
    } catch (...) {
        removeLeftovers(part);
        throw;
    }
}

} // namespace kuyum
