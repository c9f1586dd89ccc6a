#pragma once

#include "WorkStage.h"

#include <QString>

namespace kuyum {

class Database;

/// What making and restoring backups share.

/// Copies the open database into a checked backup of that name, or leaves
/// nothing. Its BackupPlace must be held.
QString copyToBackup(const Database &db, const QString &path, const WorkStage &stage);

/// checkBackup() of a file that should be, byte by byte, the backup: itself or
/// a copy.
void checkBackupFile(const QString &file, const QString &backup, const WorkStage &stage);

} // namespace kuyum
