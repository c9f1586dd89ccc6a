#include "Tanim_User.h"

#include "AnaMenu.h"
#include "DefinitionFixture.h"
#include "Pass_Form.h"
#include "Passwords.h"
#include "TestCompanies.h"
#include "TestRegistry.h"
#include "YetkiGrid.h"

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

/// The menu has items 0, 7 and 17. User 1 is Admin; user 5, O'Hara, may use the
/// user administration and nothing else.
struct Users : DefinitionFixture<Tanim_User>
{
    explicit Users(const QString &name = u"Admin"_s, qint32 number = 1)
    {
        oturum = companies.loggedIn(name, number, {2012, 6, 1});
        addRow(*oturum.Veritabani, u"Menuler"_s,
               {{u"m_ID"_s, 17}, {u"m_Adi"_s, u"Kullanıcılar"_s}});
        addRow(*oturum.Veritabani, u"MenuKisit"_s, {{u"MK_userid"_s, 5}, {u"MK_menuid"_s, 17}});
        open();
    }

    void run(const QString &sql) const { oturum.Veritabani->execute(sql); }
    QList<qint32> marked() const { return control<YetkiGrid>(u"Rapor"_s)->marked(); }
    QList<qint32> rights(qint32 user) const
    {
        QList<qint32> items;
        Recordset rows = oturum.Veritabani->query(
            u"Select * From MenuKisit Where MK_userid = %1 Order by MK_menuid"_s.arg(user));
        while (rows.next())
            items.append(qint32(rows.integer(u"MK_menuid")));
        return items;
    }
    QString user(qint32 number) const
    {
        return row(u"Select * From Users Where User_ID = %1"_s.arg(number));
    }
    /// Everything that the screen writes.
    QStringList everything() const
    {
        QStringList rows;
        for (qint32 number = 1; number < 20; ++number) {
            rows.append(user(number));
            for (const qint32 item : rights(number))
                rows.append(QString::number(item));
        }
        return rows;
    }
    QString note() const { return control<QLabel>(u"bilgi"_s)->text(); }
    void expectWarning(const QString &text)
    {
        messages.expect({.text = text, .icon = MessageIcon::Exclamation});
    }
    void save() const { DefinitionFixture::press(Qt::Key_K, u"cmdKayit"_s); }

    TestCompanies companies;
};

QStringList menuOf(const TestCompanies &companies, const QString &user, const QString &password)
{
    ScriptedMessages messages;
    Oturum oturum;
    oturum.kayitYolu = companies.registry();
    Pass_Form login(oturum, messages);
    login.load();
    login.findChild<QComboBox *>(u"Kullanici"_s)->setCurrentText(user);
    auto *Sifre = login.findChild<QLineEdit *>(u"Sifre"_s);
    typeText(Sifre, password);
    QTest::keyClick(Sifre, Qt::Key_Return);
    if (!oturum.GirisTamam)
        return {u"no login"_s};
    AnaMenu menu(oturum, messages, {});
    menu.load(companies.path(u"yok"_s));
    menu.show();
    QStringList captions;
    for (int number = 0; number < 20; ++number) {
        const auto *button = menu.findChild<QPushButton *>(u"CmdMenu%1"_s.arg(number));
        if (button->isVisible())
            captions.append(button->text());
    }
    return captions;
}

} // namespace

