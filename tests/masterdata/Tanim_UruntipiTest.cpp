#include "Tanim_Uruntipi.h"
#include "DefinitionFixture.h"
#include "TestRegistry.h"

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

struct ProductTypes : DefinitionFixture<Tanim_Uruntipi>
{
    QString type(int TipID) const
    {
        return row(
            u"Select UrunTipi, KisaAD, Sirano, tiptarih From UrunTipi Where TipID = %1"_s.arg(
                TipID));
    }
};

} // namespace

class Tanim_UruntipiTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void addsATypeUnderTheNextNumber()
    {
        const ProductTypes on;
        // A number that was given away does not come again.
        on.oturum.Veritabani->execute(u"DELETE From UrunTipi Where TipID = 3"_s);
        on.enter({QString(), u"Bileklik 'Şık'"_s, u"BİL"_s, u"4"_s, QString()});
        QCOMPARE(on.type(4), u"Bileklik 'Şık'|BİL|4|01.06.2012"_s);
        on.enter({u"0"_s, u"Broş"_s, u"BRŞ"_s, QString(), QString()});
        QCOMPARE(on.type(5), u"Broş|BRŞ|0|01.06.2012"_s);
    }

    void changesAType()
    {
        ProductTypes on;
        LookupAnswer taken;
        taken.SecilenID = u"2"_s;
        on.answers = {LookupAnswer(), taken};
        on.press(Qt::Key_L, u"cmdListe"_s);
        QVERIFY(!on.isEditing());
        on.press(Qt::Key_L, u"cmdListe"_s);
        QCOMPARE(on.asked[1].ListeTuru, u"Tip Listesi"_s);
        QCOMPARE(on.text(u"UrunTipi"_s) + on.text(u"KisaAD"_s) + on.text(u"Sirano"_s),
                 u"KolyeKLY1"_s);
        QCOMPARE(on.focus(), u"UrunTipi"_s);
        on.enter({u"Gerdanlık"_s, QString(), u"7"_s, QString()});
        QCOMPARE(on.type(2), u"Gerdanlık|KLY|7|"_s);
    }

    void tellsOfANumberThatIsNotThere()
    {
        ProductTypes on;
        for (const QString &number : {u"9"_s, u"1,5"_s, u"99999999999999"_s}) {
            on.messages.expect({.text = u"ARANAN KAYIT BULUNAMADI ...!"_s,
                                .title = QString(),
                                .icon = MessageIcon::Exclamation});
            on.enter({number});
            on.messages.verify();
            QVERIFY(!on.isEditing());
            QCOMPARE(on.focus(), u"TipID"_s);
        }
    }

    void refusesWhatIsMissingOrDoesNotFit()
    {
        ProductTypes on;
        const auto refuses = [&on](const QString &text, const QString &focus) {
            on.messages.expect(
                {.text = text, .title = QString(), .icon = MessageIcon::Exclamation});
            on.press(Qt::Key_K, u"cmdKayit"_s);
            on.messages.verify();
            QVERIFY(on.isEditing());
            QCOMPARE(on.focus(), focus);
        };
        on.enter({u"1"_s});
        for (const QString &name : {u"UrunTipi"_s, u"KisaAD"_s})
            on.control<QLineEdit>(name)->setText(u" "_s);
        on.control<QLineEdit>(u"Sirano"_s)->setText(u"99999"_s); // told of last
        refuses(u"ÜRÜN TİPİ GİRİLMEK ZORUNDADIR..."_s, u"UrunTipi"_s);
        on.enter({u"Yüzük"_s});
        refuses(u"KISA AD GİRİLMEK ZORUNDADIR..."_s, u"KisaAD"_s);
        on.enter({u"YZK"_s});
        for (const QString &number : {u"99999"_s, u"-40000"_s, u"1.5"_s}) {
            on.control<QLineEdit>(u"Sirano"_s)->setText(number);
            refuses(u"Sıra no -32768 ile 32767 arasında bir tam sayı olmalıdır."_s, u"Sirano"_s);
            QCOMPARE(on.text(u"Sirano"_s), number);
        }
        QCOMPARE(on.type(1), u"Yüzük|YZK|2|"_s);
    }

    void bringsBackATypeUnderItsNumber()
    {
        ProductTypes on;
        on.enter({u"3"_s, u"Halka"_s});
        on.oturum.Veritabani->execute(u"DELETE From UrunTipi Where TipID = 3"_s);
        const QStringList gone{u"Ürün tipi 3|(bütünü)|"
                               "Ürün tipi: Halka, Kısa ad: KPE, Sıra no: 3|yok"_s};
        on.messages.expectChange(gone, ChangeAnswer::Back);
        on.press(Qt::Key_K, u"cmdKayit"_s);
        QCOMPARE(on.text(u"UrunTipi"_s), u"Halka"_s);
        QCOMPARE(on.row(u"Select Count(*) as n From UrunTipi"_s), u"2"_s);
        on.messages.expectChange(gone, ChangeAnswer::Mine);
        on.press(Qt::Key_K, u"cmdKayit"_s);
        on.messages.verify();
        QCOMPARE(on.type(3), u"Halka|KPE|3|"_s);
    }

    void removesAfterAQuestion()
    {
        ProductTypes on;
        on.enter({u"3"_s});
        const QString question = u"3 SİLİNECEK. ONAYLIYORMUSUNUZ.?"_s;
        on.remove(question, MessageAnswer::No, MessageAnswer::No);
        QCOMPARE(on.type(3), u"Küpe|KPE|3|"_s);
        on.remove(question, MessageAnswer::No, MessageAnswer::Yes);
        QCOMPARE(on.type(3), u"none"_s);
        QVERIFY(!on.isEditing());
    }

    void addsNothingWithoutACounter()
    {
        ProductTypes on;
        Database &db = *on.oturum.Veritabani;
        TableDef table = db.tableDef(u"UrunTipi"_s);
        db.engine().run(u"DROP TABLE UrunTipi"_s);
        for (FieldDef &field : table.fields)
            field.counter = false;
        db.createTable({table.name, table.fields});
        on.enter({QString(), u"Broş"_s, u"BRŞ"_s, QString()});
        on.messages.expect({.text = u"UrunTipi tablosunun sayacı yok, yeni kayıt eklenemez."_s,
                            .title = u"HATA"_s,
                            .icon = MessageIcon::Critical});
        on.enter();
        QVERIFY(on.isEditing());
        QCOMPARE(on.row(u"Select * From UrunTipi"_s), u"none"_s);
    }
};

KUYUM_TEST(Tanim_UruntipiTest)

} // namespace kuyum

#include "Tanim_UruntipiTest.moc"
