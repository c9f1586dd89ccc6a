#include "Tanim_Tas.h"
#include "DefinitionFixture.h"
#include "TestRegistry.h"

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

struct Stones : DefinitionFixture<Tanim_Tas>
{
    QString stone(const QString &code) const
    {
        return row(u"Select Taskodu, TasFiyati, TasBirimi, TasKatsayi, tastarih From Tas "
                   "Where Taskodu = '%1'"_s.arg(code));
    }
};

} // namespace

/// The stones, and with them what all definition screens have in common.
class Tanim_TasTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void addsAStoneByKeyboard()
    {
        const Stones on;
        QCOMPARE(on.focus(), u"Taskodu"_s);
        QCOMPARE(on.text(u"TasBirimi"_s), u"USD"_s);
        on.enter({u"  O'Hara İğneŞ "_s});
        QVERIFY(on.isEditing());
        QCOMPARE(on.control<QLabel>(u"kayitDurumu"_s)->text(), u"Yeni kayıt"_s);
        QCOMPARE(on.focus(), u"TasFiyati"_s);
        on.enter({u"12,5"_s});
        QCOMPARE(on.focus(), u"TasBirimi"_s);
        on.enter({u"e"_s, u"0,004"_s});
        QCOMPARE(on.focus(), u"cmdKayit"_s);
        on.enter();
        QCOMPARE(on.stone(u"O''Hara İğneŞ"_s), u"O'Hara İğneŞ|12.5|EUR|0.004|01.06.2012"_s);
        QVERIFY(!on.isEditing());
        QCOMPARE(on.focus(), u"Taskodu"_s);
        QCOMPARE(on.text(u"Taskodu"_s) + on.text(u"TasFiyati"_s) + on.text(u"TasKatsayi"_s),
                 QString());
        QCOMPARE(on.text(u"TasBirimi"_s), u"USD"_s);
    }

    void theUserChoosesWhoseChangeStays()
    {
        Stones on;
        const auto other = [&](double price) {
            on.oturum.Veritabani->execute(
                u"Update Tas Set TasFiyati = %1 Where TasID = 1"_s.arg(price));
        };
        const auto type = [&] {
            on.enter({u"ZRK 2"_s, u"7"_s});
            other(3);
        };
        const auto change = [](const QString &mine, const QString &standing) {
            return QStringList{u"Taş ZRK 2|Fiyatı|%1|%2"_s.arg(mine, standing)};
        };
        type();
        on.messages.expectChange(change(u"7"_s, u"3"_s), ChangeAnswer::Back);
        on.press(Qt::Key_K, u"cmdKayit"_s);
        QCOMPARE(on.text(u"TasFiyati"_s), u"7"_s);
        // Changed once more while the box stands open: asked once more.
        on.messages.expectChange(change(u"7"_s, u"3"_s), ChangeAnswer::Mine, [&] { other(4); });
        on.messages.expectChange(change(u"7"_s, u"4"_s), ChangeAnswer::Theirs);
        on.press(Qt::Key_K, u"cmdKayit"_s);
        QVERIFY(on.isEditing());
        QCOMPARE(on.text(u"TasFiyati"_s), u"4.00"_s);
        on.key(Qt::Key_Escape);
        type();
        on.messages.expectChange(change(u"7"_s, u"3"_s), ChangeAnswer::Mine);
        on.press(Qt::Key_K, u"cmdKayit"_s);
        QCOMPARE(on.stone(u"ZRK 2"_s).section(u'|', 1, 1), u"7"_s);
        QVERIFY(!on.isEditing());

        // A removal, and a new stone whose code another took meanwhile.
        on.enter({u"ZRK 2"_s});
        other(5);
        on.messages.expect(u"ZRK 2 SİLİNECEK. ONAYLIYORMUSUNUZ.?"_s, MessageAnswer::Yes);
        on.messages.expectChange(
            {u"Taş ZRK 2|(bütünü)|yok|Fiyatı: 5, Birimi: USD, Katsayısı: 0.02"_s},
            ChangeAnswer::Mine);
        on.press(Qt::Key_S, u"cmdsil"_s);
        QCOMPARE(on.stone(u"ZRK 2"_s), u"none"_s);
        on.enter({u"yeni"_s, u"1"_s});
        on.oturum.Veritabani->execute(u"Insert into Tas (Taskodu, TasFiyati) values ('YENI', 9)"_s);
        on.messages.expectChange(
            {u"Taş yeni|Fiyatı|1|9"_s, u"Taş yeni|Birimi|USD|"_s, u"Taş yeni|Katsayısı|0|"_s},
            ChangeAnswer::Theirs);
        on.press(Qt::Key_K, u"cmdKayit"_s);
        on.messages.verify();
        QCOMPARE(on.text(u"TasFiyati"_s), u"9.00"_s);
        QCOMPARE(on.control<QLabel>(u"kayitDurumu"_s)->text(), u"Kayıtlı"_s);
    }

    void changesAStone()
    {
        const Stones on;
        on.oturum.Veritabani->execute(u"Update Tas Set tastarih = DateValue('02.03.2010'), "
                                      "TasFiyati = 0.034 Where TasID = 1"_s);
        on.enter({u"zrk 2"_s});
        QCOMPARE(on.control<QLabel>(u"kayitDurumu"_s)->text(), u"Kayıtlı"_s);
        QCOMPARE(on.text(u"Taskodu"_s), u"ZRK 2"_s);
        QCOMPARE(on.text(u"TasFiyati"_s), u"0.03"_s);
        QCOMPARE(on.text(u"TasKatsayi"_s), u"0.020000"_s);
        // A field that is entered is typed over; one passed by keeps its exact value.
        on.enter({QString(), QString(), u".5"_s, QString()});
        QCOMPARE(on.stone(u"ZRK 2"_s), u"ZRK 2|0.034|USD|0.5|02.03.2010"_s);
        // Typed as it was shown, it counts as it was typed.
        on.enter({u"ZRK 2"_s, u"0.03"_s});
        on.press(Qt::Key_K, u"cmdKayit"_s);
        QCOMPARE(on.stone(u"ZRK 2"_s), u"ZRK 2|0.03|USD|0.5|02.03.2010"_s);
    }

    void picksFromTheList()
    {
        Stones on;
        on.enter();
        QVERIFY(!on.isEditing());
        QCOMPARE(on.focus(), u"Taskodu"_s);
        typeText(on.screen->focusWidget(), u"p"_s);
        LookupAnswer taken;
        taken.Secilen = u"PRL 1"_s;
        on.answers.append(taken);
        on.press(Qt::Key_L, u"cmdListe"_s);
        QCOMPARE(on.asked.size(), 2);
        QCOMPARE(on.asked[1].ListeTuru, u"Tas Listesi"_s);
        QCOMPARE(on.asked[1].ListeFiltre, u"p"_s);
        QVERIFY(on.isEditing());
        QCOMPARE(on.text(u"TasBirimi"_s), u"EUR"_s);
        QCOMPARE(on.text(u"TasFiyati"_s), u"80.00"_s);
    }

    void keepsTheModesApart()
    {
        const Stones on;
        const QStringList editing = {u"TasFiyati"_s, u"TasBirimi"_s, u"TasKatsayi"_s,
                                     u"cmdKayit"_s,  u"cmdvazgec"_s, u"cmdsil"_s};
        const auto enabled = [&on](const QString &name) { return on.control(name)->isEnabled(); };
        QCOMPARE(std::count_if(editing.begin(), editing.end(), enabled), 0);
        QVERIFY(enabled(u"Taskodu"_s) && enabled(u"cmdListe"_s) && enabled(u"cmdSon"_s));
        on.enter({u"PRL 1"_s});
        QCOMPARE(std::count_if(editing.begin(), editing.end(), enabled), 6);
        QVERIFY(!enabled(u"Taskodu"_s) && !enabled(u"cmdListe"_s) && enabled(u"cmdSon"_s));
        on.press(u"cmdvazgec"_s);
        on.enter({u"yeni"_s});
        QVERIFY(enabled(u"cmdKayit"_s) && !enabled(u"cmdsil"_s));
    }

    void leavesWithoutSaving()
    {
        const Stones on;
        const QString before = on.stone(u"PRL 1"_s);
        on.enter({u"PRL 1"_s, u"99"_s});
        on.key(Qt::Key_Escape);
        QVERIFY(on.screen->isVisible() && !on.isEditing());
        on.enter({u"PRL 1"_s, u"99"_s});
        on.press(Qt::Key_V, u"cmdvazgec"_s);
        QVERIFY(!on.isEditing());
        QCOMPARE(on.text(u"TasFiyati"_s), QString());
        on.enter({u"PRL 1"_s, u"99"_s});
        on.press(u"cmdSon"_s);
        QVERIFY(!on.screen->isVisible());
        QCOMPARE(on.stone(u"PRL 1"_s), before);

        const Stones untouched;
        untouched.key(Qt::Key_Escape);
        QVERIFY(!untouched.screen->isVisible());
    }

    void takesOneStepForAKeyHeldDown()
    {
        const Stones on;
        const auto hold = [&on](Qt::Key key) { holdKey(on.screen->focusWidget(), key); };
        on.enter({u"PRL 1"_s});
        hold(Qt::Key_Return);
        QCOMPARE(on.focus(), u"TasFiyati"_s);
        on.enter({QString(), QString(), QString()});
        hold(Qt::Key_Return);
        QVERIFY(on.isEditing());
        on.key(Qt::Key_Escape);
        hold(Qt::Key_Return);
        QVERIFY(on.asked.isEmpty());
        hold(Qt::Key_Escape);
        QVERIFY(on.screen->isVisible());
    }

    void takesNothingButNumbers()
    {
        Stones on;
        on.enter({u"PRL 1"_s});
        on.messages.expect({.text = u"SAYISAL DEGER GIRIN..."_s, .icon = MessageIcon::Critical});
        typeText(on.screen->focusWidget(), u"12a"_s);
        QCOMPARE(on.text(u"TasFiyati"_s), u"12"_s);
        // As after the real box, which takes the focus and gives it back.
        QFocusEvent back(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
        QCoreApplication::sendEvent(on.screen->focusWidget(), &back);
        typeText(on.screen->focusWidget(), u"3"_s);
        QCOMPARE(on.text(u"TasFiyati"_s), u"123"_s);

        on.messages.expect({.text = u"Taş fiyatı bu kadar büyük bir sayı olamaz."_s,
                            .icon = MessageIcon::Exclamation});
        on.control<QLineEdit>(u"TasFiyati"_s)->setText(QString(400, u'9'));
        on.press(Qt::Key_K, u"cmdKayit"_s);
        QVERIFY(on.isEditing());
        QCOMPARE(on.stone(u"PRL 1"_s), u"PRL 1|80|EUR|0.005|"_s);
    }

    void takesNoLongerTextThanTheField()
    {
        const Stones on;
        on.enter({QString(30, u'Ş')});
        on.enter({QString(), QString(), QString(), QString()});
        QCOMPARE(on.row(u"Select Taskodu From Tas Where TasID = 3"_s), QString(20, u'Ş'));
    }

    void removesAfterAQuestion()
    {
        Stones on;
        const QString question = u"PRL 1 SİLİNECEK. ONAYLIYORMUSUNUZ.?"_s;
        on.enter({u"prl 1"_s});
        on.remove(question, MessageAnswer::No, MessageAnswer::No);
        QVERIFY(on.isEditing());
        QVERIFY(on.stone(u"PRL 1"_s) != "none"_L1);
        on.remove(question, MessageAnswer::No, MessageAnswer::Yes);
        QVERIFY(!on.isEditing());
        QCOMPARE(on.stone(u"PRL 1"_s), u"none"_s);
        // The models that use it stay as they are.
        QCOMPARE(on.row(u"Select Count(*) as n From Model Where M_Tip = 0 and M_Kod = 2"_s),
                 u"1"_s);
    }

    void keepsWhatWasTypedWhenWritingFails()
    {
        Stones on;
        on.enter({u"PRL 1"_s, u"99"_s});
        on.oturum.Veritabani->engine().run(
            u"CREATE TRIGGER fail BEFORE UPDATE ON Tas BEGIN SELECT RAISE(ABORT, 'disk'); END"_s);
        on.messages.expect({.text = u"Kayıt, tablonun anahtarlarına uymuyor. (disk)"_s,
                            .title = u"HATA"_s,
                            .icon = MessageIcon::Critical});
        on.press(Qt::Key_K, u"cmdKayit"_s);
        QVERIFY(on.isEditing());
        QCOMPARE(on.text(u"Taskodu"_s), u"PRL 1"_s);
        QCOMPARE(on.text(u"TasFiyati"_s), u"99"_s);
        QCOMPARE(on.stone(u"PRL 1"_s), u"PRL 1|80|EUR|0.005|"_s);
        on.oturum.Veritabani->engine().run(u"DROP TRIGGER fail"_s);
        on.press(Qt::Key_K, u"cmdKayit"_s);
        QCOMPARE(on.stone(u"PRL 1"_s), u"PRL 1|99|EUR|0.005|"_s);
    }

    void keepsACurrencyThatIsGone()
    {
        const Stones on;
        on.oturum.Veritabani->execute(u"Update Tas Set TasBirimi = 'CHF' Where TasID = 1"_s);
        on.oturum.Veritabani->execute(u"Update Tas Set TasBirimi = Null Where TasID = 2"_s);
        on.enter({u"ZRK 2"_s});
        QCOMPARE(on.text(u"TasBirimi"_s), u"CHF"_s);
        on.enter({u"2"_s, QString(), QString(), QString()});
        QCOMPARE(on.stone(u"ZRK 2"_s), u"ZRK 2|2|CHF|0.02|"_s);
        QCOMPARE(on.control<QComboBox>(u"TasBirimi"_s)->findText(u"CHF"_s), -1);
        on.enter({u"PRL 1"_s});
        on.enter({u"3"_s, QString(), QString(), QString()});
        QCOMPARE(on.stone(u"PRL 1"_s), u"PRL 1|3||0.005|"_s);
    }
};

KUYUM_TEST(Tanim_TasTest)

} // namespace kuyum

#include "Tanim_TasTest.moc"
