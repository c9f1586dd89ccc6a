#include "AnaMenu.h"
#include "Backup.h"
#include "DailyBackup.h"
#include "FileBytes.h"
#include "FullDisk.h"
#include "Pass_Form.h"
#include "Schema.h"
#include "ScriptedMessages.h"
#include "TestCompanies.h"
#include "TestRegistry.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

/// Takes what tells where a replaced file was kept, whose name holds the time.
class RestoreMessages : public ScriptedMessages
{
public:
    MessageAnswer show(QWidget *parent, const Message &message) override
    {
        if (message.title != u"Geri yükleme"_s)
            return ScriptedMessages::show(parent, message);
        told.append(message.text);
        return MessageAnswer::Ok;
    }
    QStringList told;
};

/// The day's backup at the start, and the way back when a company is damaged
/// or gone.
class BackupStartTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_companies.reset(); }

    void theFirstStartOfADayMakesABackup();
    void aBackupThatFailsKeepsNobodyFromWorking();
    void damageFoundByTheDaysBackup();
    void aDamagedCompanyIsOfferedItsNewestGoodBackup_data();
    void aDamagedCompanyIsOfferedItsNewestGoodBackup();
    void noGoodBackupIsSaid();
    void aMissingCompanyIsNotTakenOverAgain();

private:
    QString company() const { return m_companies->path(u"Database/bir.kuyum"_s); }
    /// Changes a letter in one of the places where it stands: the index says
    /// another name than the row.
    static void damageIndex(const QString &file)
    {
        QByteArray content = fileBytes(file);
        content[content.lastIndexOf("Kuyumculuk")] = 'X';
        writeFile(file, content);
    }
    QString makeCopy(BackupKind kind = BackupKind::Daily) const
    {
        return makeBackup(*openCompany(company()), kind);
    }
    /// Answers the question about a backup; what it has to name stands in it.
    static ScriptedMessages::Expected question(const QString &text, MessageAnswer answer)
    {
        return {.text = text,
                .answer = answer,
                .icon = MessageIcon::Critical,
                .defaultAnswer = MessageAnswer::No};
    }
    QString offer(const QString &trouble, const QString &backup, const QString &database) const
    {
        for (const BackupFile &file : backups(company())) {
            if (file.path == backup) {
                const QString named =
                    trouble.endsWith(database) ? trouble : trouble + u'\n' + database;
                return u"%1\n\nDenetimden geçen en yeni yedek:\n%2\n%3, %4, %5\n\nBu yedek geri "
                       "yüklensin mi? Yedekten sonra girilenler onda yoktur; şimdiki dosya "
                       "silinmez, saklanır."_s.arg(
                           named, QFileInfo(backup).fileName(), backupKindText(file.kind),
                           file.made.toString(u"dd.MM.yyyy HH:mm"_s), backupSizeText(file.size));
            }
        }
        return {};
    }
    QString keptDamaged() const
    {
        const QDir folder(backupFolder(company()));
        return folder.filePath(folder.entryList({u"*-bozuk*.kuyum"_s}).value(0));
    }

    std::unique_ptr<TestCompanies> m_companies;
};

void BackupStartTest::init()
{
    m_companies = std::make_unique<TestCompanies>();
}

void BackupStartTest::theFirstStartOfADayMakesABackup()
{
    RestoreMessages messages;
    Oturum oturum = m_companies->loggedIn(u"Admin"_s, 1, {2012, 6, 1});
    // A copy of another kind or day is none of today's.
    const QString yesterday = makeCopy();
    makeCopy(BackupKind::Manual);
    const QString name =
        QDate::currentDate().addDays(-1).toString(u"'bir-'yyyy-MM-dd'-235959-gunluk.kuyum'"_s);
    QVERIFY(QFile::rename(yesterday, QFileInfo(yesterday).dir().filePath(name)));
    QVERIFY(backUpDaily(oturum, messages));
    QCOMPARE(backups(company()).size(), 3);
    QCOMPARE(backups(company()).first().kind, BackupKind::Daily);
    // The second start of the day makes none, that of another company its own.
    QVERIFY(backUpDaily(oturum, messages));
    QCOMPARE(backups(company()).size(), 3);
    const QString second = m_companies->path(u"Database/ikinci.kuyum"_s);
    oturum.Veritabani = openCompany(second);
    QVERIFY(backUpDaily(oturum, messages));
    QCOMPARE(backups(second).size(), 1);
}

