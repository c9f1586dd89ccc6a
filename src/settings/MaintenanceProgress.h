#pragma once

#include "Backup.h"

#include <functional>

namespace kuyum {

/// What is worked on (a table's name, or the copy that is made before), and how
/// much of how much is done. False stops the work; nothing is changed then.
using MaintenanceProgress = std::function<bool(const QString &what, int done, int total)>;

/// That the user stopped the work, and nothing was changed.
Cancelled stoppedUnchanged();

/// Tells the progress; throws Cancelled when the user stopped the work.
void tellProgress(const MaintenanceProgress &progress, const QString &what, int done, int total);

/// Makes the checked copy of the database that repair and refresh begin with,
/// and returns its path.
QString copyBefore(Database &db, BackupKind kind, const MaintenanceProgress &progress);

} // namespace kuyum
