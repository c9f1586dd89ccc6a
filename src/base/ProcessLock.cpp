#include "ProcessLock.h"

#include <QDateTime>
#include <QDeadlineTimer>
#include <QFileInfo>
#include <QLockFile>
#include <QThread>

namespace {

/// More than a process needs to write its name into the file it has made.
constexpr int millisecondsToWrite = 1000;

bool isNameless(const QString &path)
{
    const QFileInfo file(path);
    return file.isFile() && file.size() == 0;
}

bool isAbandoned(const QString &path)
{
    const qint64 age = QFileInfo(path).lastModified().msecsTo(QDateTime::currentDateTime());
    return qAbs(age) > millisecondsToWrite; // a clock that was set back gives less than 0
}

} // namespace

bool takeProcessLock(QLockFile &lock)
{
    constexpr int millisecondsBetween = 20;
    lock.setStaleLockTime(0);
    const QDeadlineTimer patience(3 * millisecondsToWrite);
    while (!lock.tryLock(0)) {
        const QString path = lock.fileName();
        if (lock.error() != QLockFile::LockFailedError || !isNameless(path) ||
            patience.hasExpired())
            return false;
        if (!isAbandoned(path) || !QFile::remove(path))
            QThread::msleep(millisecondsBetween);
    }
    return true;
}
