#include "ProcessLock.h"

#include <QDateTime>
#include <QFileInfo>
#include <QLockFile>

/// A process that ends between making the file and writing its own name into it
/// leaves an empty one, which no process can ever be found dead for.
static bool removeNameless(const QString &path)
{
    constexpr int secondsToWrite = 2;
    const QFileInfo file(path);
    return file.isFile() && file.size() == 0 &&
           file.lastModified().secsTo(QDateTime::currentDateTime()) > secondsToWrite &&
           QFile::remove(path);
}

bool takeProcessLock(QLockFile &lock)
{
    lock.setStaleLockTime(0);
    if (lock.tryLock(0))
        return true;
    return lock.error() == QLockFile::LockFailedError && removeNameless(lock.fileName()) &&
           lock.tryLock(0);
}
