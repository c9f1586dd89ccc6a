#include "Backup.h"
#include "Database.h"
#include "Schema.h"

#include <cstdio>
#include <QCoreApplication>

using namespace Qt::StringLiterals;

using namespace kuyum;

static void tell(const QString &line)
{
    std::printf("%s\n", qPrintable(line));
    std::fflush(stdout);
}

/// backup_work DATABASE            makes a backup
/// backup_work DATABASE BACKUP     restores one
/// Tells "ready" before and what came of it after; meanwhile it may be ended.
int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    try {
        if (arguments.size() > 2) {
            tell(u"ready"_s);
            tell(restoreBackup(arguments.at(1), arguments.at(2)));
        } else {
            const std::unique_ptr<Database> db = openCompany(arguments.at(1));
            tell(u"ready"_s);
            tell(makeBackup(*db, BackupKind::Manual));
        }
    } catch (const DatabaseError &error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    return 0;
}
