#include "DateBox.h"
#include "Pass_Form.h"
#include "Schema.h"
#include "ScriptedMessages.h"
#include "TestCompanies.h"
#include "TestRegistry.h"
#include "Typing.h"
#include "UsersStore.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

/// An open login window, worked with the keys.
class LoginOnScreen
{
public:
    explicit LoginOnScreen(Messages &messages) : form(oturum, messages)
    {
        oturum.kayitYolu = companies.registry();
    }

    bool open()
    {
        const bool loaded = form.load();
        form.show();
        return QTest::qWaitForWindowActive(&form) && loaded;
    }
    template <typename Widget>
    Widget *find(const QString &name) const
    {
        return form.findChild<Widget *>(name);
    }
    /// As a user does: to the list, then its first letters.
    void choose(const QString &list, const QString &text) const
    {
        auto *box = find<QComboBox>(list);
        box->setFocus();
        QTest::keyClick(box, Qt::Key_Home);
        for (int i = 0; i < box->count() && box->currentText() != text; ++i)
            QTest::keyClick(box, Qt::Key_Down);
        QCOMPARE(box->currentText(), text);
    }
    void typePassword(const QString &text, bool enter = true)
    {
        auto *Sifre = find<QLineEdit>(u"Sifre"_s);
        Sifre->setFocus();
        Sifre->selectAll();
        QTest::keyClicks(Sifre, text);
        if (enter)
            QTest::keyClick(Sifre, Qt::Key_Return);
    }
    QStringList entries(const QString &list) const
    {
        QStringList texts;
        for (int i = 0; i < find<QComboBox>(list)->count(); ++i)
            texts.append(find<QComboBox>(list)->itemText(i));
        return texts;
    }

    TestCompanies companies;
    Oturum oturum;
    Pass_Form form;
};

class LoginTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void passwordAndEnterAreEnough();
    void enterGoesOnThroughTheFields();
    void refusals_data();
    void refusals();
    void ninthCharacterChecksTheFirstEight();
    void exactNameCountsAmongSpellings();
    void listsActiveUsersAndCompaniesInOrder();
    void companyThatCannotBeOpened();
    void companyThatIsGoneFromTheRegistry();
    void emptyRegistryEndsTheProgram();
    void registryWithoutCompaniesStaysOpen();
    void workingDate();
};

void LoginTest::passwordAndEnterAreEnough()
{
    ScriptedMessages messages;
    LoginOnScreen login(messages);
    QVERIFY(login.open());
    QCOMPARE(QApplication::focusWidget(), login.find<QLineEdit>(u"Sifre"_s));
    QTest::keyClicks(QApplication::focusWidget(), u"1234"_s);
    QVERIFY(!login.oturum.GirisTamam);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Enter);

    const Oturum &oturum = login.oturum;
    QVERIFY(oturum.GirisTamam);
    QVERIFY(!login.form.isVisible());
    QCOMPARE(oturum.KullaniciAdi, u"Admin"_s);
    QCOMPARE(oturum.KullaniciNo, 1);
    QCOMPARE(oturum.SirketKodu, 1);
    QCOMPARE(oturum.SirketAdi, u"Işıl Atölye"_s);
    QCOMPARE(oturum.DataYolu, u"c:\\database\\BIR.kuyum"_s);
    QCOMPARE(oturum.ResimYolu, login.companies.path(u"Database/Resimler"_s));
    QCOMPARE(oturum.Transferyolu, login.companies.path(u"gelen"_s));
    QCOMPARE(oturum.CalismaTarihi, QDate::currentDate());
    QVERIFY(oturum.Veritabani->hasTable(u"SiparisB"_s));
}

void LoginTest::enterGoesOnThroughTheFields()
{
    ScriptedMessages messages;
    LoginOnScreen login(messages);
    QVERIFY(login.open());
    login.find<QWidget>(u"Srkkod"_s)->setFocus();
    for (const QString &next : {u"Kullanici"_s, u"SisTrhx"_s, u"Sifre"_s}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCOMPARE(QApplication::focusWidget()->objectName(), next);
    }
    QTest::keyClick(&login.form, Qt::Key_Escape);
    QVERIFY(!login.form.isVisible() && !login.oturum.GirisTamam);
}

