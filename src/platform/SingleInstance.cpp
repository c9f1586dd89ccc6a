#include "SingleInstance.h"

#include "ProcessLock.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace kuyum {

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
    // A folder that cannot be written is no reason to refuse the work.
    m_otherCopyRuns = !takeProcessLock(m_lock) && m_lock.error() == QLockFile::LockFailedError;
}

} // namespace kuyum
