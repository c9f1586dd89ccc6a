#include "TestRegistry.h"

#include "LegacyPath.h"
#include "LegacySample.h"
#include "TakeOver.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

class LegacyPathTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void neighboursOfLegacyFiles()
    {
        QCOMPARE(takenOverPath(u"c/Atolye.MDB"_s), u"c/Atolye.kuyum"_s);
        QCOMPARE(takenOverPath(u"c/a.mdb.kuyum"_s), u"c/a.mdb.kuyum"_s);
        QCOMPARE(ensureTakenOver(u"c/a.kuyum"_s).path, u"c/a.kuyum"_s);
    }

    void takenOverOnceAndLaterChangesTold()
    {
        LegacySample sample(u"sirket.mdb"_s);
        if (!sample.isPresent())
            QSKIP("no example files");
        QCOMPARE(sample.refusal(), QString());
        const QString neighbour = takenOverPath(sample.source());
        int runs = 0;
        const auto watch = [&runs](TakeOver &) { ++runs; };
        for (int time = 0; time < 2; ++time) {
            const OpenablePath openable = ensureTakenOver(sample.source(), watch);
            QCOMPARE(openable.path, neighbour);
            QVERIFY(!openable.legacyChanged);
        }
        QCOMPARE(runs, 1);

        // Another date alone is no change; another byte is.
        QFile source(sample.source());
        QVERIFY(source.open(QFile::ReadWrite));
        const QDateTime later = QDateTime::currentDateTime().addDays(1);
        QVERIFY(source.setFileTime(later, QFileDevice::FileModificationTime));
        QVERIFY(!ensureTakenOver(sample.source(), watch).legacyChanged);
        QVERIFY(source.seek(5000) && source.putChar('x') && source.flush());
        QVERIFY(source.setFileTime(later, QFileDevice::FileModificationTime));
        QVERIFY(ensureTakenOver(sample.source(), watch).legacyChanged);
        source.close();
        QVERIFY(QFile::remove(sample.source()));
        QCOMPARE(ensureTakenOver(sample.source(), watch).path, neighbour);
        QCOMPARE(runs, 1);
    }

    void neitherOfTheTwo()
    {
        const QTemporaryDir folder;
        QVERIFY_THROWS_EXCEPTION(DatabaseError, ensureTakenOver(folder.filePath(u"yok.mdb"_s)));
    }
};

KUYUM_TEST(LegacyPathTest)

} // namespace kuyum

#include "LegacyPathTest.moc"