void LoginTest::refusals_data()
{
    QTest::addColumn<QString>("user");
    QTest::addColumn<QString>("password");
    QTest::addColumn<QString>("message");
    const QString wrong = u"<<< GIRIS SIFRESI HATALI >>>    "_s;
    QTest::newRow("wrong password") << u"Admin"_s << u"4321"_s << wrong;
    QTest::newRow("no password typed") << u"Admin"_s << QString() << wrong;
    QTest::newRow("letter case") << u"O'Hara"_s << u"abc"_s << wrong;
    QTest::newRow("stored text was never scrambled") << u"bozuk"_s << u"x"_s << wrong;
    QTest::newRow("no stored password") << u"şifresiz"_s << QString() << QString();
}

void LoginTest::refusals()
{
    QFETCH(QString, user);
    QFETCH(QString, password);
    QFETCH(QString, message);
    ScriptedMessages messages;
    LoginOnScreen login(messages);
    QVERIFY(login.open());
    login.choose(u"Kullanici"_s, user);
    if (!message.isEmpty())
        messages.expect({.text = message, .icon = MessageIcon::Critical});
    login.typePassword(password);
    messages.verify();
    QVERIFY(login.form.isVisible());
    QVERIFY(!login.oturum.GirisTamam);
}

void LoginTest::ninthCharacterChecksTheFirstEight()
{
    ScriptedMessages messages;
    LoginOnScreen login(messages);
    QVERIFY(login.open());
    messages.expect(u"<<< GIRIS SIFRESI HATALI >>>    "_s);
    login.typePassword(u"123412345"_s, false);
    messages.verify();
    QCOMPARE(login.find<QLineEdit>(u"Sifre"_s)->text(), u"12341234"_s);

    login.choose(u"Kullanici"_s, u"uzun"_s);
    login.typePassword(u"123456789"_s, false);
    QVERIFY(login.oturum.GirisTamam);
}

void LoginTest::exactNameCountsAmongSpellings()
{
    ScriptedMessages messages;
    LoginOnScreen login(messages);
    QVERIFY(login.open());
    login.choose(u"Kullanici"_s, u"admin"_s);
    messages.expect(u"<<< GIRIS SIFRESI HATALI >>>    "_s);
    login.typePassword(u"1234"_s);
    messages.verify();
    login.typePassword(u"ab"_s);
    QCOMPARE(login.oturum.KullaniciAdi, u"admin"_s);
    QCOMPARE(login.oturum.KullaniciNo, 2);
    QCOMPARE(login.oturum.SonSQL, u"select * from Users where user_name = 'admin'"_s);
}

void LoginTest::listsActiveUsersAndCompaniesInOrder()
{
    ScriptedMessages messages;
    LoginOnScreen login(messages);
    QVERIFY(login.open());
    QCOMPARE(login.entries(u"Srkkod"_s), QStringList({u"Işıl Atölye"_s, u"Kayıp"_s, u"İkinci"_s}));
    QCOMPARE(login.entries(u"Kullanici"_s), QStringList({u"Admin"_s, u"admin"_s, u"şifresiz"_s,
                                                         u"O'Hara"_s, u"uzun"_s, u"bozuk"_s}));
    // The check itself finds deleted users too.
    QCOMPARE(UsersStore(login.oturum).find(u"eski"_s).value().User_ID, 3);
    QVERIFY(!UsersStore(login.oturum).find(u"yok"_s).has_value());

    // A user deleted at another place while the window stood open.
    login.choose(u"Kullanici"_s, u"uzun"_s);
    login.oturum.Veritabani->execute(u"Delete * From Users Where User_ID = 6"_s);
    messages.expect({.text = u"KULLANICI SECIMI YAPINIZ..."_s, .icon = MessageIcon::Critical});
    login.typePassword(u"12345678"_s);
    messages.verify();

    // Typing finds i, ı, I and İ by each other, and opens what it finds.
    typeText(login.find<QComboBox>(u"Srkkod"_s), u"ık"_s);
    QCOMPARE(login.oturum.SirketAdi, u"İkinci"_s);
}