void BackupStartTest::aBackupThatFailsKeepsNobodyFromWorking()
{
    FullDisk disk;
    RestoreMessages messages;
    Oturum oturum = m_companies->loggedIn(u"Admin"_s, 1, {2012, 6, 1});
    const auto failed = [](const QString &reason) {
        return ScriptedMessages::Expected{
            .text = u"Bugünün yedeği alınamadı:\n%1\n\nÇalışmaya devam edebilirsiniz. Yedek, "
                    "programın bir sonraki açılışında yeniden denenir."_s.arg(reason),
            .icon = MessageIcon::Exclamation};
    };
    disk.takeWrites(3);
    messages.expect(failed(u"Diskte yer kalmadı. (database or disk is full)"_s));
    QVERIFY(backUpDaily(oturum, messages));
    disk.empty();
    // Something else bears the folder's name.
    writeFile(backupFolder(company()) + u".x"_s, "x");
    QVERIFY(QDir(backupFolder(company())).removeRecursively());
    QVERIFY(QFile::rename(backupFolder(company()) + u".x"_s, backupFolder(company())));
    messages.expect(failed(u"Yedek klasörü açılamadı (yazma izni ya da diskte yer yok): "_s +
                           QDir::toNativeSeparators(backupFolder(company()))));
    QVERIFY(backUpDaily(oturum, messages));
    QVERIFY(oturum.Veritabani->hasTable(u"Firma"_s));
}

void BackupStartTest::damageFoundByTheDaysBackup()
{
    RestoreMessages messages;
    const QString good = makeCopy(BackupKind::Manual);
    const QByteArray before = fileBytes(company());
    damageIndex(company());
    const QByteArray damaged = fileBytes(company());
    Oturum oturum = m_companies->loggedIn(u"Admin"_s, 1, {2012, 6, 1});
    const QString text = offer(u"Veri tabanı dosyası bozuk, yedeği alınmadı. (row 1 missing from "
                               "index Firma.ix.FirAdi)"_s,
                               good, company());
    messages.expect(question(text, MessageAnswer::No));
    QVERIFY(backUpDaily(oturum, messages));
    messages.verify();
    QCOMPARE(fileBytes(company()), damaged);
    QVERIFY(oturum.Veritabani != nullptr);

    messages.expect(question(text, MessageAnswer::Yes));
    QVERIFY(backUpDaily(oturum, messages));
    messages.verify();
    QCOMPARE(fileBytes(company()), fileBytes(good));
    QCOMPARE(backups(company()).size(), 1);
    QCOMPARE(fileBytes(keptDamaged()), damaged);
    QCOMPARE(messages.told, QStringList{u"Yedek geri yüklendi. Önceki dosya burada saklandı:\n"_s +
                                        keptDamaged()});
}

void BackupStartTest::aDamagedCompanyIsOfferedItsNewestGoodBackup_data()
{
    QTest::addColumn<QString>("damage");
    QTest::addColumn<QString>("trouble");
    QTest::newRow("empty") << u"empty"_s << u"Veri tabanı dosyası boş ya da yarım: "_s;
    QTest::newRow("no database") << u"text"_s
                                 << u"Veri tabanı dosyası bozuk. (file is not a database)"_s;
    QTest::newRow("cut off") << u"half"_s
                             << u"Veri tabanı dosyası bozuk. (database disk image is malformed)"_s;
    QTest::newRow("gone") << u"gone"_s << u"Veri tabanı dosyası yerinde yok:"_s;
}

