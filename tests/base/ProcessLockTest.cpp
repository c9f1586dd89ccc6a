#include "ProcessLock.h"
#include "TestRegistry.h"

#include <QLockFile>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;

/// A lock that no living process holds is no obstacle.
class ProcessLockTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anAbandonedFileWithoutANameCountsForNothing();
    void aHeldLockCountsHoweverOld();
};

static void makeOld(const QString &path)
{
    QFile file(path);
    QVERIFY(file.open(QFile::ReadWrite));
    QVERIFY(file.setFileTime(QDateTime::currentDateTime().addDays(-1),
                             QFileDevice::FileModificationTime));
}

void ProcessLockTest::anAbandonedFileWithoutANameCountsForNothing()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a.kilit"_s);
    QFile empty(path);
    QVERIFY(empty.open(QFile::WriteOnly));
    empty.close();
    makeOld(path);
    QLockFile lock(path);
    QVERIFY(takeProcessLock(lock));
}

void ProcessLockTest::aHeldLockCountsHoweverOld()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a.kilit"_s);
    QLockFile held(path);
    QVERIFY(takeProcessLock(held));
    makeOld(path);
    QLockFile second(path);
    QVERIFY(!takeProcessLock(second));
}

KUYUM_TEST(ProcessLockTest)
#include "ProcessLockTest.moc"
