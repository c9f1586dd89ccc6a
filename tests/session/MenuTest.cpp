#include "AnaMenu.h"
#include "DailyRates.h"
#include "MenuStore.h"
#include "ScriptedMessages.h"
#include "TestCompanies.h"
#include "TestRegistry.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

/// Screens that only note which one was opened, how, and that it is gone.
struct NotedScreens
{
    MenuScreens forNumbers(const QList<int> &numbers, Oturum &oturum)
    {
        MenuScreens screens;
        for (const int number : numbers) {
            screens[number] = [this, number, &oturum](QWidget *parent) {
                auto screen = std::make_unique<QDialog>(parent);
                opened.append(number);
                modes.append(oturum.RaporTuru);
                QObject::connect(screen.get(), &QObject::destroyed, [this] { ++unloaded; });
                QTimer::singleShot(0, screen.get(), [this, screen = screen.get()] {
                    modal = modal && QApplication::activeModalWidget() == screen;
                    screen->reject();
                });
                return screen;
            };
        }
        return screens;
    }

    QList<int> opened;
    QStringList modes;
    int unloaded = 0;
    bool modal = true;
};

static QList<int> allScreens()
{
    QList<int> numbers;
    for (int number = 0; number < 20; ++number) {
        if (number < 14 || number > 16)
            numbers.append(number);
    }
    return numbers;
}

static int ratesOn(Oturum &oturum, const QString &date)
{
    int count = 0;
    Recordset rows =
        oturum.sorgula(u"Select * From DovizD Where Tarih = DateValue('%1')"_s.arg(date));
    while (rows.next())
        ++count;
    return count;
}

class MenuTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void menuFileSaysNumberBlankCaption();
    void menuFileAddsOnlyWhatIsMissing();
    void rights_data();
    void rights();
    void numbersWithoutAScreenAreDisabled();
    void opensScreensByKeys();
    void fixedButtonsOpenTheSameScreens();
    void failureOfAScreenLeavesTheMenu();
    void ratesAreCarriedOnce();

private:
    QStringList shownCaptions(const AnaMenu &menu) const;
};

QStringList MenuTest::shownCaptions(const AnaMenu &menu) const
{
    QStringList captions;
    for (int number = 0; number < 20; ++number) {
        const auto *button = menu.findChild<QPushButton *>(u"CmdMenu%1"_s.arg(number));
        if (button->isVisible())
            captions.append(u"%1 %2"_s.arg(number).arg(button->text()));
    }
    return captions;
}

void MenuTest::menuFileSaysNumberBlankCaption()
{
    const QString text = u"3 Model Tanımları\r\nBaşlık\r\n\r\n12 Üretim  Şeması \r19 Yenile"_s;
    QByteArray old = text.toUtf8();
    for (const auto &[letter, code] :
         {std::pair{u"ı"_s, '\xfd'}, {u"ş"_s, '\xfe'}, {u"Ü"_s, '\xdc'}, {u"Ş"_s, '\xde'}})
        old.replace(letter.toUtf8(), QByteArray(1, code));
    for (const QByteArray &content : {text.toUtf8(), old}) {
        const QList<MenuOgesi> items = parseMenuFile(content);
        QCOMPARE(items.size(), 3);
        QCOMPARE(items[0].m_ID, 3);
        QCOMPARE(items[0].m_Adi, u"Model Tanımları"_s);
        QCOMPARE(items[1].m_ID, 12);
        QCOMPARE(items[1].m_Adi, u"Üretim  Şeması "_s);
        QCOMPARE(items[2].m_ID, 19);
    }
}

void MenuTest::menuFileAddsOnlyWhatIsMissing()
{
    const TestCompanies companies;
    Oturum oturum = companies.loggedIn(u"Admin"_s, 1, {2012, 3, 2});
    QFile file(companies.path(u"Siparismenusu.txt"_s));
    QVERIFY(file.open(QFile::WriteOnly));
    file.write("7 Başka Ad\n18 Ayarlar\n40 Düğmesi yok\n18 İkinci kez\n");
    file.close();
    ScriptedMessages messages;
    AnaMenu menu(oturum, messages, {});
    menu.load(QFileInfo(file).path());
    menu.show();
    QCOMPARE(shownCaptions(menu),
             QStringList({u"0 Taş Tanımları"_s, u"7 Sipariş Girişi"_s, u"18 Ayarlar"_s}));
    Recordset item = oturum.sorgula(u"Select * From Menuler Where M_Id = 40"_s);
    QVERIFY(item.next());
    QCOMPARE(item.text(u"m_Adi"), u"Düğmesi yok"_s);
}

