#include "ProcessLock.h"

#include <QDateTime>
#include <QDeadlineTimer>
#include <QFileInfo>
#include <QLockFile>
#include <QThread>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

/// More than a process needs to write its name into the file it has made.
constexpr int millisecondsToWrite = 1000;

/// What QLockFile adds to a lock's name for the file by which it guards the
/// removal of that lock, when it was abandoned.
constexpr auto guardEnding = ".rmlock"_L1;

/// Of the lock's file and its guards the first that has no name in it; empty
/// when each has.
QString namelessFile(QString path)
{
    for (QFileInfo file(path); file.isFile(); file.setFile(path)) {
        if (file.size() == 0)
            return path;
        path += guardEnding;
    }
    return {};
}

bool isAbandoned(const QString &path)
{
    const qint64 age = QFileInfo(path).lastModified().msecsTo(QDateTime::currentDateTime());
    return qAbs(age) > millisecondsToWrite; // a clock that was set back gives less than 0
}

/// A guard that an ended process left lies beside the lock for good. Nobody
/// needs one while the lock is held: it is not abandoned.
void removeGuards(QString path)
{
    do {
        path += guardEnding;
    } while (QFile::remove(path));
}

} // namespace

bool takeProcessLock(QLockFile &lock)
{
    constexpr int millisecondsBetween = 20;
    lock.setStaleLockTime(0);
    const QDeadlineTimer patience(3 * millisecondsToWrite);
    while (!lock.tryLock(0)) {
        const QString nameless = namelessFile(lock.fileName());
        if (lock.error() != QLockFile::LockFailedError || nameless.isEmpty() ||
            patience.hasExpired())
            return false;
        if (!isAbandoned(nameless) || !QFile::remove(nameless))
            QThread::msleep(millisecondsBetween);
    }
    removeGuards(lock.fileName());
    return true;
}

} // namespace kuyum