class Tanim_UserTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anothersRightsAreNotTakenBackUnseen()
    {
        Users on;
        on.enter({u"admin"_s});
        on.run(u"Insert into MenuKisit (MK_userid, MK_menuid) values (2, 17)"_s);
        on.run(u"Update Users Set user_lastentry = DateValue('5.5.2012'), user_pass = 'xx' Where "
               "User_ID = 2"_s);
        const QString before = on.user(2);
        // The day of the login is not what the screen writes; a password is not shown.
        on.messages.expectChange(
            {u"Kullanıcı admin|Şifre|••••••|••••••"_s,
             u"Yetki 14|(bütünü)|yok|var"_s, // of no menu item, and so never saved
             u"Yetki Kullanıcılar|(bütünü)|yok|var"_s},
            ChangeAnswer::Back);
        on.save();
        on.messages.verify();
        QCOMPARE(on.user(2), before);
        QCOMPARE(on.rights(2), QList<qint32>({7, 14, 17}));
    }

    void newUserLogsInAndSeesHisMenu()
    {
        const Users on;
        on.enter({u" Ayşe Çınar "_s});
        QCOMPARE(on.control<QLabel>(u"kayitDurumu"_s)->text(), u"Yeni kayıt"_s);
        QCOMPARE(on.focus(), u"User_sifresi"_s);
        on.enter({u"kapışşж ve dahası"_s});
        QCOMPARE(on.focus(), u"Check_Yetki1"_s);
        on.key(Qt::Key_Space);
        on.key(Qt::Key_Return);
        QCOMPARE(on.focus(), u"Rapor"_s);
        on.key(Qt::Key_Space);
        on.key(Qt::Key_Down);
        on.key(Qt::Key_Space);
        QCOMPARE(on.marked(), QList<qint32>({0, 7}));
        on.key(Qt::Key_Return); // goes on; only the space bar turns a mark over
        QCOMPARE(on.marked(), QList<qint32>({0, 7}));
        QCOMPARE(on.focus(), u"cmdKayit"_s);
        on.key(Qt::Key_Return);

        QVERIFY(!on.isEditing());
        QVERIFY(on.note().contains(u"bir sonraki girişinde"_s));
        QCOMPARE(on.control<QLabel>(u"kayitNotu"_s)->text(),
                 u"Ayşe Çınar kullanıcısı kaydedildi."_s);
        QCOMPARE(on.user(8),
                 u"8|Ayşe Çınar|%1|0|01.06.2012|01.06.2012|0|0|1"_s.arg(Sifrele(u"kapışşж "_s)));
        QCOMPARE(menuOf(on.companies, u"Ayşe Çınar"_s, u"kapışşж "_s),
                 QStringList({u"Taş Tanımları"_s, u"Sipariş Girişi"_s}));
    }

    void marksStandOutAndTurnOver()
    {
        const Users on;
        on.enter({u"2"_s}); // its right to 14 is one to no item
        auto *grid = on.control<YetkiGrid>(u"Rapor"_s);
        const QModelIndex marked = grid->model()->index(1, 1);
        QCOMPARE(on.text(u"User_Adi"_s), u"admin"_s);
        QCOMPARE(on.marked(), QList<qint32>({7}));
        const QColor red = marked.data(Qt::ForegroundRole).value<QBrush>().color();
        QVERIFY(red.red() > red.green() + 80 && red.red() > red.blue() + 80);
        QVERIFY(marked.data(Qt::FontRole).value<QFont>().bold());
        for (const QList<qint32> &expected : {QList<qint32>(), QList<qint32>{7}}) {
            QTest::mouseDClick(grid->viewport(), Qt::LeftButton, Qt::NoModifier,
                               grid->visualRect(marked).center());
            QCOMPARE(on.marked(), expected);
        }
        QVERIFY(!grid->model()->index(0, 1).data(Qt::FontRole).value<QFont>().bold());
        // The mark is seen on the selected row as well.
        grid->setCurrentIndex(marked);
        const QRect text = grid->visualRect(marked);
        const QImage row = grid->viewport()->grab(text).toImage();
        int reds = 0;
        for (int x = 0; x < row.width(); ++x) {
            for (int y = 0; y < row.height(); ++y)
                reds += row.pixelColor(x, y) == red ? 1 : 0;
        }
        QVERIFY(reds > 20);
        QCOMPARE(row.pixelColor(row.width() - 9, row.height() / 2),
                 grid->palette().color(QPalette::Base));
    }

    void onlyAChangedPasswordIsShown()
    {
        const Users on;
        on.enter({u"2"_s});
        const auto *shown = on.control<QCheckBox>(u"Check_Goster"_s);
        const auto *box = on.control<QLineEdit>(u"User_sifresi"_s);
        QVERIFY(!shown->isEnabled());
        typeText(on.screen->focusWidget(), u"yeni"_s);
        on.key(Qt::Key_G, Qt::AltModifier);
        QTRY_COMPARE(box->echoMode(), QLineEdit::Normal);
        on.save();
        QCOMPARE(box->echoMode(), QLineEdit::Password);
        QVERIFY(!shown->isEnabled());
    }

    void storedUserKeepsAllButPasswordAndRights()
    {
        const Users on;
        on.run(u"Update Users Set user_level = 3, user_ambkod = 4, User_Sil = 1, user_yetki1 = 1, "
               "user_lastentry = DateValue('02.03.2010') Where User_ID = 2"_s);
        on.enter({u"ADMIN"_s}); // several spellings: the first one
        QCOMPARE(on.text(u"User_Adi"_s), u"Admin"_s);
        on.key(Qt::Key_Escape);
        on.enter({u"admin"_s});
        QCOMPARE(on.text(u"User_sifresi"_s), u"ab"_s);
        QVERIFY(on.control<QCheckBox>(u"Check_Yetki1"_s)->isChecked());
        on.enter({u" a b "_s});
        on.key(Qt::Key_Space);
        on.save();
        QCOMPARE(on.user(2), u"2|admin|%1|3|02.03.2010||4|1|0"_s.arg(Sifrele(u" a b "_s)));
        QCOMPARE(on.rights(2), QList<qint32>({7}));
    }

    void refusals_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("password");
        QTest::addColumn<QString>("message");
        QTest::newRow("none") << u"yeni"_s << u""_s << u"KULLANICI ŞİFRESİNİ BOŞ BIRAKMAYIN..."_s;
        QTest::newRow("blanks") << u"uzun"_s << u"   "_s
                                << u"KULLANICI ŞİFRESİNİ BOŞ BIRAKMAYIN..."_s;
        const QString unstorable =
            u"ŞİFRENİN %1. KARAKTERİ BU YERDE SAKLANAMIYOR, YERİNE BAŞKASINI YAZIN..."_s;
        QTest::newRow("a code too high") << u"yeni"_s << u"a金"_s << unstorable.arg(2);
        QTest::newRow("name of another")
            << u"99"_s << u"1"_s << u"BU ADDA BİR KULLANICI VAR, BAŞKA BİR AD VERİN..."_s;
    }

    void refusals()
    {
        QFETCH(QString, name);
        QFETCH(QString, password);
        QFETCH(QString, message);
        Users on;
        on.run(u"Update Users Set User_Name = '99' Where User_ID = 4"_s);
        const QStringList before = on.everything();
        on.enter({name});
        on.control<QLineEdit>(u"User_sifresi"_s)->clear();
        typeText(on.screen->focusWidget(), password);
        on.expectWarning(message);
        on.save();
        on.messages.verify();
        QCOMPARE(on.everything(), before);
        QVERIFY(on.isEditing());
        QCOMPARE(on.focus(), u"User_sifresi"_s);
        QCOMPARE(on.text(u"User_sifresi"_s), password);
    }

    void ordinaryUserKeepsToHimself()
    {
        Users on(u"O'Hara"_s, 5);
        for (const QString &other : {u"uzun"_s, u"1"_s}) {
            on.messages.expect({.text = u"HATALI SECIM..."_s,
                                .title = u"HATA"_s,
                                .icon = MessageIcon::Exclamation});
            on.enter({other});
            on.messages.verify();
            QVERIFY(!on.isEditing());
        }
        LookupAnswer taken;
        taken.Secilen = u"5"_s;
        on.answers.append(taken);
        on.control<QLineEdit>(u"User_Adi"_s)->clear();
        on.enter();
        QCOMPARE(on.asked.last().ListeTuru, u"Kullanıcı Listesi"_s);
        QCOMPARE(on.text(u"User_Adi"_s), u"O'Hara"_s);
        on.enter({u"yeni"_s});

        const QString refused = u"SİZDE OLMAYAN BİR YETKİYİ VEREMEZSİNİZ..."_s;
        on.expectWarning(refused);
        on.key(Qt::Key_Space);
        on.key(Qt::Key_Return);
        on.expectWarning(refused);
        on.key(Qt::Key_Space);
        on.messages.verify();
        QVERIFY(!on.control<QCheckBox>(u"Check_Yetki1"_s)->isChecked());
        QCOMPARE(on.marked(), QList<qint32>({17}));
        on.save();
        QCOMPARE(menuOf(on.companies, u"O'Hara"_s, u"yeni"_s), QStringList({u"Kullanıcılar"_s}));
    }

    void nobodyIsLockedOut()
    {
        Users on;
        on.enter({u"Admin"_s});
        on.expectWarning(u"KENDİ KAYDINIZI SİLEMEZSİNİZ..."_s);
        on.press(Qt::Key_S, u"cmdsil"_s);
        on.messages.verify();

        // Of the others with the right, one has no password and one is deleted.
        Users last(u"O'Hara"_s, 5);
        last.run(u"Delete * From Users Where User_ID = 1"_s);
        for (const int number : {3, 4})
            addRow(*last.oturum.Veritabani, u"MenuKisit"_s,
                   {{u"MK_userid"_s, number}, {u"MK_menuid"_s, 17}});
        last.enter({u"O'Hara"_s, u"ABC"_s});
        last.key(Qt::Key_Return);
        last.key(Qt::Key_Down);
        last.key(Qt::Key_Down);
        last.key(Qt::Key_Space);
        QCOMPARE(last.marked(), QList<qint32>());
        const QStringList before = last.everything();
        last.expectWarning(u"KULLANICI TANIMLARINA GİREBİLEN BAŞKA KULLANICI YOK, "
                           "BU YETKİ KALDIRILAMAZ..."_s);
        last.save();
        last.expectWarning(u"KULLANICI TANIMLARINA GİREBİLEN BAŞKA KULLANICI YOK, "
                           "BU KULLANICI SİLİNEMEZ..."_s);
        last.press(Qt::Key_S, u"cmdsil"_s);
        last.messages.verify();
        QCOMPARE(last.everything(), before);

        // A missing password is a blank after a repair, and none all the same.
        last.run(u"Update Users Set user_pass = ' ' Where user_pass Is Null"_s);
        last.expectWarning(u"KULLANICI TANIMLARINA GİREBİLEN BAŞKA KULLANICI YOK, "
                           "BU KULLANICI SİLİNEMEZ..."_s);
        last.press(Qt::Key_S, u"cmdsil"_s);
        last.messages.verify();
    }

    void removesTheUserWithHisRights()
    {
        Users on;
        const QStringList before = on.everything();
        on.enter({u"5"_s});
        on.remove(u"KULLANICI TANIMI SILINECEK ?"_s, MessageAnswer::No, MessageAnswer::No);
        QCOMPARE(on.everything(), before);
        on.remove(u"KULLANICI TANIMI SILINECEK ?"_s, MessageAnswer::No, MessageAnswer::Yes);
        QCOMPARE(on.user(5), u"none"_s);
        QCOMPARE(on.rights(5), QList<qint32>());
        QCOMPARE(on.rights(2), QList<qint32>({7, 14}));
        QVERIFY(!UsersStore(on.oturum).activeNames().contains(u"O'Hara"_s));
    }

    void firstUserTakesNumberOneAndNoOldRights()
    {
        const Users on;
        on.run(u"Delete * From Users"_s);
        addRow(*on.oturum.Veritabani, u"MenuKisit"_s, {{u"MK_userid"_s, 1}, {u"MK_menuid"_s, 7}});
        on.enter({u"ilk"_s});
        QCOMPARE(on.marked(), QList<qint32>());
        on.enter({u"x"_s});
        on.save();
        QVERIFY(on.user(1).startsWith(u"1|ilk|"_s));
        QCOMPARE(on.rights(1), QList<qint32>());
    }

    void changesAreNotLostUnasked()
    {
        Users on;
        on.enter({u"2"_s, u"ab"_s}); // the password as it was
        on.key(Qt::Key_Escape);
        QVERIFY(!on.isEditing());
        for (const auto &leave : std::initializer_list<std::function<void()>>{
                 [&] { on.key(Qt::Key_Escape); }, [&] { on.press(Qt::Key_V, u"cmdvazgec"_s); },
                 [&] { on.screen->close(); }}) {
            on.enter({u"2"_s, QString()});
            on.key(Qt::Key_Return);
            on.key(Qt::Key_Space); // a right
            for (const MessageAnswer answer : {MessageAnswer::No, MessageAnswer::Yes}) {
                QVERIFY(on.isEditing());
                on.messages.expect({.text = u"DEĞİŞİKLİKLER KAYIT EDİLMEDİ, VAZGEÇİLSİN Mİ ?"_s,
                                    .answer = answer,
                                    .icon = MessageIcon::Exclamation,
                                    .defaultAnswer = MessageAnswer::No});
                leave();
                on.messages.verify();
            }
        }
        QVERIFY(!on.screen->isVisible());
        QCOMPARE(on.rights(2), QList<qint32>({7, 14}));
    }

    void failedSaveWritesNothing()
    {
        Users on;
        on.oturum.Veritabani->engine().run(
            u"CREATE TRIGGER full BEFORE INSERT ON MenuKisit WHEN NEW.MK_menuid = 7 "
            "BEGIN SELECT RAISE(ABORT, 'disk dolu'); END"_s);
        const QStringList before = on.everything();
        on.enter({u"2"_s, u"yeni"_s});
        on.key(Qt::Key_Return);
        on.key(Qt::Key_Space);
        on.messages.expect(u"Kayıt, tablonun anahtarlarına uymuyor. (disk dolu)"_s);
        on.save();
        QCOMPARE(on.everything(), before);
        QVERIFY(on.isEditing());
        QCOMPARE(on.marked(), QList<qint32>({0, 7}));
    }
};

KUYUM_TEST(Tanim_UserTest)

} // namespace kuyum

#include "Tanim_UserTest.moc"