void LoginTest::companyThatCannotBeOpened()
{
    ScriptedMessages messages;
    LoginOnScreen login(messages);
    QVERIFY(login.open());
    messages.expect({.text = u"c:\\database\\yok.mdb  ,BULUNAMADI..."_s,
                     .title = u"DATA YOLU HATASI"_s,
                     .icon = MessageIcon::Information});
    login.choose(u"Srkkod"_s, u"Kayıp"_s);
    messages.verify();
    QVERIFY(login.form.isVisible());
    QCOMPARE(login.entries(u"Kullanici"_s), QStringList());
    // No company is open: the password of the one before lets nobody in.
    login.typePassword(u"1234"_s);
    QVERIFY(!login.oturum.GirisTamam);

    messages.expect(u"c:\\database\\yok.mdb  ,BULUNAMADI..."_s);
    login.choose(u"Srkkod"_s, u"İkinci"_s);
    messages.verify();
    QCOMPARE(login.find<QComboBox>(u"Kullanici"_s)->currentIndex(), -1);
    login.choose(u"Kullanici"_s, u"tek"_s);
    login.typePassword(u"x"_s);
    QVERIFY(login.oturum.GirisTamam);
    QCOMPARE(login.oturum.SirketKodu, 4);
}

void LoginTest::companyThatIsGoneFromTheRegistry()
{
    ScriptedMessages messages;
    LoginOnScreen login(messages);
    QVERIFY(login.open());
    openRegistry(login.companies.registry())
        ->execute(u"Delete * From SirketKayit Where Srkkod = 3"_s);
    messages.expect({.text = u"3 Tanimli Degil."_s, .icon = MessageIcon::Critical});
    login.choose(u"Srkkod"_s, u"Kayıp"_s);
    messages.verify();
    QVERIFY(login.form.isVisible());
}

void LoginTest::emptyRegistryEndsTheProgram()
{
    ScriptedMessages messages;
    LoginOnScreen login(messages);
    openRegistry(login.companies.registry())->execute(u"Delete * From SirketKayit"_s);
    messages.expect(
        {.text = u"Tanımlı Şirket Kaydına Rastlanmadı."_s, .icon = MessageIcon::Critical});
    QVERIFY(!login.form.load());
}

void LoginTest::registryWithoutCompaniesStaysOpen()
{
    ScriptedMessages messages;
    LoginOnScreen login(messages);
    openRegistry(login.companies.registry())
        ->execute(u"Delete * From SirketKayit Where turkod = '048'"_s);
    QVERIFY(login.open());
    QCOMPARE(login.entries(u"Srkkod"_s), QStringList());
    login.typePassword(u"1234"_s);
    QVERIFY(login.form.isVisible());
    QVERIFY(login.oturum.Veritabani == nullptr);
}

void LoginTest::workingDate()
{
    ScriptedMessages messages;
    LoginOnScreen login(messages);
    QVERIFY(login.open());
    auto *SisTrhx = login.find<DateBox>(u"SisTrhx"_s);
    const auto type = [&](const QString &digits) {
        SisTrhx->setFocus();
        QTest::keyClick(SisTrhx, Qt::Key_Home);
        QTest::keyClicks(SisTrhx, digits);
        QTest::keyClick(SisTrhx, Qt::Key_Return);
    };
    messages.expect({.text = u"GIRDIGINIZ TARIH HATALI..."_s, .icon = MessageIcon::Critical});
    type(u"31022012"_s);
    messages.verify();
    QCOMPARE(SisTrhx->date(), QDate::currentDate());

    type(u"29022012"_s);
    QCOMPARE(SisTrhx->text(), u"29.02.2012"_s);
    login.typePassword(u"1234"_s);
    QCOMPARE(login.oturum.CalismaTarihi, QDate(2012, 2, 29));
}

KUYUM_TEST(LoginTest)

} // namespace kuyum

#include "LoginTest.moc"
