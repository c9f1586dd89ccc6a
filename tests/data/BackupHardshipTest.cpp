#include "Backup.h"
#include "FileBytes.h"
#include "FullDisk.h"
#include "Integrity.h"
#include "KilledProcess.h"
#include "SampleCompany.h"
#include "Schema.h"
#include "SqliteEngine.h"
#include "TestRegistry.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

/// Backups and restores that are ended at any point or find no room: what
/// bears a backup's name is one, and the database is wholly the one or wholly
/// the other.
class BackupHardshipTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aKilledBackupIsWholeOrNone();
    void aKilledRestoreIsWhollyDoneOrNotAtAll_data();
    void aKilledRestoreIsWhollyDoneOrNotAtAll();
    void aFullDiskGivesNoBackup();
    void aFullDiskReplacesNothing();

private:
    QString path(const QString &name) const { return m_dir->filePath(name); }
    QString company() const { return path(u"atolye.kuyum"_s); }
    QStringList inFolder(const QString &folder = {}) const
    {
        return QDir(path(folder)).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }
    static void addCustomers(Database &db, int first, int count)
    {
        Recordset rows = db.table(u"Firma"_s);
        for (int i = first; i < first + count; ++i) {
            rows.addNew();
            rows.set(u"Firkod", i);
            rows.set(u"FirAdi", u"Müşteri %1"_s.arg(i));
            rows.set(u"Aciklama", QString(200, u'x'));
            rows.update();
        }
    }
    static qint64 customers(const QString &file)
    {
        const std::unique_ptr<Database> db = Database::open(file, Database::Access::ReadOnly);
        if (!integrityFaults(db->engine()).isEmpty())
            return -1;
        return rowCounts(db->engine()).value(u"Firma"_s);
    }
    /// Every file in the folder of backups is a sound one or its digest.
    void verifyOnlyBackups() const
    {
        const QList<BackupFile> all = backups(company());
        for (const BackupFile &backup : all)
            checkBackup(backup.path);
        QCOMPARE(inFolder(u"yedek"_s).size(), 2 * all.size());
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    qint64 m_customers = 0;
};

void BackupHardshipTest::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    const std::unique_ptr<Database> db = makeSampleCompany(company());
    Transaction transaction(*db);
    addCustomers(*db, 1000, 2000);
    transaction.commit();
    m_customers = rowCounts(db->engine()).value(u"Firma"_s);
}

void BackupHardshipTest::aKilledBackupIsWholeOrNone()
{
    const QString program = QStringLiteral(BACKUP_WORK);
    const qint64 time = workingTime(program, {company()}) * 3 / 2; // its end, too
    for (int kill = 0; kill < killCount(); ++kill) {
        const QList<QByteArray> told = killedWhileWorking(program, {company()}, time);
        const QList<BackupFile> made = backups(company());
        for (const BackupFile &backup : made) {
            checkBackup(backup.path);
            QVERIFY(hasDigest(backup.path));
            QCOMPARE(customers(backup.path), m_customers);
        }
        if (told.size() > 1)
            QVERIFY(made.first().path == QString::fromUtf8(told[1]));
        QCOMPARE(customers(company()), m_customers);
        for (qsizetype i = 1; i < made.size(); ++i) {
            QFile::remove(made[i].path);
            QFile::remove(made[i].path + u".sha256"_s);
        }
    }
    // The next one clears up.
    makeBackup(*openCompany(company()), BackupKind::Manual);
    verifyOnlyBackups();
}

void BackupHardshipTest::aKilledRestoreIsWhollyDoneOrNotAtAll_data()
{
    QTest::addColumn<QString>("state");
    QTest::newRow("sound") << u"sound"_s;
    QTest::newRow("in the middle of a save") << u"journal"_s;
    QTest::newRow("damaged") << u"damaged"_s;
}

