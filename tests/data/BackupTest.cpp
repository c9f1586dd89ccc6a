#include "Backup.h"
#include "FileBytes.h"
#include "SampleCompany.h"
#include "Schema.h"
#include "SqliteEngine.h"
#include "TestRegistry.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

/// Copies of a company, their checks, and the way back.
class BackupTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_db.reset(); }

    void aBackupIsTheDatabaseAtThatMoment();
    void namesKeepDatabasesAndMomentsApart();
    void whatIsOldGoesButNeverTheNewest();
    void whatAnEndedProcessLeftIsRemoved();
    void aStoppedBackupLeavesNothing();
    void aBusyOrDamagedDatabaseGivesNoBackup();
    void aLoggedDatabaseGivesAWholeBackupAndNothingElse();
    void anyChangedByteIsNoticed();
    void restoresAndKeepsTheReplacedOne();
    void restoresOverADamagedOrMissingOne();
    void aClockThatRanAheadMakesNoNewestBackup();
    void noOldJournalIsPlayedIntoTheRestoredFile();
    void refusesWhatIsNoBackupOfACompany();
    void nothingIsReplacedByARefusedOrStoppedRestore();

private:
    QString path(const QString &name) const { return m_dir->filePath(name); }
    QString company() const { return path(u"atolye.kuyum"_s); }
    QStringList inFolder(const QString &folder = {}) const
    {
        return QDir(path(folder)).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }
    static void flip(const QString &file, qint64 place)
    {
        QFile target(file);
        QVERIFY(target.open(QIODevice::ReadWrite));
        target.seek(place);
        char byte = 0;
        target.getChar(&byte);
        target.seek(place);
        target.putChar(char(byte ^ 0x10));
    }
    /// A database's customers; a change is one customer more.
    static int customers(Database &db)
    {
        Recordset count = db.query(u"Select Count(*) As Adet From Firma"_s);
        count.next();
        return int(count.integer(u"Adet"));
    }
    static int customers(const QString &file)
    {
        return customers(*Database::open(file, Database::Access::ReadOnly));
    }
    void addCustomer(int number)
    {
        m_db->execute(u"Insert Into Firma (Firkod, FirAdi) Values (%1, 'Yeni')"_s.arg(number));
    }
    static QString refusal(const std::function<void()> &action)
    {
        try {
            action();
        } catch (const DatabaseError &error) {
            return error.text();
        }
        return {};
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<Database> m_db;
};

void BackupTest::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    m_db = makeSampleCompany(company());
}

void BackupTest::aBackupIsTheDatabaseAtThatMoment()
{
    const int before = customers(*m_db);
    QList<int> told;
    const QString backup = makeBackup(*m_db, BackupKind::Daily, [&](int done, int total) {
        told.append(done * 1000 / total);
        return true;
    });
    addCustomer(990);
    QCOMPARE(customers(backup), before);
    QCOMPARE(openCompany(backup)->tableNames(), m_db->tableNames());
    QVERIFY(std::is_sorted(told.begin(), told.end()));
    QCOMPARE(told.last(), 1000);
    // What sha256sum -c reads.
    const QByteArray sum = QCryptographicHash::hash(fileBytes(backup), QCryptographicHash::Sha256);
    QCOMPARE(fileBytes(backup + u".sha256"_s),
             sum.toHex() + "  " + QFileInfo(backup).fileName().toUtf8() + '\n');
}

void BackupTest::namesKeepDatabasesAndMomentsApart()
{
    const std::unique_ptr<Database> other = makeSampleCompany(path(u"atolye-2.kuyum"_s));
    const std::unique_ptr<Database> foreign = makeSampleCompany(path(u"atolye.db"_s));
    const QString theirs = makeBackup(*other, BackupKind::Daily);
    makeBackup(*foreign, BackupKind::Daily);
    QStringList made;
    for (int i = 0; i < 3; ++i)
        made.prepend(makeBackup(*m_db, BackupKind::BeforeRepair));
    const QList<BackupFile> own = backups(company());
    QStringList listed;
    for (const BackupFile &backup : own)
        listed.append(backup.path);
    QCOMPARE(listed, made); // newest first, though of the same second
    QCOMPARE(own[0].kind, BackupKind::BeforeRepair);
    QCOMPARE(own[0].size, QFileInfo(made[0]).size());
    QVERIFY(qAbs(own[0].made.secsTo(QDateTime::currentDateTime())) < 100);
    QCOMPARE(backups(path(u"atolye-2.kuyum"_s)).size(), 1);
    QVERIFY(QRegularExpression(u"/yedek/atolye-2-\\d{4}-\\d\\d-\\d\\d-\\d{6}-gunluk\\.kuyum$"_s)
                .match(theirs)
                .hasMatch());
}

