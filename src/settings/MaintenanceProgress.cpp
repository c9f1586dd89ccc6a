#include "MaintenanceProgress.h"

using namespace Qt::StringLiterals;

QString copyBefore(Database &db, BackupKind kind, const MaintenanceProgress &progress)
{
    try {
        return makeBackup(db, kind, [&progress](int done, int total) {
            return !progress || progress(u"Yedek alınıyor"_s, done, total);
        });
    } catch (const BackupCancelled &) {
        throw MaintenanceStopped();
    }
}
