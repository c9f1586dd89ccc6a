#pragma once

#include <QDateTime>
#include <QList>
#include <QLockFile>
#include <QString>

namespace kuyum {

enum class BackupKind { Daily, Manual, BeforeRepair, BeforeRefresh, BeforeRestore };

struct BackupFile
{
    QString path;
    BackupKind kind;
    QDateTime made; ///< local time, to the second
    qint64 size;    ///< bytes
};

/// How a kind is called on screens: "Günlük".
QString backupKindText(BackupKind kind);

/// A size as it is told on screens: "12.3 MB".
QString backupSizeText(qint64 bytes);

/// "yedek" beside the database.
QString backupFolder(const QString &database);

/// The database's backups, newest first; those of another database in the same
/// folder are not among them. Only their names are looked at: checkBackup()
/// tells whether one is sound.
QList<BackupFile> backups(const QString &database);

/// Whether the digest that was made with the backup lies beside it. Without it
/// a changed text can go unnoticed: the user is to be asked before a restore.
bool hasDigest(const QString &backup);

/// The folder of a database's backups while this process works in it: one at a
/// time. What a process that was ended left there half done is removed.
class BackupPlace
{
public:
    /// Makes the folder when it is not there. Throws DatabaseError.
    explicit BackupPlace(const QString &database);

    /// A path for a new backup, that no file has yet; with BackupKind's word or
    /// another one.
    QString freePath(const QString &word) const;
    QString freePath(BackupKind kind) const;

    /// Removes what is older than two weeks, but never the newest ones.
    void prune() const;

private:
    void removeLeftovers() const;

    QString m_database;
    QString m_folder;
    QLockFile m_lock;
};

} // namespace kuyum
