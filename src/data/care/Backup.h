#pragma once

#include "BackupFiles.h"
#include "Cancelled.h"
#include "DatabaseError.h"
#include "WorkStage.h"

#include <optional>

namespace kuyum {

class Database;

/// Copies the open database, through this very connection, into the folder of
/// its backups, and checks the copy: the file appears under a backup's name
/// only when it is sound and whole and its digest lies beside it. Then removes
/// the backups that have grown old. Returns the path.
///
/// Throws DatabaseError; its cause is FileDamaged when the database itself is
/// damaged. No transaction may be open on the connection.
QString makeBackup(Database &db, BackupKind kind, const WorkProgress &progress = {});

/// Throws DatabaseError with the reason, in Turkish, when this is no sound
/// backup of a company that this program can open: a byte has changed since it
/// was made (where its digest is there, see hasDigest), it is damaged, it is
/// another kind of database, a newer program wrote it.
void checkBackup(const QString &backup, const WorkProgress &progress = {});

/// The newest backup of the database that passes its check; nothing when there
/// is none.
std::optional<BackupFile> newestGoodBackup(const QString &database,
                                           const WorkProgress &progress = {});

/// Puts the backup in the place of the database, which nobody may have open
/// (this process neither, see CompanyLock), and which is a company or nothing.
/// A link is followed. The backup is checked first, and what it replaces
/// is kept: a sound database as a backup, a damaged one byte by byte. At every
/// moment the database is wholly the old or wholly the restored one. Returns
/// where the replaced one was kept; empty when there was none.
QString restoreBackup(const QString &database, const QString &backup,
                      const WorkProgress &progress = {});

} // namespace kuyum
