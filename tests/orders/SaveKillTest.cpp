#include "OrderFixture.h"
#include "SiparisStore.h"
#include "TestRegistry.h"

#include <QProcess>
#include <QtTest>

using namespace Qt::StringLiterals;

/// The program dies in the middle of saving, at many points: what is on disk
/// is one whole save, never a mixture and never nothing.
class SaveKillTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void linesAreAllOldOrAllNew();
};

constexpr int rowCount = 60;

static int makeLongOrder(OrderFixture &company)
{
    const SiparisStore store(company.oturum);
    Siparis siparis = *store.SiparisBul(1);
    siparis.Sipnum = 0;
    siparis.Aciklama = u"0"_s;
    SiparisSatiri row = siparis.satirlar.first();
    row.aciklama = u"0"_s;
    siparis.satirlar.fill(row, rowCount);
    store.save(siparis);
    return siparis.Sipnum;
}

void SaveKillTest::linesAreAllOldOrAllNew()
{
    OrderFixture company;
    const int order = makeLongOrder(company);
    const int lineCount = int(company.lines(order).size());
    QCOMPARE(lineCount, 2 * rowCount); // a necklace and a ring in each row

    constexpr int kills = 40;
    for (int kill = 0; kill < kills; ++kill) {
        QProcess saver;
        saver.start(QStringLiteral(SAVE_LOOP), {company.path(), QString::number(order)});
        QVERIFY(saver.waitForReadyRead(30000));
        // A few milliseconds later each time, to meet it at another place.
        QVERIFY(!saver.waitForFinished(kill));
        saver.kill();
        QVERIFY(saver.waitForFinished(30000));
        const int told = saver.readAllStandardOutput().trimmed().split('\n').last().toInt();

        const QStringList notes = company.field(order, u"SipAck");
        QCOMPARE(notes.size(), lineCount);
        QCOMPARE(notes.count(notes.first()), lineCount);
        const int onDisk = notes.first().toInt();
        const int inHeader = company.header(order, u"Aciklama").toInt();
        // What was told as saved is there; the save that was under way may be,
        // its header before its lines.
        QVERIFY(onDisk == told || onDisk == told + 1);
        QVERIFY(inHeader == onDisk || inHeader == onDisk + 1);
        // The next save goes on from there.
        const SiparisStore store(company.oturum);
        Siparis siparis = *store.SiparisBul(order);
        QVERIFY(store.save(siparis));
    }
}

KUYUM_TEST(SaveKillTest)
#include "SaveKillTest.moc"