void BackupStartTest::aDamagedCompanyIsOfferedItsNewestGoodBackup()
{
    QFETCH(QString, damage);
    QFETCH(QString, trouble);
    // What is gone has the name that the registry tells.
    const QString database =
        damage == u"gone"_s ? m_companies->path(u"Database/BIR.kuyum"_s) : company();
    const QString good = makeCopy();
    const QString changed = makeCopy();
    QByteArray content = fileBytes(changed);
    content[content.indexOf("Kuyumculuk")] = 'X';
    writeFile(changed, content);
    const QByteArray whole = fileBytes(company());
    if (damage == u"gone"_s)
        QVERIFY(QFile::remove(company()));
    else if (damage == u"text"_s)
        writeFile(company(), QByteArray(5000, 'x'));
    else
        writeFile(company(), damage == u"half"_s ? whole.first(whole.size() / 2) : QByteArray());
    if (damage == u"empty"_s)
        trouble += company();

    RestoreMessages messages;
    Oturum oturum;
    oturum.kayitYolu = m_companies->registry();
    Pass_Form form(oturum, messages);
    const auto notFound = ScriptedMessages::Expected{
        .text = u"c:\\database\\BIR.kuyum  ,BULUNAMADI..."_s, .title = u"DATA YOLU HATASI"_s};
    messages.expect(notFound);
    messages.expect(question(offer(trouble, good, database), MessageAnswer::No));
    QVERIFY(form.load());
    messages.verify();
    QVERIFY(oturum.Veritabani == nullptr);

    messages.expect(notFound);
    messages.expect(question(offer(trouble, good, database), MessageAnswer::Yes));
    form.show();
    auto *Srkkod = form.findChild<QComboBox *>(u"Srkkod"_s);
    Srkkod->setFocus();
    Q_EMIT Srkkod->activated(Srkkod->currentIndex());
    messages.verify();
    QCOMPARE(fileBytes(database), fileBytes(good));
    QVERIFY(oturum.Veritabani != nullptr);
    QVERIFY(form.findChild<QComboBox *>(u"Kullanici"_s)->count() > 1);
    QCOMPARE(messages.told.size(), 1);
}

void BackupStartTest::noGoodBackupIsSaid()
{
    writeFile(company(), QByteArray(600, 'x'));
    RestoreMessages messages;
    Oturum oturum;
    oturum.kayitYolu = m_companies->registry();
    Pass_Form form(oturum, messages);
    messages.expect(u"c:\\database\\BIR.kuyum  ,BULUNAMADI..."_s);
    messages.expect(
        {.text = u"Veri tabanı dosyası bozuk. (file is not a database)\n%1\n\nGeri "
                 "yüklenebilecek sağlam bir yedek bulunamadı. Yedeklerin yeri:\n%2"_s.arg(
                     company(), backupFolder(company())),
         .icon = MessageIcon::Critical});
    QVERIFY(form.load());
    messages.verify();
    QCOMPARE(fileBytes(company()), QByteArray(600, 'x'));
}

void BackupStartTest::aMissingCompanyIsNotTakenOverAgain()
{
    const QString good = makeCopy();
    QVERIFY(QFile::remove(company()));
    writeFile(m_companies->path(u"Database/bir.mdb"_s), "the company as it was years ago");
    openRegistry(m_companies->registry())
        ->execute(u"Update SirketKayit Set DataYolu = 'c:\\database\\bir.mdb' Where Srkkod = 1"_s);
    RestoreMessages messages;
    Oturum oturum;
    oturum.kayitYolu = m_companies->registry();
    Pass_Form form(oturum, messages);
    messages.expect(question(
        offer(u"Veri tabanı dosyası yerinde yok, ama yedekleri duruyor:"_s, good, company()),
        MessageAnswer::Yes));
    // It has no stamp of a take-over, so the legacy file is not looked at.
    QVERIFY(form.load());
    messages.verify();
    QCOMPARE(fileBytes(company()), fileBytes(good));
    QVERIFY(oturum.Veritabani != nullptr);
}

KUYUM_TEST(BackupStartTest)

} // namespace kuyum

#include "BackupStartTest.moc"
