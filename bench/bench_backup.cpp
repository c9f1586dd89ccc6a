// bench_backup DATABASE [MEGABYTES [RUNS]]: backup and restore of a company
// against a plain copy of its file plus the engine's integrity check of the
// copy. The company is copied first and its order lines doubled until it has
// that size.

#include "Backup.h"
#include "Database.h"
#include "Integrity.h"
#include "Measured.h"
#include "SqliteEngine.h"

#include <cstdio>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

using namespace kuyum;

namespace {

void grow(const QString &path, qint64 bytes)
{
    const std::unique_ptr<Database> db = Database::open(path);
    while (QFileInfo(path).size() < bytes) {
        db->execute(u"Insert Into SiparisD (SipnumD, SipSatir, SipModel, SipUruntip, Siprenk, "
                    "SipAck, SipAdet, Drm1, Drm2, Trhbas, Trhbit) Select SipnumD, SipSatir, "
                    "SipModel, SipUruntip, Siprenk, SipAck, SipAdet, Drm1, Drm2, Trhbas, Trhbit "
                    "From SiparisD"_s);
    }
}

void copyAndCheck(const QString &source, const QString &target)
{
    QFile::remove(target);
    QFile::copy(source, target);
    const std::unique_ptr<Database> copy = Database::open(target, Database::Access::ReadOnly);
    if (!integrityFaults(copy->engine()).isEmpty())
        throw DatabaseError(u"the company is damaged"_s);
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 2)
        return 2;
    const int runs = arguments.value(3, u"5"_s).toInt();
    const QTemporaryDir folder(QDir(QDir::currentPath()).filePath(u"bench_backup-XXXXXX"_s));
    const QString company = folder.filePath(u"atolye.kuyum"_s);
    QFile::copy(arguments[1], company);
    constexpr qint64 megabyte = 1 << 20;
    grow(company, arguments.value(2).toLongLong() * megabyte);
    std::printf("%.1f MB\n", double(QFileInfo(company).size()) / megabyte);

    const std::unique_ptr<Database> db = Database::open(company);
    const double baseline =
        middleMilliseconds(runs, [&] { copyAndCheck(company, folder.filePath(u"kopya.kuyum"_s)); });
    printMeasured(u"plain copy and integrity check"_s, baseline);
    QString backup;
    const auto clear = [&] { QDir(backupFolder(company)).removeRecursively(); };
    printRatio(u"backup"_s,
               middleMilliseconds(
                   runs, [&] { backup = makeBackup(*db, BackupKind::Manual); }, clear),
               baseline);
    printRatio(u"check of a backup"_s, middleMilliseconds(runs, [&] { checkBackup(backup); }),
               baseline);
    const QString other = folder.filePath(u"baska.kuyum"_s);
    printRatio(u"restore over a sound one"_s,
               middleMilliseconds(
                   runs, [&] { restoreBackup(other, backup); },
                   [&] {
                       QFile::remove(other);
                       QFile::copy(company, other);
                   }),
               baseline);
    printMeasured(u"quick check, unlimited"_s,
                  middleMilliseconds(runs, [&] { refuseDamaged(*db, std::chrono::hours(1)); }));
    printMeasured(u"quick check at opening"_s, middleMilliseconds(runs, [&] {
                      refuseDamaged(*db, std::chrono::milliseconds(300));
                  }));
    return 0;
}
