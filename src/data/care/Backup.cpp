#include "Backup.h"

#include "BackupCopy.h"
#include "Database.h"
#include "FileDigest.h"
#include "Integrity.h"
#include "Schema.h"
#include "SqliteEngine.h"

#include <algorithm>
#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

/// Holds the database as it is: reading goes on, writing waits.
class ReadHold
{
public:
    explicit ReadHold(const SqliteEngine &engine) : m_engine(engine)
    {
        if (sqlite3_get_autocommit(engine.handle()) == 0)
            throw DatabaseError(u"Yarım duran bir işlem varken yedek alınamaz."_s);
        m_engine.run(u"BEGIN"_s);
        try {
            // The lock comes with the first reading.
            m_engine.run(u"SELECT count(*) FROM sqlite_master"_s);
        } catch (...) {
            end();
            throw;
        }
    }
    ~ReadHold() { end(); }
    ReadHold(const ReadHold &) = delete;
    ReadHold &operator=(const ReadHold &) = delete;

private:
    void end()
    {
        try {
            // Nothing was written; a COMMIT would repeat what reading found.
            m_engine.run(u"ROLLBACK"_s);
        } catch (const DatabaseError &error) {
            qWarning() << "end of reading:" << error.text();
        }
    }

    const SqliteEngine &m_engine;
};

void copyPages(const SqliteEngine &source, const SqliteEngine &target, const WorkStage &stage)
{
    constexpr int pagesAtATime = 500;
    const auto finish = [](sqlite3_backup *backup) { sqlite3_backup_finish(backup); };
    std::unique_ptr<sqlite3_backup, decltype(finish)> backup(
        sqlite3_backup_init(target.handle(), "main", source.handle(), "main"), finish);
    if (backup == nullptr)
        target.fail();
    int result = SQLITE_OK;
    while (result == SQLITE_OK) {
        result = sqlite3_backup_step(backup.get(), pagesAtATime);
        const int total = qMax(1, sqlite3_backup_pagecount(backup.get()));
        if (!stage.tell(1 - double(sqlite3_backup_remaining(backup.get())) / total))
            throw Cancelled();
    }
    if (sqlite3_backup_finish(backup.release()) != SQLITE_OK)
        target.fail();
}

/// Copies the database as it is at one moment; gives how many rows it had then.
QMap<QString, qint64> copyDatabase(const Database &db, const QString &part, const WorkStage &stage)
{
    const ReadHold hold(db.engine());
    const QMap<QString, qint64> rows = rowCounts(db.engine());
    const SqliteEngine target(part, SqliteEngine::Mode::Create);
    copyPages(db.engine(), target, stage);
    // One single file, also of a database that another program gave a log.
    target.run(u"PRAGMA journal_mode = DELETE"_s);
    return rows;
}

void proveCopy(const Database &db, const QString &part, const QMap<QString, qint64> &rows,
               const WorkStage &stage)
{
    QStringList faults;
    {
        const SqliteEngine copy(part, SqliteEngine::Mode::ReadOnly);
        faults = integrityFaults(copy, stage);
        if (faults.isEmpty() && rowCounts(copy) != rows)
            throw DatabaseError(u"Yedekteki kayıt sayıları veri tabanındakilerle aynı değil."_s);
    }
    if (faults.isEmpty())
        return;
    // Whose fault is it? A copy of a damaged database is as damaged.
    const QStringList own = integrityFaults(db.engine(), stage);
    if (own.isEmpty())
        throw DatabaseError(
            u"Yedek denetimden geçmedi (%1). Disk bozuk olabilir."_s.arg(faults[0]));
    throw DatabaseError(u"Veri tabanı dosyası bozuk, yedeği alınmadı. (%1)"_s.arg(own[0]),
                        DatabaseError::Cause::FileDamaged);
}

void removePart(const QString &part)
{
    for (const QString &ending : {u"-journal"_s, u"-wal"_s, u"-shm"_s})
        QFile::remove(part + ending);
    QFile::remove(part);
}

} // namespace

QString copyToBackup(const Database &db, const QString &path, const WorkStage &stage)
{
    const QString part = path + u".part"_s;
    try {
        const QMap<QString, qint64> rows = copyDatabase(db, part, stage.part(0, 0.4));
        proveCopy(db, part, rows, stage.part(0.4, 0.8));
        // The digest first: a backup without one would pass for a foreign file.
        writeDigest(fileDigest(part, stage.part(0.8, 1)), path);
        if (!QFile::rename(part, path))
            throw DatabaseError(u"Yedek yerine konamadı: "_s + QDir::toNativeSeparators(path));
    } catch (...) {
        removePart(part);
        QFile::remove(digestPath(path));
        throw;
    }
    return path;
}

QString makeBackup(Database &db, BackupKind kind, const WorkProgress &progress)
{
    const BackupPlace place(db.path());
    const QString path = copyToBackup(db, place.freePath(kind), {progress, 0, 1000});
    place.prune();
    return path;
}

void checkBackupFile(const QString &file, const QString &backup, const WorkStage &stage)
{
    if (hasDigest(backup) && fileDigest(file, stage.part(0, 0.4)) != readDigest(backup))
        throw DatabaseError(u"Yedek, alındığından beri değişmiş ya da bozulmuş."_s);
    // Opening the backup would play it in; a copy of the file alone is half a
    // save.
    if (QFileInfo::exists(backup + u"-journal"_s) || QFileInfo::exists(backup + u"-wal"_s))
        throw DatabaseError(u"Yedeğin yanında yarım kalmış bir kaydın dosyası duruyor; bu dosya "
                            "bütün bir yedek değil."_s);
    const std::unique_ptr<Database> db = Database::open(file, Database::Access::ReadOnly);
    const QStringList faults = integrityFaults(db->engine(), stage.part(0.4, 1));
    if (!faults.isEmpty())
        throw DatabaseError(u"Yedek bozuk. (%1)"_s.arg(faults[0]));
    if (db->schemaVersion() > currentSchemaVersion)
        throw DatabaseError(u"Yedek, programın daha yeni bir sürümü ile yazılmış."_s);
    if (!isCompany(*db))
        throw DatabaseError(u"Bu dosya bir şirketin veri tabanı değil."_s);
}

void checkBackup(const QString &backup, const WorkProgress &progress)
{
    try {
        checkBackupFile(backup, backup, {progress, 0, 1000});
    } catch (const DatabaseError &error) {
        throw DatabaseError(u"%1\n%2"_s.arg(QDir::toNativeSeparators(backup), error.text()));
    }
}

std::optional<BackupFile> newestGoodBackup(const QString &database, const WorkProgress &progress)
{
    QList<BackupFile> candidates = backups(database);
    // A clock that ran ahead dated one later than all that were made after it.
    std::stable_partition(candidates.begin(), candidates.end(),
                          [now = QDateTime::currentDateTime()](const BackupFile &backup) {
                              return backup.made <= now;
                          });
    for (const BackupFile &backup : candidates) {
        try {
            checkBackup(backup.path, progress);
            return backup;
        } catch (const DatabaseError &) {
            // An older one may be sound.
        }
    }
    return std::nullopt;
}

} // namespace kuyum