void BackupHardshipTest::aKilledRestoreIsWhollyDoneOrNotAtAll()
{
    QFETCH(QString, state);
    std::unique_ptr<Database> db = openCompany(company());
    const QString backup = path(u"saklanan.kuyum"_s);
    const QString made = makeBackup(*db, BackupKind::Manual);
    QVERIFY(QFile::rename(made, backup));
    QVERIFY(QFile::rename(made + u".sha256"_s, backup + u".sha256"_s));
    const QByteArray restored = fileBytes(backup);

    addCustomers(*db, 9000, 10);
    db->engine().run(u"PRAGMA cache_size = 5"_s);
    db->engine().run(u"BEGIN IMMEDIATE"_s);
    addCustomers(*db, 10000, 1000);
    const QByteArray journal =
        state == u"journal"_s ? fileBytes(company() + u"-journal"_s) : QByteArray();
    QByteArray old = fileBytes(company());
    if (state != u"journal"_s) {
        db->engine().run(u"ROLLBACK"_s);
        old = state == u"damaged"_s ? fileBytes(company()).chopped(5000) : fileBytes(company());
    }
    db.reset();

    const QString program = QStringLiteral(BACKUP_WORK);
    const auto begin = [&] {
        QDir(path(u"yedek"_s)).removeRecursively();
        writeFile(company(), old);
        if (!journal.isEmpty())
            writeFile(company() + u"-journal"_s, journal);
    };
    begin();
    const qint64 time = workingTime(program, {company(), backup}) * 3 / 2; // its end, too
    int done = 0;
    const int count = (killCount() + 2) / 3;
    for (int kill = 0; kill < count; ++kill) {
        begin();
        const QList<QByteArray> told = killedWhileWorking(program, {company(), backup}, time);
        if (fileBytes(company()) == restored) {
            ++done;
            QVERIFY(!QFileInfo::exists(company() + u"-journal"_s));
            const QStringList kept = QDir(path(u"yedek"_s)).entryList({u"*.kuyum"_s});
            QCOMPARE(kept.size(), 1);
            const QString replaced = path(u"yedek/"_s + kept.first());
            if (state == u"damaged"_s)
                QCOMPARE(fileBytes(replaced), old);
            else
                QCOMPARE(customers(replaced), m_customers + 10);
        } else {
            QVERIFY(told.size() < 2);
            if (state == u"damaged"_s)
                QCOMPARE(fileBytes(company()), old);
            else
                QCOMPARE(customers(company()), m_customers + 10);
        }
    }
    qInfo() << done << "of" << count << "were done when they were ended";
    begin();
    restoreBackup(company(), backup);
    QCOMPARE(inFolder(),
             (QStringList{u"atolye.kuyum"_s, u"saklanan.kuyum"_s, u"saklanan.kuyum.sha256"_s}));
}

void BackupHardshipTest::aFullDiskGivesNoBackup()
{
    FullDisk disk;
    const std::unique_ptr<Database> db = openCompany(company());
    int refused = 0;
    for (qint64 room = 0;; room += 1 + room / 3) {
        disk.takeWrites(room);
        try {
            makeBackup(*db, BackupKind::Manual);
            break;
        } catch (const DatabaseError &error) {
            QVERIFY2(error.text().contains(u"yer"_s), qPrintable(error.text()));
            QCOMPARE(inFolder(u"yedek"_s), QStringList());
            ++refused;
        }
    }
    QVERIFY(refused > 5);
    QVERIFY(!disk.wasFull());
    QCOMPARE(backups(company()).size(), 1);
    verifyOnlyBackups();
}

void BackupHardshipTest::aFullDiskReplacesNothing()
{
    FullDisk disk;
    QString backup;
    {
        const std::unique_ptr<Database> db = openCompany(company());
        backup = makeBackup(*db, BackupKind::Manual);
        addCustomers(*db, 9000, 1);
    }
    const QByteArray old = fileBytes(company());
    const auto verifyRefused = [&] {
        try {
            restoreBackup(company(), backup);
            QFAIL("there was room");
        } catch (const DatabaseError &error) {
            QVERIFY2(error.text().contains(u"isk"_s), qPrintable(error.text()));
        }
        QCOMPARE(fileBytes(company()), old);
        QCOMPARE(inFolder(), QStringList{u"atolye.kuyum"_s});
        QCOMPARE(backups(company()).size(), 1);
        verifyOnlyBackups();
    };
    // No room for the copy of the one that is replaced.
    for (const qint64 room : {0, 1, 10, 100}) {
        disk.takeWrites(room);
        verifyRefused();
    }
    disk.empty();
#ifdef Q_OS_UNIX
    // None for the one that comes.
    for (const qint64 room : {qint64(1000), old.size() / 2, old.size() - 5000}) {
        const FileSizeLimit limit{rlim_t(room)};
        verifyRefused();
    }
#endif
    restoreBackup(company(), backup);
    QCOMPARE(customers(company()), m_customers);
}

KUYUM_TEST(BackupHardshipTest)

} // namespace kuyum

#include "BackupHardshipTest.moc"