void BackupTest::whatIsOldGoesButNeverTheNewest()
{
    const QString backup = makeBackup(*m_db, BackupKind::Manual);
    const auto copyOf = [&](int days, const QString &word) {
        const QString moment = QDate::currentDate().addDays(-days).toString(Qt::ISODate);
        const QString name = u"yedek/atolye-%1-120000-%2.kuyum"_s.arg(moment, word);
        QVERIFY(QFile::copy(backup, path(name)));
        QVERIFY(QFile::copy(backup + u".sha256"_s, path(name + u".sha256"_s)));
    };
    copyOf(100, u"gunluk"_s);
    copyOf(50, u"onarim-oncesi"_s);
    // Not ours, however old.
    const QStringList foreign = {u"atolye-2001-01-01-120000-kopyam.kuyum"_s,
                                 u"atolye-2-2001-01-01-120000-gunluk.kuyum"_s,
                                 u"atolye-2001-01-01-120000-gunluk.kuyum.yedek"_s};
    for (const QString &name : foreign)
        writeFile(path(u"yedek/"_s + name), "x");

    makeBackup(*m_db, BackupKind::Daily);
    QCOMPARE(backups(company()).size(), 3); // two of today and the newest old one
    copyOf(15, u"gunluk"_s);
    copyOf(14, u"gunluk"_s);
    makeBackup(*m_db, BackupKind::Daily);
    makeBackup(*m_db, BackupKind::Daily);
    QCOMPARE(backups(company()).size(), 5);
    QCOMPARE(backups(company()).last().made.date(), QDate::currentDate().addDays(-14));
    // Each with its digest and nothing else of ours.
    QCOMPARE(inFolder(u"yedek"_s).size(), 10 + foreign.size());
    for (const QString &name : foreign)
        QVERIFY2(QFileInfo::exists(path(u"yedek/"_s + name)), qPrintable(name));
}

void BackupTest::whatAnEndedProcessLeftIsRemoved()
{
    QVERIFY(QDir().mkpath(path(u"yedek"_s)));
    for (const QString &name :
         {u"gunluk.kuyum.part"_s, u"elle-2.kuyum.part-journal"_s, u"gunluk.kuyum.sha256"_s,
          u"gunluk.kuyum.sha256.aBcDeF"_s, u"bozuk.kuyum-journal.part.aBcDeF"_s})
        writeFile(path(u"yedek/atolye-2026-01-01-120000-"_s + name), "x");
    const QStringList others = {u"atolye-2-2026-01-01-120000-gunluk.kuyum.part"_s,
                                u"atolye-2026-01-01-120000-gunluk.kuyum.benden"_s};
    for (const QString &name : others)
        writeFile(path(u"yedek/"_s + name), "x");
    QVERIFY(backups(company()).isEmpty());
    const QString backup = makeBackup(*m_db, BackupKind::Daily);
    QStringList left = others + QStringList{QFileInfo(backup).fileName(),
                                            QFileInfo(backup).fileName() + u".sha256"_s};
    left.sort();
    QCOMPARE(inFolder(u"yedek"_s), left);
}

void BackupTest::aStoppedBackupLeavesNothing()
{
    // Stopped in each of its stages.
    for (const int stopAt : {0, 300, 500, 900, 1000}) {
        QVERIFY_THROWS_EXCEPTION(
            Cancelled,
            makeBackup(*m_db, BackupKind::Manual, [&](int done, int) { return done < stopAt; }));
        QCOMPARE(inFolder(u"yedek"_s), QStringList());
    }
    addCustomer(990); // the database works on
    QVERIFY(!makeBackup(*m_db, BackupKind::Manual).isEmpty());
}

void BackupTest::aBusyOrDamagedDatabaseGivesNoBackup()
{
    const QString good = makeBackup(*m_db, BackupKind::Daily);
    const QStringList before = inFolder(u"yedek"_s);
    {
        const Transaction open(*m_db);
        QVERIFY(!refusal([&] { makeBackup(*m_db, BackupKind::Manual); }).isEmpty());
    }
    // An index that contradicts its table: every row can still be read.
    m_db.reset();
    flip(company(), fileBytes(company()).lastIndexOf("Kuyumculuk"));
    m_db = openCompany(company());
    try {
        makeBackup(*m_db, BackupKind::Daily);
        QFAIL("a damaged database was copied");
    } catch (const DatabaseError &error) {
        QCOMPARE(error.cause(), DatabaseError::Cause::FileDamaged);
    }
    QCOMPARE(inFolder(u"yedek"_s), before);
    checkBackup(good);
}

