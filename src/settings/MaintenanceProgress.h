#pragma once

#include "Backup.h"
#include "DatabaseError.h"

#include <functional>

/// What is worked on (a table's name, or the copy that is made before), and how
/// much of how much is done. False stops the work; nothing is changed then.
using MaintenanceProgress = std::function<bool(const QString &what, int done, int total)>;

/// Thrown when the user stopped.
class MaintenanceStopped : public DatabaseError
{
public:
    MaintenanceStopped()
        : DatabaseError(QStringLiteral("İşlem durduruldu, hiçbir şey değiştirilmedi."))
    {
    }
};

/// Tells the progress, and ends the work when the user stopped it.
inline void tellProgress(const MaintenanceProgress &progress, const QString &what, int done,
                         int total)
{
    if (progress && !progress(what, done, total))
        throw MaintenanceStopped();
}

/// Makes the checked copy of the database that repair and refresh begin with,
/// and returns its path.
QString copyBefore(Database &db, BackupKind kind, const MaintenanceProgress &progress);
