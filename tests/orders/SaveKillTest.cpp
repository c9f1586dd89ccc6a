#include "FullDisk.h"
#include "Integrity.h"
#include "KilledProcess.h"
#include "OrderFixture.h"
#include "SiparisStore.h"
#include "SqliteEngine.h"
#include "TestRegistry.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

/// The program dies in the middle of saving, at many points, or the disk gets
/// full: what is on disk is one whole save, never a mixture and never nothing.
class SaveKillTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void linesAreAllOldOrAllNew();
    void aFullDiskLeavesTheOldLines();
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
    LoadedRows added;
    store.save(siparis, added);
    return siparis.Sipnum;
}

static void setNotes(Siparis &siparis, const QString &note)
{
    siparis.Aciklama = note;
    for (SiparisSatiri &row : siparis.satirlar)
        row.aciklama = note;
}

void SaveKillTest::linesAreAllOldOrAllNew()
{
    OrderFixture company;
    const int order = makeLongOrder(company);
    const int lineCount = int(company.lines(order).size());
    QCOMPARE(lineCount, 2 * rowCount); // a necklace and a ring in each row

    constexpr qint64 severalSaves = 40000; // microseconds
    for (int kill = 0; kill < killCount(); ++kill) {
        const int told = killedWhileWorking(QStringLiteral(SAVE_LOOP),
                                            {company.path(), QString::number(order)}, severalSaves)
                             .last()
                             .toInt();
        const QStringList notes = company.field(order, u"SipAck");
        QCOMPARE(notes.size(), lineCount);
        QCOMPARE(notes.count(notes.first()), lineCount);
        const int onDisk = notes.first().toInt();
        const int inHeader = company.header(order, u"Aciklama").toInt();
        // What was told as saved is there; the save that was under way may be,
        // its header before its lines.
        QVERIFY(onDisk == told || onDisk == told + 1);
        QVERIFY(inHeader == onDisk || inHeader == onDisk + 1);
        QCOMPARE(integrityFaults(company.oturum.Veritabani->engine()), QStringList());
        // The next save goes on from there.
        const SiparisStore store(company.oturum);
        Siparis siparis = *store.SiparisBul(order);
        LoadedRows loaded = store.oku(order);
        QVERIFY(store.save(siparis, loaded));
    }
}

void SaveKillTest::aFullDiskLeavesTheOldLines()
{
    FullDisk disk;
    OrderFixture company;
    const int order = makeLongOrder(company);
    const SiparisStore store(company.oturum);
    Siparis siparis = *store.SiparisBul(order);
    setNotes(siparis, u"yeni"_s);
    LoadedRows loaded = store.oku(order);
    int refused = 0;
    for (qint64 room = 0;; ++room) {
        disk.takeWrites(room);
        try {
            store.save(siparis, loaded);
            break;
        } catch (const DatabaseError &error) {
            QVERIFY2(error.text().contains(u"yer kalmadı"_s), qPrintable(error.text()));
        }
        ++refused;
        disk.empty();
        QCOMPARE(company.field(order, u"SipAck"), QStringList(2 * rowCount, u"0"_s));
        QCOMPARE(integrityFaults(company.oturum.Veritabani->engine()), QStringList());
    }
    QVERIFY(refused > 10);
    QVERIFY(!disk.wasFull());
    QCOMPARE(company.field(order, u"SipAck"), QStringList(2 * rowCount, u"yeni"_s));
}

KUYUM_TEST(SaveKillTest)

} // namespace kuyum

#include "SaveKillTest.moc"