void MenuTest::rights_data()
{
    QTest::addColumn<QString>("user");
    QTest::addColumn<int>("number");
    QTest::addColumn<QStringList>("shown");
    const QStringList all = {u"0 Taş Tanımları"_s, u"7 Sipariş Girişi"_s, u"14 Boş"_s};
    QTest::newRow("Admin") << u"Admin"_s << 1 << all;
    QTest::newRow("ADMIN") << u"ADMIN"_s << 77 << all;
    QTest::newRow("admin") << u"admin"_s << 2 << QStringList({u"7 Sipariş Girişi"_s, u"14 Boş"_s});
    QTest::newRow("none") << u"yeni"_s << 5 << QStringList();
}

void MenuTest::rights()
{
    QFETCH(QString, user);
    QFETCH(int, number);
    const TestCompanies companies;
    Oturum oturum = companies.loggedIn(user, number, {2012, 3, 2});
    addRow(*oturum.Veritabani, u"Menuler"_s, {{u"m_ID"_s, 14}, {u"m_Adi"_s, u"Boş"_s}});
    ScriptedMessages messages;
    AnaMenu menu(oturum, messages, {});
    menu.load(companies.path(u"yok"_s));
    menu.show();
    QCOMPARE(menu.windowTitle(), u"Işıl Atölye -----> "_s + user);
    QTEST(shownCaptions(menu), "shown");
    const auto *banner = menu.statusBar()->findChild<QLabel *>();
    QVERIFY(banner->text().endsWith(u"Ver : 2012.03"_s));
}

void MenuTest::numbersWithoutAScreenAreDisabled()
{
    const TestCompanies companies;
    Oturum oturum = companies.loggedIn(u"Admin"_s, 1, {2012, 3, 2});
    addRow(*oturum.Veritabani, u"Menuler"_s, {{u"m_ID"_s, 14}, {u"m_Adi"_s, u"Boş"_s}});
    ScriptedMessages messages;
    NotedScreens noted;
    AnaMenu menu(oturum, messages, noted.forNumbers({7}, oturum));
    menu.load(companies.path(u"yok"_s));
    menu.show();
    QVERIFY(menu.findChild<QPushButton *>(u"CmdMenu7"_s)->isEnabled());
    QVERIFY(menu.findChild<QPushButton *>(u"Cmd6"_s)->isEnabled());
    for (const QString &name : {u"CmdMenu0"_s, u"CmdMenu14"_s, u"Cmd1"_s, u"Cmd15"_s}) {
        auto *button = menu.findChild<QPushButton *>(name);
        QVERIFY2(!button->isEnabled() && !button->toolTip().isEmpty(), qPrintable(name));
        QTest::mouseClick(button, Qt::LeftButton);
    }
    QCOMPARE(noted.opened, QList<int>());
}

void MenuTest::opensScreensByKeys()
{
    const TestCompanies companies;
    Oturum oturum = companies.loggedIn(u"Admin"_s, 1, {2012, 3, 2});
    for (int number = 1; number < 20; ++number) {
        if (number != 7)
            addRow(*oturum.Veritabani, u"Menuler"_s,
                   {{u"m_ID"_s, number}, {u"m_Adi"_s, u"Öge %1"_s.arg(number)}});
    }
    ScriptedMessages messages;
    NotedScreens noted;
    AnaMenu menu(oturum, messages, noted.forNumbers(allScreens(), oturum));
    menu.load(companies.path(u"yok"_s));
    menu.show();
    QVERIFY(QTest::qWaitForWindowActive(&menu));
    const auto press = [&menu](Qt::Key key) { QTest::keyClick(menu.focusWidget(), key); };

    QCOMPARE(menu.focusWidget()->objectName(), u"CmdMenu0"_s);
    press(Qt::Key_Return);
    press(Qt::Key_Down);
    press(Qt::Key_Space);
    press(Qt::Key_Right); // one column on; its buttons stand beside this one
    const QWidget *beside = menu.focusWidget();
    QCOMPARE(beside->y(), menu.findChild<QWidget *>(u"CmdMenu1"_s)->y());
    QVERIFY(beside->x() > menu.findChild<QWidget *>(u"CmdMenu1"_s)->x());
    QTest::keyClicks(menu.focusWidget(), u"12"_s);
    press(Qt::Key_Enter);
    QTest::keyClicks(menu.focusWidget(), u"13"_s);
    press(Qt::Key_Enter);
    menu.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&menu));
    QTest::keyClick(&menu, Qt::Key_S, Qt::AltModifier);
    QTRY_COMPARE(noted.unloaded, 5);
    // A number without a button says so, and Enter opens nothing.
    const auto *hint = menu.findChild<QLabel *>(u"hint"_s);
    QTest::keyClicks(menu.focusWidget(), u"15"_s);
    QVERIFY(hint->text().startsWith(u"15 numaralı"_s));
    press(Qt::Key_Return);
    press(Qt::Key_Down);
    QCOMPARE(menu.focusWidget()->objectName(), u"CmdMenu0"_s);

    QCOMPARE(noted.opened, QList<int>({0, 1, 12, 13, 7}));
    QCOMPARE(noted.modes[2], u"URETIM RAPORU"_s);
    QCOMPARE(noted.modes[3], u"SIPARIS KONTROL"_s);
    QVERIFY(noted.modal);
    QVERIFY(menu.isVisible());
}

