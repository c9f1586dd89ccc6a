#include "MaintenanceProgress.h"

using namespace Qt::StringLiterals;

namespace kuyum {

Cancelled stoppedUnchanged()
{
    return Cancelled(u"İşlem durduruldu, hiçbir şey değiştirilmedi."_s);
}

void tellProgress(const MaintenanceProgress &progress, const QString &what, int done, int total)
{
    if (progress && !progress(what, done, total))
        throw stoppedUnchanged();
}

QString copyBefore(Database &db, BackupKind kind, const MaintenanceProgress &progress)
{
    try {
        return makeBackup(db, kind, [&progress](int done, int total) {
            return !progress || progress(u"Yedek alınıyor"_s, done, total);
        });
    } catch (const Cancelled &) {
        throw stoppedUnchanged();
    }
}

} // namespace kuyum
