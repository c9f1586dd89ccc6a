#include "ProcessLock.h"
#include "TestRegistry.h"

#include <QLockFile>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

/// A lock that no living process holds is no obstacle.
class ProcessLockTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anAbandonedFileWithoutANameCountsForNothing_data();
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

void ProcessLockTest::anAbandonedFileWithoutANameCountsForNothing_data()
{
    QTest::addColumn<QByteArray>("holder");
    QTest::newRow("while the lock was made") << QByteArray();
    // A process that is gone, whose lock the next one was about to remove.
    QTest::newRow("while an old lock was removed") << QByteArray("999999999\nkuyum\n");
}

void ProcessLockTest::anAbandonedFileWithoutANameCountsForNothing()
{
    QFETCH(QByteArray, holder);
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a.kilit"_s);
    const QString empty = holder.isEmpty() ? path : path + u".rmlock"_s;
    for (const QString &name : {path, empty}) {
        QFile file(name);
        QVERIFY(file.open(QFile::WriteOnly));
        file.write(name == empty ? QByteArray() : holder);
        file.close();
        makeOld(name);
    }
    QLockFile lock(path);
    QVERIFY(takeProcessLock(lock));
    lock.unlock();
    QVERIFY(QDir(folder.path()).isEmpty());
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

} // namespace kuyum

#include "ProcessLockTest.moc"
