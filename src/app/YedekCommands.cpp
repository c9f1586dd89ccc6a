#include "Backup.h"
#include "CommandLine.h"
#include "Database.h"
#include "DatabaseCheck.h"
#include "LegacyPath.h"
#include "OutputPlace.h"
#include "ReadableDatabase.h"
#include "Schema.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

void refuseLegacy(const QString &path)
{
    if (isLegacyPath(path))
        throw DatabaseError(u"Yedek, aktarılmış dosyanın yedeğidir; onu yazın: "_s +
                            takenOverPath(path));
}

} // namespace

/// kuyum yedekle DATABASE: makes a backup and tells its path and its counts.
int yedekleCommand(const QStringList &arguments)
{
    if (arguments.size() != 1)
        throw WrongUsage();
    const QString database = writtenPath(arguments[0]);
    refuseLegacy(database);
    const std::unique_ptr<Database> db = Database::open(database, Database::Access::ReadOnly);
    if (!isCompany(*db))
        throw DatabaseError(u"Bu dosya bir şirketin veri tabanı değil: "_s + arguments[0]);
    const QString backup = makeBackup(*db, BackupKind::Manual);
    printLine(QDir::toNativeSeparators(backup));
    for (const QString &table : db->tableNames()) {
        Recordset rows = db->query(u"Select Count(*) As Adet From [%1]"_s.arg(table));
        rows.next();
        printLine(u"%1: %2 kayıt"_s.arg(table, rows.text(u"Adet")));
    }
    return 0;
}

/// kuyum geriyukle DATABASE BACKUP: puts a backup in the database's place.
int geriyukleCommand(const QStringList &arguments)
{
    const bool withoutDigest = arguments.value(2) == "--ozetsiz"_L1;
    if (arguments.size() != (withoutDigest ? 3 : 2))
        throw WrongUsage();
    const QString database = writtenPath(arguments[0]);
    const QString backup = writtenPath(arguments[1]);
    refuseLegacy(database);
    if (!withoutDigest && QFileInfo(backup).isFile() && !hasDigest(backup))
        throw DatabaseError(
            u"Bu yedeğin yanında özeti (.sha256) yok; alındığından beri değişmediği "
            "bilinemez. Yine de geri yüklemek için sona --ozetsiz yazın."_s);
    const QString kept = restoreBackup(database, backup);
    printLine(u"Yedek geri yüklendi: "_s + QDir::toNativeSeparators(arguments[0]));
    if (!kept.isEmpty())
        printLine(u"Önceki dosya burada: "_s + QDir::toNativeSeparators(kept));
    return 0;
}

/// kuyum denetle DATABASE: integrity, counts, dangling codes, empty fields.
int denetleCommand(const QStringList &arguments)
{
    if (arguments.size() != 1)
        throw WrongUsage();
    const ReadableDatabase db = openForReading(arguments[0]);
    const DatabaseCheck check = checkDatabase(*db);
    for (const QString &line : checkReport(check))
        printLine(line);
    return check.isSound() ? 0 : exitRefused;
}

} // namespace kuyum
