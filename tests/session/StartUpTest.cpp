#include "StartUp.h"
#include "AnaMenu.h"
#include "Schema.h"
#include "ScriptedMessages.h"
#include "SingleInstance.h"
#include "TestCompanies.h"
#include "TestRegistry.h"
#include "Typing.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

class StartUpTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void secondCopyIsRefused();
    void crashedCopyStandsInNobodysWay();
    void missingRegistryIsSaid();
    void fromStartToMenuByKeys();
    void leavingTheLoginEndsTheProgram();
    void legacyFilesAreTakenOver();
    void stoppedTakeOverLeavesNothing();

private:
    std::unique_ptr<AnaMenu> start(Oturum &oturum, Messages &messages, bool otherCopy = false)
    {
        return startUp({.oturum = oturum,
                        .messages = messages,
                        .screens = {},
                        .programFolder = m_folder.path()},
                       otherCopy);
    }
    /// Types into the login as soon as it stands there.
    void whenLoginIsOpen(const std::function<void(QWidget &login)> &keys)
    {
        QTimer::singleShot(0, this, [this, keys] {
            QWidget *login = QApplication::activeModalWidget();
            if (login != nullptr && login->objectName() == "Pass_Form"_L1)
                keys(*login);
            else
                whenLoginIsOpen(keys);
        });
    }

    QTemporaryDir m_folder;
};

void StartUpTest::secondCopyIsRefused()
{
    const QString lock = m_folder.filePath(u"alt/kilit"_s);
    auto first = std::make_unique<SingleInstance>(lock);
    QVERIFY(!first->otherCopyRuns());
    const SingleInstance second(lock);
    QVERIFY(second.otherCopyRuns());

    ScriptedMessages messages;
    messages.expect({.text = u"Uygulama Calismaktadir. Lutfen Bilgisayarinizi Kapatip, Acin."_s,
                     .icon = MessageIcon::Information});
    Oturum oturum;
    QVERIFY(start(oturum, messages, second.otherCopyRuns()) == nullptr);
    first.reset();
    QVERIFY(!SingleInstance(lock).otherCopyRuns());
}

void StartUpTest::crashedCopyStandsInNobodysWay()
{
    QProcess process;
    process.start(qEnvironmentVariable("KUYUM_PROGRAM"), {u"--help"_s});
    QVERIFY(process.waitForStarted());
    const qint64 id = process.processId();
    QVERIFY(process.waitForFinished());
    QFile lock(m_folder.filePath(u"eski kilit"_s));
    QVERIFY(lock.open(QFile::WriteOnly));
    lock.write(QByteArray::number(id) + "\nkuyum\n" + QSysInfo::machineHostName().toUtf8() + '\n');
    lock.close();
    QVERIFY(!SingleInstance(lock.fileName()).otherCopyRuns());
}

void StartUpTest::missingRegistryIsSaid()
{
    ScriptedMessages messages;
    Oturum oturum;
    oturum.kayitYolu = m_folder.filePath(u"yok/sirket.mdb"_s);
    messages.expect(
        {.text = u"Şirket kayıt dosyası bulunamadı:\n%1\n\n"
                 "Dosyayı bu yere koyun ya da programı başka bir dosya ile açın:\n"
                 "kuyum --sirket DOSYA"_s.arg(QDir::toNativeSeparators(oturum.kayitYolu)),
         .icon = MessageIcon::Critical});
    QVERIFY(start(oturum, messages) == nullptr);
    QVERIFY(!QFileInfo::exists(m_folder.filePath(u"yok"_s)));
}

void StartUpTest::fromStartToMenuByKeys()
{
    ScriptedMessages messages;
    const TestCompanies companies;
    Oturum oturum;
    oturum.kayitYolu = companies.registry();
    whenLoginIsOpen([](QWidget &login) {
        QTest::keyClicks(login.focusWidget(), u"1234"_s);
        QTest::keyClick(login.focusWidget(), Qt::Key_Return);
    });
    const std::unique_ptr<AnaMenu> menu = start(oturum, messages);
    QVERIFY(menu != nullptr);
    QCOMPARE(menu->windowTitle(), u"Işıl Atölye -----> Admin"_s);
    // The working date, today, got the latest rates.
    Recordset rates = oturum.sorgula(u"Select * From DovizD Order by Tarih desc"_s);
    QVERIFY(rates.next());
    QCOMPARE(rates.date(u"Tarih"), QDate::currentDate());
}

