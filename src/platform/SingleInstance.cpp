#include "SingleInstance.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

QString SingleInstance::defaultLockPath()
{
    // A folder of this user alone, where writing costs nothing and which a
    // restart of the machine empties.
#ifdef Q_OS_WIN
    constexpr auto place = QStandardPaths::TempLocation;
#else
    constexpr auto place = QStandardPaths::RuntimeLocation;
#endif
    return QStandardPaths::writableLocation(place) + "/kuyum.lock"_L1;
}

SingleInstance::SingleInstance(const QString &lockPath) : m_lock(lockPath)
{
    QDir().mkpath(QFileInfo(lockPath).path());
    // Only a dead process makes the lock stale, never its age.
    m_lock.setStaleLockTime(0);
    // A folder that cannot be written is no reason to refuse the work.
    m_otherCopyRuns = !m_lock.tryLock(0) && m_lock.error() == QLockFile::LockFailedError;
}
