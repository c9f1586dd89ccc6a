#include "ChosenTables.h"
#include "DosyaDuzelt.h"
#include "EmptyDatabase.h"
#include "FullDisk.h"
#include "KilledProcess.h"
#include "Oturum.h"
#include "SampleCompany.h"
#include "Schema.h"
#include "TableRows.h"
#include "TestRegistry.h"
#include "Yenileme.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

/// Repair and refresh end in the middle, by a kill or a full disk: the database
/// is wholly as before, or wholly as after.
class MaintenanceSafetyTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void killed_data() { operations(); }
    void killed();
    void fullDisk_data() { operations(); }
    void fullDisk();
    void fullDiskUnderANewDatabase();

private:
    static void operations()
    {
        QTest::addColumn<bool>("refreshes");
        QTest::newRow("repair") << false;
        QTest::newRow("refresh") << true;
    }
    static FileState stateOf(const QString &path) { return fileState(*openCompany(path)); }
    static void work(Oturum &oturum, bool refreshes)
    {
        if (refreshes)
            Yenileme(*oturum.Veritabani, {}, [](auto...) { return true; }).yenile(chosenTables());
        else
            TumDosyalariDuzenle(oturum);
    }
    QString path(const QString &name) const { return m_dir.filePath(name); }
    /// A company as it was at first.
    QString fresh() const
    {
        const QString company = path(u"atolye.kuyum"_s);
        QDir(path(u"yedek"_s)).removeRecursively();
        QFile::remove(company);
        QFile::remove(company + u"-journal"_s);
        QFile::copy(path(u"once.kuyum"_s), company);
        return company;
    }

    QTemporaryDir m_dir;
    FileState m_before;
};

/// Some thousand rows with nulls, so that there is a middle.
void MaintenanceSafetyTest::initTestCase()
{
    {
        const std::unique_ptr<Database> db = makeSampleCompany(path(u"once.kuyum"_s));
        const QString numbers =
            u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 1000) "_s;
        db->engine().run(u"INSERT INTO SiparisD (SipnumD, SipModel) "_s + numbers +
                         u"SELECT 4, 'A75' FROM n"_s);
        db->engine().run(u"INSERT INTO Tas (Taskodu) "_s + numbers +
                         u"SELECT 'taş ' || i FROM n"_s);
        db->engine().run(u"INSERT INTO Katalog (KatAdi) "_s + numbers +
                         u"SELECT 'k' || i FROM n"_s);
        const std::unique_ptr<Database> chosen = Database::create(path(u"secilen.kuyum"_s));
        for (const TableDef &table : chosenTables())
            chosen->createTable(table);
    }
    m_before = stateOf(path(u"once.kuyum"_s));
}

void MaintenanceSafetyTest::killed()
{
    QFETCH(bool, refreshes);
    QStringList arguments = {path(u"atolye.kuyum"_s)};
    if (refreshes)
        arguments.append(path(u"secilen.kuyum"_s));
    fresh();
    const qint64 time = workingTime(QStringLiteral(MAINTENANCE_RUN), arguments);
    const FileState after = stateOf(path(u"atolye.kuyum"_s));
    QVERIFY(!(after == m_before));
    int unfinished = 0;
    for (int kill = 0; kill < killCount(); ++kill) {
        const QString company = fresh();
        const QList<QByteArray> told =
            killedWhileWorking(QStringLiteral(MAINTENANCE_RUN), arguments, time);
        const FileState state = stateOf(company);
        QVERIFY2(!told.contains("failed"), "it did not get to be killed");
        QVERIFY(state == after || (state == m_before && !told.contains("done")));
        unfinished += told.contains("done") ? 0 : 1;
    }
    QVERIFY(unfinished > 0);
    qInfo() << killCount() << "kills," << unfinished << "before it was done";
}

void MaintenanceSafetyTest::fullDisk()
{
    QFETCH(bool, refreshes);
    FullDisk disk;
    qint64 writes = 0;
    {
        Oturum oturum;
        oturum.Veritabani = openCompany(fresh());
        disk.empty();
        work(oturum, refreshes);
        writes = disk.writes();
    }
    constexpr int places = 12;
    for (int place = 0; place < places; ++place) {
        QString told;
        {
            Oturum oturum;
            oturum.Veritabani = openCompany(fresh());
            disk.takeWrites(writes * place / places);
            try {
                work(oturum, refreshes);
            } catch (const DatabaseError &error) {
                told = error.text();
            }
            QVERIFY(disk.wasFull());
            disk.empty();
            // The same connection goes on working.
            QCOMPARE(fileState(*oturum.Veritabani), m_before);
            oturum.Veritabani->execute(u"UPDATE Ayar SET Milyem = Milyem"_s);
        }
        QVERIFY2(told.contains(u"Diskte yer kalmadı"_s) || refreshes, qPrintable(told));
        QVERIFY(stateOf(path(u"atolye.kuyum"_s)) == m_before);
    }
}

void MaintenanceSafetyTest::fullDiskUnderANewDatabase()
{
    FullDisk disk;
    Oturum oturum;
    oturum.Veritabani = openCompany(fresh());
    const QString target = path(u"boş.kuyum"_s);
    QFile old(target);
    QVERIFY(old.open(QFile::ReadWrite) && old.write("eski") == 4 && old.flush());
    disk.takeBytes(20000);
    QVERIFY_THROWS_EXCEPTION(DatabaseError, makeEmptyDatabase(oturum, target, {}));
    disk.empty();
    QVERIFY(old.seek(0));
    QCOMPARE(old.readAll(), QByteArray("eski"));
    QVERIFY(!QFileInfo::exists(target + u".yapim"_s));
    QCOMPARE(fileState(*oturum.Veritabani), m_before);
}

KUYUM_TEST(MaintenanceSafetyTest)

} // namespace kuyum

#include "MaintenanceSafetyTest.moc"