void BackupTest::aLoggedDatabaseGivesAWholeBackupAndNothingElse()
{
    m_db->engine().run(u"PRAGMA journal_mode = WAL"_s);
    m_db.reset();
    m_db = Database::open(company(), Database::Access::ReadOnly);
    QVERIFY_THROWS_EXCEPTION(DatabaseError, m_db->execute(u"Delete From Firma"_s));
    const QString backup = makeBackup(*m_db, BackupKind::Manual);
    m_db.reset();
    checkBackup(backup);
    QCOMPARE(inFolder(), QStringList{u"atolye.kuyum"_s});
    QCOMPARE(inFolder(u"yedek"_s).size(), 2);
    const QFile::Permissions others = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther;
    QVERIFY(!(QFile::permissions(company()) & others) && !(QFile::permissions(backup) & others));
}

void BackupTest::anyChangedByteIsNoticed()
{
    m_db->execute(u"Delete From SiparisD"_s); // leaves free pages
    const QString backup = makeBackup(*m_db, BackupKind::Manual);
    checkBackup(backup);
    const QByteArray whole = fileBytes(backup);
    QList<qsizetype> places = {
        0, 20, 60, 100, 4096, whole.indexOf("Admin"), whole.size() / 2, whole.size() - 1};
    for (int i = 0; i < 40; ++i)
        places.append(QRandomGenerator::global()->bounded(whole.size()));
    for (const qsizetype place : places) {
        flip(backup, place);
        QVERIFY2(refusal([&] { checkBackup(backup); }).contains(u"değişmiş"_s),
                 qPrintable(QString::number(place)));
        flip(backup, place);
    }
    checkBackup(backup);
    QVERIFY(QFile::resize(backup, whole.size() - 4096));
    QVERIFY(!refusal([&] { checkBackup(backup); }).isEmpty());
    writeFile(backup, whole);
    flip(backup + u".sha256"_s, 5);
    QVERIFY(!refusal([&] { checkBackup(backup); }).isEmpty());
}

void BackupTest::restoresAndKeepsTheReplacedOne()
{
    const QString backup = makeBackup(*m_db, BackupKind::Manual);
    const int before = customers(*m_db);
    addCustomer(990);
    m_db.reset();
    const QString kept = restoreBackup(company(), backup);
    QCOMPARE(fileBytes(company()), fileBytes(backup));
    QCOMPARE(customers(company()), before);
    QCOMPARE(customers(kept), before + 1);
    checkBackup(kept);
    QCOMPARE(backups(company()).first().path, kept);
    QCOMPARE(inFolder(), QStringList{u"atolye.kuyum"_s});
    // One of an older layout, from somewhere else, gets what it lacks.
    const QString older = path(u"eski.kuyum"_s);
    QVERIFY(QFile::copy(backup, older));
    QVERIFY(!hasDigest(older));
    const std::unique_ptr<Database> db = Database::open(older);
    db->engine().run(u"DROP TABLE KatalogSira"_s);
    db->setSchemaVersion(1);
    restoreBackup(company(), older);
    QVERIFY(openCompany(company())->hasTable(u"KatalogSira"_s));
}

void BackupTest::restoresOverADamagedOrMissingOne()
{
    const QString backup = makeBackup(*m_db, BackupKind::Manual);
    m_db.reset();
    const QByteArray whole = fileBytes(company());
    for (const QByteArray &damaged :
         {QByteArray(), QByteArray(1, 'x'), QByteArray(5000, 'x'), whole.first(whole.size() / 2)}) {
        writeFile(company(), damaged);
        try {
            openCompany(company());
            QFAIL("damage was not noticed");
        } catch (const DatabaseError &error) {
            QCOMPARE(error.cause(), DatabaseError::Cause::FileDamaged);
        }
        const QString kept = restoreBackup(company(), newestGoodBackup(company())->path);
        QCOMPARE(fileBytes(kept), damaged);
        QVERIFY(kept.contains(u"-bozuk"_s));
        QCOMPARE(fileBytes(company()), fileBytes(backup));
    }
    QVERIFY(QFile::remove(company()));
    QCOMPARE(restoreBackup(company(), backup), QString());
    QCOMPARE(fileBytes(company()), fileBytes(backup));
    QCOMPARE(backups(company()).size(), 1); // a damaged one is no backup
}

void BackupTest::aClockThatRanAheadMakesNoNewestBackup()
{
    const auto dateLater = [&](const QString &backup, int days) {
        const QString moment = QDate::currentDate().addDays(days).toString(Qt::ISODate);
        const QString name = path(u"yedek/atolye-%1-120000-gunluk.kuyum"_s.arg(moment));
        QVERIFY(QFile::rename(backup + u".sha256"_s, name + u".sha256"_s));
        QVERIFY(QFile::rename(backup, name));
    };
    dateLater(makeBackup(*m_db, BackupKind::Daily), 400);
    QVERIFY(newestGoodBackup(company())->made.date() > QDate::currentDate());
    const QString newest = makeBackup(*m_db, BackupKind::Daily);
    QCOMPARE(newestGoodBackup(company())->path, newest);
}