void StartUpTest::leavingTheLoginEndsTheProgram()
{
    ScriptedMessages messages;
    const TestCompanies companies;
    Oturum oturum;
    oturum.kayitYolu = companies.registry();
    whenLoginIsOpen([](QWidget &login) { QTest::keyClick(&login, Qt::Key_Escape); });
    QVERIFY(start(oturum, messages) == nullptr);
}

void StartUpTest::legacyFilesAreTakenOver()
{
    const QDir examples(qEnvironmentVariable("KUYUM_ORNEK"));
    if (!examples.exists(u"sirket.mdb"_s))
        QSKIP("the example files are not here");
    const QTemporaryDir folder;
    for (const QString &name : {u"sirket.mdb"_s, u"atolye.mdb"_s})
        QVERIFY(QFile::copy(examples.filePath(name), folder.filePath(name)));
    const auto logIn = [](QWidget &login) {
        auto *Kullanici = login.findChild<QComboBox *>(u"Kullanici"_s);
        Kullanici->setCurrentIndex(Kullanici->findText(u"Gülşah Çağlar"_s));
        typeText(login.focusWidget(), u"ğüzel"_s);
        QTest::keyClick(login.focusWidget(), Qt::Key_Return);
    };
    {
        ScriptedMessages messages;
        Oturum oturum;
        oturum.kayitYolu = folder.filePath(u"sirket.mdb"_s);
        whenLoginIsOpen(logIn);
        QVERIFY(start(oturum, messages) != nullptr);
        QCOMPARE(oturum.KullaniciAdi, u"Gülşah Çağlar"_s);
        QCOMPARE(oturum.DataYolu, u"c:\\database\\atolye.mdb"_s);
        QCOMPARE(oturum.Veritabani->path(), folder.filePath(u"atolye.kuyum"_s));
    }
    // Somebody goes on working with the legacy file.
    QFile legacy(folder.filePath(u"atolye.mdb"_s));
    QVERIFY(legacy.setPermissions(QFile::ReadOwner | QFile::WriteOwner));
    QVERIFY(legacy.open(QFile::Append));
    legacy.write(QByteArray(4096, '\0'));
    legacy.close();
    ScriptedMessages messages;
    Oturum oturum;
    oturum.kayitYolu = folder.filePath(u"sirket.mdb"_s);
    messages.expect(
        {.text = u"%1\n\nBu eski dosya aktarıldıktan sonra değiştirilmiş. O günden sonra eski "
                 "programda girilenler burada görünmez; program aktarılmış dosya ile çalışmaya "
                 "devam eder:\n\n%2"_s.arg(
                     QDir::toNativeSeparators(legacy.fileName()),
                     QDir::toNativeSeparators(folder.filePath(u"atolye.kuyum"_s))),
         .icon = MessageIcon::Exclamation});
    whenLoginIsOpen(logIn);
    QVERIFY(start(oturum, messages) != nullptr);
}

void StartUpTest::stoppedTakeOverLeavesNothing()
{
    const QDir examples(qEnvironmentVariable("KUYUM_ORNEK"));
    if (!examples.exists(u"atolye.mdb"_s))
        QSKIP("the example files are not here");
    const QTemporaryDir folder;
    QVERIFY(QFile::copy(examples.filePath(u"atolye.mdb"_s), folder.filePath(u"bir.mdb"_s)));
    const std::unique_ptr<Database> registry = createRegistry(folder.filePath(u"sirket.kuyum"_s));
    addRow(*registry, u"SirketKayit"_s,
           {{u"turkod"_s, u"048"_s},
            {u"Srkkod"_s, 1},
            {u"Srkadi"_s, u"Bir"_s},
            {u"DataYolu"_s, u"c:\\database\\BIR.MDB"_s}});

    ScriptedMessages messages;
    Oturum oturum;
    oturum.kayitYolu = folder.filePath(u"sirket.kuyum"_s);
    const QStringList before = QDir(folder.path()).entryList(QDir::Files);
    messages.expect(u"Aktarma iptal edildi."_s);
    QTimer stop;
    connect(&stop, &QTimer::timeout, this, [] {
        QWidget *window = QApplication::activeModalWidget();
        if (window != nullptr && window->objectName() == "TakeOverWindow"_L1)
            QTest::keyClick(window, Qt::Key_Escape);
    });
    stop.start(0);
    whenLoginIsOpen([&](QWidget &login) {
        QCOMPARE(login.findChild<QComboBox *>(u"Kullanici"_s)->count(), 0);
        QTest::keyClick(&login, Qt::Key_Escape);
    });
    QVERIFY(start(oturum, messages) == nullptr);
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), before);
}

KUYUM_TEST(StartUpTest)

} // namespace kuyum

#include "StartUpTest.moc"
