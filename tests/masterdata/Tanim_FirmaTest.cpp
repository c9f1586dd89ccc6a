#include "Tanim_Firma.h"
#include "DefinitionFixture.h"
#include "TestRegistry.h"

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

struct Customers : DefinitionFixture<Tanim_Firma>
{
    QString customer(int Firkod) const
    {
        return row(u"Select KisaAD, FirAdi, Yetkili, Telefon, Mail, UlkeID, Aciklama From Firma "
                   "Where Firkod = %1"_s.arg(Firkod));
    }
    QString countries() const
    {
        QStringList names;
        Recordset set = oturum.Veritabani->query(u"Select * From Ulkeler"_s);
        while (set.next())
            names.append(set.text(u"ID") + u' ' + set.text(u"ulke_ADI"));
        return names.join(u", "_s);
    }
    /// Enters up to the countries of a new customer.
    void goToCountries() const { enter({u"30"_s, u"K"_s, u"F"_s, u"Y"_s, u"T"_s, u"M"_s}); }
};

} // namespace

class Tanim_FirmaTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void addsACustomerByKeyboard()
    {
        const Customers on;
        QCOMPARE(on.focus(), u"Firkod"_s);
        QCOMPARE(on.text(u"Ulke"_s), u"Türkiye"_s);
        on.enter(
            {u"030"_s, u" ŞİŞ "_s, u" Şişli O'Hara "_s, u" Işıl "_s, u" 0212 "_s, u" a@b.com "_s});
        QCOMPARE(on.text(u"Firkod"_s), u"30"_s);
        QCOMPARE(on.focus(), u"Ulke"_s);
        on.key(Qt::Key_Down);
        on.enter({QString(), u" Vadeli "_s, QString()});
        QCOMPARE(on.customer(30), u"ŞİŞ|Şişli O'Hara|Işıl|0212|a@b.com|2| Vadeli "_s);
        QVERIFY(!on.isEditing());
        QCOMPARE(on.focus(), u"Firkod"_s);
        QCOMPARE(on.text(u"FirAdi"_s), QString());
        QCOMPARE(on.text(u"Ulke"_s), u"Türkiye"_s);
    }

    void changesACustomer()
    {
        const Customers on;
        on.enter({u"20"_s});
        QCOMPARE(on.focus(), u"KisaAD"_s);
        QCOMPARE(on.text(u"FirAdi"_s), u"O'Hara Gold"_s);
        QCOMPARE(on.text(u"Ulke"_s), u"Ürdün"_s);
        on.enter({u"OH"_s});
        on.key(Qt::Key_Escape);
        QCOMPARE(on.customer(20), u"OHARA|O'Hara Gold||||2|"_s);
        on.enter({u"20"_s, u"OH"_s});
        on.press(Qt::Key_K, u"cmdKayit"_s);
        QCOMPARE(on.customer(20), u"OH|O'Hara Gold||||2|"_s);
        on.enter({u"10"_s});
        QCOMPARE(on.text(u"txtAciklama"_s), u"Vadeli"_s);
        QCOMPARE(on.control<QLineEdit>(u"txtAciklama"_s)->maxLength(), 255);
    }

    void findsByName()
    {
        Customers on;
        LookupAnswer taken;
        taken.SecilenNo = 20;
        on.answers = {LookupAnswer(), taken};
        on.enter();
        QVERIFY(!on.isEditing());
        on.enter({u"o'h"_s});
        QCOMPARE(on.asked[0].ListeTuru, u"Firma Listesi"_s);
        QCOMPARE(on.asked[1].ListeFiltre, u"o'h"_s);
        QCOMPARE(on.text(u"Firkod"_s), u"20"_s);
        QCOMPARE(on.text(u"FirAdi"_s), u"O'Hara Gold"_s);
        QVERIFY(on.isEditing());
    }

    void offersTheNextFreeCode()
    {
        const Customers on;
        on.key(Qt::Key_Insert);
        QCOMPARE(on.text(u"Firkod"_s), u"21"_s);
        on.enter({u"2147483647"_s}); // typing replaces it
        on.press(Qt::Key_K, u"cmdKayit"_s);
        QCOMPARE(on.control<QLabel>(u"kayitNotu"_s)->text(),
                 u"2147483647 kodlu müşteri kaydedildi."_s);
        on.key(Qt::Key_Insert); // none after it: the first gap
        on.enter();
        QCOMPARE(on.text(u"Firkod"_s), u"1"_s);
        QVERIFY(on.isEditing());
        QCOMPARE(on.control<QLabel>(u"kayitNotu"_s)->text(), QString());
    }

    void refusesACodeThatDoesNotFit()
    {
        Customers on;
        for (const QString &code : {u"9999999999"_s, u"12,5"_s}) {
            on.messages.expect(
                u"Firma kodu -2147483648 ile 2147483647 arasında bir tam sayı olmalıdır."_s);
            on.enter({code});
            on.messages.verify();
            QVERIFY(!on.isEditing());
            QCOMPARE(on.text(u"Firkod"_s), code);
        }
    }

    void removesNoCustomerWithOrders()
    {
        Customers on;
        on.enter({u"10"_s});
        on.messages.expect({.text = u"SİPARİŞ BİLGİSİ MEVCUT, SİLİNEMEZ..."_s,
                            .title = u"HATA"_s,
                            .icon = MessageIcon::Critical});
        on.press(Qt::Key_S, u"cmdsil"_s);
        QCOMPARE(on.customer(10), u"IŞIK|Işık Kuyumculuk||||1|Vadeli"_s);
        QVERIFY(on.isEditing());
        on.key(Qt::Key_Escape);

        on.oturum.Veritabani->execute(u"DELETE From SiparisB Where Sipfirkod = 20"_s);
        const QString question = u"O'Hara Gold SİLİNECEK..."_s;
        const QString title = u"FİRMA KARTI SİLME"_s;
        on.enter({u"20"_s});
        on.remove(question, MessageAnswer::No, MessageAnswer::No, title);
        QVERIFY(on.isEditing());
        QVERIFY(on.customer(20) != "none"_L1);
        on.remove(question, MessageAnswer::No, MessageAnswer::Yes, title);
        QVERIFY(!on.isEditing());
        QCOMPARE(on.customer(20), u"none"_s);
    }

    void definesACountryByInsert()
    {
        Customers on;
        on.goToCountries();
        on.messages.expectInput(u"YENI BIR ULKE TANIMI GIRIN"_s, std::nullopt);
        on.key(Qt::Key_Insert);
        on.messages.expectInput(u"YENI BIR ULKE TANIMI GIRIN"_s, u"  "_s);
        on.key(Qt::Key_Insert);
        QCOMPARE(on.countries(), u"1 Türkiye, 2 Ürdün"_s);
        on.messages.expectInput(u"YENI BIR ULKE TANIMI GIRIN"_s, u" Côte d'İvoire "_s);
        on.key(Qt::Key_Insert);
        QCOMPARE(on.countries(), u"1 Türkiye, 2 Ürdün, 3 Côte d'İvoire"_s);
        QCOMPARE(on.text(u"Ulke"_s), u"Côte d'İvoire"_s);
        on.messages.expectInput(u"YENI BIR ULKE TANIMI GIRIN"_s, u"ürdün"_s);
        on.key(Qt::Key_Insert);
        QCOMPARE(on.countries(), u"1 Türkiye, 2 Ürdün, 3 Côte d'İvoire"_s);
        QCOMPARE(on.text(u"Ulke"_s), u"Ürdün"_s);
        on.messages.expectInput(u"YENI BIR ULKE TANIMI GIRIN"_s, QString(51, u'x'));
        on.messages.expect({.text = u"\"ulke_ADI\" alanı en fazla 50 karakter alır: \"%1\""_s.arg(
                                QString(51, u'x')),
                            .title = u"HATA"_s});
        on.key(Qt::Key_Insert);
        QCOMPARE(on.text(u"Ulke"_s), u"Ürdün"_s);
        on.enter();
        QCOMPARE(on.focus(), u"txtAciklama"_s);
        on.enter({QString(), QString()});
        QCOMPARE(on.customer(30), u"K|F|Y|T|M|2|"_s);
    }

    void keepsACountryThatIsGone()
    {
        const Customers on;
        on.oturum.Veritabani->execute(u"Update Firma Set UlkeID = 77 Where Firkod = 10"_s);
        on.oturum.Veritabani->execute(u"Update Firma Set UlkeID = Null Where Firkod = 20"_s);
        on.enter({u"10"_s});
        QCOMPARE(on.text(u"Ulke"_s), u"77 (tanımsız ülke)"_s);
        on.press(Qt::Key_K, u"cmdKayit"_s);
        QCOMPARE(on.row(u"Select UlkeID From Firma Where Firkod = 10"_s), u"77"_s);
        QCOMPARE(on.control<QComboBox>(u"Ulke"_s)->count(), 2);
        on.enter({u"20"_s});
        QCOMPARE(on.text(u"Ulke"_s), QString());
        on.press(Qt::Key_K, u"cmdKayit"_s);
        QCOMPARE(on.row(u"Select UlkeID From Firma Where Firkod = 20"_s), u"0"_s);
    }
};

KUYUM_TEST(Tanim_FirmaTest)

} // namespace kuyum

#include "Tanim_FirmaTest.moc"