void BackupTest::noOldJournalIsPlayedIntoTheRestoredFile()
{
    const QString backup = makeBackup(*m_db, BackupKind::Manual);
    // A save that is cut off when its first pages are already in the file.
    const int before = customers(*m_db);
    m_db->engine().run(u"PRAGMA cache_size = 5"_s);
    m_db->engine().run(u"PRAGMA cache_spill = 1"_s);
    m_db->engine().run(u"BEGIN IMMEDIATE"_s);
    for (int i = 0; i < 2000; ++i)
        addCustomer(5000 + i);
    const QByteArray halfSaved = fileBytes(company());
    const QByteArray journal = fileBytes(company() + u"-journal"_s);
    QVERIFY(!journal.isEmpty());
    m_db.reset();
    const auto cutOff = [&](const QByteArray &content) {
        writeFile(company(), content);
        writeFile(company() + u"-journal"_s, journal);
    };

    cutOff(halfSaved);
    const QString kept = restoreBackup(company(), backup);
    QCOMPARE(fileBytes(company()), fileBytes(backup));
    QCOMPARE(inFolder(), QStringList{u"atolye.kuyum"_s});
    QCOMPARE(customers(kept), before); // the save was taken back first
    // The journal of a file that is gone, and of one that is damaged.
    cutOff(QByteArray());
    const QString damaged = restoreBackup(company(), backup);
    QCOMPARE(fileBytes(damaged + u"-journal"_s), journal);
    QCOMPARE(customers(company()), before);
    QCOMPARE(fileBytes(company()), fileBytes(backup));
    cutOff(QByteArray());
    QVERIFY(QFile::remove(company()));
    restoreBackup(company(), backup);
    QCOMPARE(customers(company()), before);
    QCOMPARE(fileBytes(company()), fileBytes(backup));
}

void BackupTest::refusesWhatIsNoBackupOfACompany()
{
    createRegistry(path(u"sirket.kuyum"_s));
    writeFile(path(u"metin.kuyum"_s), QByteArray("bu bir veri tabanı değil ").repeated(50));
    const std::unique_ptr<Database> newer = makeSampleCompany(path(u"yeni.kuyum"_s));
    newer->setSchemaVersion(currentSchemaVersion + 1);
    makeSampleCompany(path(u"yarim.kuyum"_s));
    writeFile(path(u"yarim.kuyum-journal"_s), "x");
    const QList<std::pair<QString, QString>> cases = {
        {u"sirket.kuyum"_s, u"şirketin veri tabanı değil"_s},
        {u"metin.kuyum"_s, u"bozuk"_s},
        {u"yeni.kuyum"_s, u"daha yeni bir sürümü"_s},
        {u"yarim.kuyum"_s, u"yarım kalmış"_s},
        {u"yok.kuyum"_s, u"bulunamadı"_s}};
    m_db.reset();
    const QByteArray before = fileBytes(company());
    for (const auto &[name, reason] : cases) {
        QVERIFY2(refusal([&] { checkBackup(path(name)); }).contains(reason), qPrintable(name));
        QVERIFY2(!refusal([&] { restoreBackup(company(), path(name)); }).isEmpty(),
                 qPrintable(name));
    }
    QCOMPARE(fileBytes(company()), before);
    QCOMPARE(fileBytes(path(u"yarim.kuyum-journal"_s)), "x");
    // Nor does a company come into the place of the list of companies.
    const QByteArray registry = fileBytes(path(u"sirket.kuyum"_s));
    QVERIFY(refusal([&] {
                restoreBackup(path(u"sirket.kuyum"_s), company());
            }).contains(u"kayıt dosyası"_s));
    QCOMPARE(fileBytes(path(u"sirket.kuyum"_s)), registry);
}

void BackupTest::nothingIsReplacedByARefusedOrStoppedRestore()
{
    const QString backup = makeBackup(*m_db, BackupKind::Manual);
    addCustomer(990);
    const QByteArray before = fileBytes(company());
    {
        // Another program is in the middle of a save.
        const Transaction save(*m_db);
        QVERIFY(
            refusal([&] { restoreBackup(company(), backup); }).contains(u"başka bir program"_s));
    }
    m_db.reset();
    for (const int stopAt : {0, 150, 300, 600, 900}) {
        QVERIFY_THROWS_EXCEPTION(Cancelled, restoreBackup(company(), backup, [&](int done, int) {
                                     return done < stopAt;
                                 }));
    }
    QCOMPARE(fileBytes(company()), before);
    QCOMPARE(inFolder(), QStringList{u"atolye.kuyum"_s});
    QCOMPARE(backups(company()).size(), 1);
}

KUYUM_TEST(BackupTest)

} // namespace kuyum

#include "BackupTest.moc"