void MenuTest::fixedButtonsOpenTheSameScreens()
{
    const TestCompanies companies;
    Oturum oturum = companies.loggedIn(u"gizem"_s, 50, {2012, 3, 2});
    ScriptedMessages messages;
    NotedScreens noted;
    AnaMenu menu(oturum, messages, noted.forNumbers(allScreens(), oturum));
    menu.load(companies.path(u"yok"_s));
    menu.show();
    const QStringList names = {u"Cmd1"_s,  u"cmd2"_s,  u"Cmd3"_s,  u"Cmd4"_s,  u"Cmd5"_s,
                               u"Cmd6"_s,  u"Cmd7"_s,  u"Cmd8"_s,  u"Cmd9"_s,  u"Cmd10"_s,
                               u"Cmd11"_s, u"Cmd12"_s, u"Cmd13"_s, u"Cmd14"_s, u"Cmd15"_s};
    for (const QString &name : names)
        menu.findChild<QPushButton *>(name)->click();
    QCOMPARE(noted.opened, QList<int>({1, 0, 19, 2, 3, 7, 11, 18, 4, 5, 9, 8, 10, 6, 12}));
    QCOMPARE(noted.modes.last(), u"URETIM RAPORU"_s);
    menu.findChild<QPushButton *>(u"Son_Cmd"_s)->click();
    QVERIFY(!menu.isVisible());
}

void MenuTest::failureOfAScreenLeavesTheMenu()
{
    const TestCompanies companies;
    Oturum oturum = companies.loggedIn(u"Admin"_s, 1, {2012, 3, 2});
    ScriptedMessages messages;
    AnaMenu menu(oturum, messages, {{7, [](QWidget *) -> std::unique_ptr<QDialog> {
                                         throw DatabaseError(u"dosya kilitli"_s);
                                     }}});
    menu.load(companies.path(u"yok"_s));
    menu.show();
    messages.expect({.text = u"dosya kilitli"_s, .icon = MessageIcon::Critical});
    menu.findChild<QPushButton *>(u"Cmd6"_s)->click();
    messages.verify();
    QVERIFY(menu.isVisible());
}

void MenuTest::ratesAreCarriedOnce()
{
    const TestCompanies companies;
    Oturum oturum = companies.loggedIn(u"Admin"_s, 1, {2012, 3, 5});
    carryRatesForward(oturum);
    QCOMPARE(ratesOn(oturum, u"05.03.2012"_s), 1);
    Recordset copy =
        oturum.sorgula(u"Select * From DovizD Where Tarih = DateValue('05.03.2012')"_s);
    QVERIFY(copy.next());
    QCOMPARE(copy.text(u"Dovcinsi"), u"USD"_s);
    QCOMPARE(copy.number(u"Kur"), 1.9);
    QCOMPARE(copy.number(u"aliskur"), 1.8);

    carryRatesForward(oturum);
    QCOMPARE(ratesOn(oturum, u"05.03.2012"_s), 1);
    // The date's own rates stay, and before the first ones there is nothing.
    for (const QDate date : {QDate(2012, 3, 1), QDate(2012, 2, 1)}) {
        oturum.CalismaTarihi = date;
        carryRatesForward(oturum);
    }
    QCOMPARE(ratesOn(oturum, u"01.03.2012"_s), 2);
    QCOMPARE(ratesOn(oturum, u"01.02.2012"_s), 0);
}

KUYUM_TEST(MenuTest)

} // namespace kuyum

#include "MenuTest.moc"
