#include "SiparisStore.h"
#include "LineFolding.h"
#include "OrderFixture.h"
#include "OrderLookups.h"
#include "ProductLabel.h"
#include "SiparisKontrol.h"
#include "SqliteEngine.h"
#include "TestRegistry.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

class SiparisStoreTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void foldsLines();
    void keepsSecondQuantityOfACell();
    void findsAnOrder();
    void savingTwiceWritesTheSameLines();
    void keepsTheOrderDate();
    void keepsLinesThatCannotBeShown();
    void keepsTheStateOfEachLine();
    void tellsTypesOfOneShortNameApart();
    void savesAsNew();
    void missingHeader();
    void linesOfOthersAreNotDeletedUnseen();
    void removes();
    void readsLabels();
    void findsModels();
    void checksInOrder();
};

static QString rowText(const SiparisSatiri &row)
{
    QStringList counts;
    for (const qint32 adet : row.adetler)
        counts.append(QString::number(adet));
    return u"%1 %2 %3 [%4]"_s.arg(row.model, row.renk, counts.join(u'/'), row.aciklama);
}

static QStringList rowTexts(const Siparis &siparis)
{
    QStringList result;
    for (const SiparisSatiri &row : siparis.satirlar)
        result.append(rowText(row));
    return result;
}

static OrderLine record(int id, const QString &satir, const QString &ack, int tip, int adet)
{
    return {id, satir, u"A75"_s, u"SR"_s, ack, tip, adet, {}};
}

static QStringList folded(const QList<OrderLine> &records)
{
    const QList<UrunTipi> tipler = {{2, u"Kolye"_s, u"KLY"_s}, {1, u"Yüzük"_s, u"YZK"_s}};
    const auto both = [](const QString &) { return QStringList{u"KLY"_s, u"yzk"_s}; };
    QStringList result;
    for (const SiparisSatiri &row : foldLines(records, tipler, both))
        result.append(rowText(row));
    return result;
}

void SiparisStoreTest::foldsLines()
{
    // Only the product type differs: one row. Another note or row number: its own.
    QCOMPARE(folded({record(1, u"1"_s, u"x"_s, 1, 3), record(2, u"1"_s, u"x"_s, 2, 4),
                     record(3, u"1"_s, u"y"_s, 1, 5), record(4, u"2"_s, u"y"_s, 1, 6)}),
             QStringList({u"A75 SR 4/3 [x]"_s, u"A75 SR 0/5 [y]"_s, u"A75 SR 0/6 [y]"_s}));
    QCOMPARE(folded({}), QStringList());
}

void SiparisStoreTest::keepsSecondQuantityOfACell()
{
    // Two equal rows saved as a copy lose their row numbers and look like this.
    QCOMPARE(folded({record(1, {}, {}, 1, 3), record(2, {}, {}, 1, 5), record(3, {}, {}, 2, 7),
                     record(4, {}, {}, 2, 9)}),
             QStringList({u"A75 SR 7/3 []"_s, u"A75 SR 9/5 []"_s}));
}

void SiparisStoreTest::findsAnOrder()
{
    OrderFixture company;
    const SiparisStore store(company.oturum);
    const std::optional<Siparis> found = store.SiparisBul(1);
    QVERIFY(found);
    QCOMPARE(found->FirAdi, u"Işık Kuyumculuk"_s);
    QCOMPARE(found->KisaAD, u"IŞIK"_s);
    QCOMPARE(found->Aciklama, u"Acele"_s); // the order's, not the customer's
    QCOMPARE(found->SipTrh, QDate(2012, 3, 1));
    QCOMPARE(found->tipler.first().KisaAD, u"KLY"_s);
    QCOMPARE(rowTexts(*found), QStringList({u"A75 SR 1/3/0 [ölçü 14]"_s, u"İnci-1 BY 0/0/2 []"_s}));
    QVERIFY(found->allKeptLines().isEmpty());
    QVERIFY(!store.SiparisBul(99));
    QVERIFY(!store.headerCustomer(99));

    // A customer who is not defined hides the order, but its header is known.
    company.oturum.Veritabani->execute(u"DELETE From Firma Where Firkod = 20"_s);
    QVERIFY(!store.SiparisBul(2));
    QCOMPARE(store.headerCustomer(2), 20);
}

void SiparisStoreTest::savingTwiceWritesTheSameLines()
{
    OrderFixture company;
    const SiparisStore store(company.oturum);
    LoadedRows unread;
    const QStringList before = company.lines(1);
    std::optional<Siparis> siparis = store.SiparisBul(1);
    siparis->Aciklama = u"O'Hara 'nın siparişi"_s;
    QVERIFY(store.save(*siparis, unread));
    QCOMPARE(company.lines(1), QStringList({before[1], before[0], before[2]}));
    const QStringList once = company.lines(1);
    QVERIFY(store.save(*siparis, unread));
    QCOMPARE(company.lines(1), once);
    QCOMPARE(store.SiparisBul(1)->Aciklama, u"O'Hara 'nın siparişi"_s);
    QCOMPARE(company.lines(2).size(), 1); // other orders stay
}

void SiparisStoreTest::keepsTheOrderDate()
{
    OrderFixture company;
    const SiparisStore store(company.oturum);
    LoadedRows unread;
    std::optional<Siparis> siparis = store.SiparisBul(1);
    siparis->SipTrh = QDate(2020, 1, 1);
    siparis->TesTrh = QDate(2020, 1, 2);
    QVERIFY(store.save(*siparis, unread));
    QCOMPARE(company.header(1, u"SipTrh"), u"01.03.2012"_s);
    QCOMPARE(company.header(1, u"TesTrh"), u"02.01.2020"_s);
}

void SiparisStoreTest::keepsLinesThatCannotBeShown()
{
    OrderFixture company;
    company.addLine(1, 5, u"A75"_s, 1, u"XX"_s, 4);     // colour not defined
    company.addLine(1, 6, u"A75"_s, 77, u"SR"_s, 6);    // product type not defined
    company.addLine(1, 1, u"A75"_s, 3, u"SR"_s, 8, {}); // the model has no earring
    company.addLine(1, 7, u"İnci-1"_s, 1, u"SR"_s, 9);  // its row has no other cell
    const SiparisStore store(company.oturum);
    LoadedRows unread;
    std::optional<Siparis> siparis = store.SiparisBul(1);
    QCOMPARE(siparis->allKeptLines().size(), 4);
    const QStringList ids = company.field(1, u"Dotosayi").mid(3);

    siparis->satirlar[1].adetler[0] = 10;
    QVERIFY(store.save(*siparis, unread));
    QCOMPARE(company.lines(1),
             QStringList({u"5 A75 1 XX [] 4"_s, u"6 A75 77 SR [] 6"_s, u"1 A75 3 SR [] 8"_s,
                          u"7 İnci-1 1 SR [] 9"_s, u"2 A75 2 SR [ölçü 14] 10"_s,
                          u"2 A75 1 SR [ölçü 14] 3"_s, u"3 İnci-1 3 BY [] 2"_s}));
    QCOMPARE(company.field(1, u"Dotosayi").first(4), ids);

    // A row that the user removes takes its own hidden lines along.
    siparis = store.SiparisBul(1);
    siparis->satirlar.removeIf([](const SiparisSatiri &row) { return row.model == u"İnci-1"_s; });
    QVERIFY(store.save(*siparis, unread));
    QCOMPARE(company.lines(1).filter(u"İnci"_s), QStringList());
    QCOMPARE(company.lines(1).filter(u"XX"_s).size(), 1);
}

void SiparisStoreTest::keepsTheStateOfEachLine()
{
    OrderFixture company;
    Recordset lines =
        company.oturum.Veritabani->query(u"Select * From SiparisD Where SipnumD = 1"_s);
    for (const auto &[status, moment] :
         {std::pair{u"HAZIR"_s, QDateTime(QDate(2012, 3, 4), QTime(9, 30), Qt::UTC)},
          std::pair{u"ONAYLANDI"_s, QDateTime(QDate(2012, 3, 5), QTime(0, 0), Qt::UTC)}}) {
        QVERIFY(lines.next());
        lines.edit();
        lines.set(u"Drm1", status);
        lines.set(u"Trhbas", moment);
        lines.set(u"Trhbit", QVariant());
        lines.update();
    }
    const SiparisStore store(company.oturum);
    LoadedRows unread;
    std::optional<Siparis> siparis = store.SiparisBul(1);
    QVERIFY(siparis->satirlar[0].hasBegun());
    QVERIFY(!siparis->satirlar[1].hasBegun()); // 01.01.2000 is no date
    QVERIFY(store.save(*siparis, unread));
    // Necklace and ring of one row stand at different points of production.
    QCOMPARE(company.field(1, u"SipUruntip"), QStringList({u"2"_s, u"1"_s, u"3"_s}));
    QCOMPARE(company.field(1, u"Drm1"), QStringList({u"ONAYLANDI"_s, u"HAZIR"_s, u""_s}));
    QCOMPARE(company.field(1, u"Trhbas"),
             QStringList({u"05.03.2012"_s, u"04.03.2012 09:30:00"_s, u"01.01.2000"_s}));
    QCOMPARE(company.field(1, u"Trhbit"),
             QStringList({u"01.01.2000"_s, u"01.01.2000"_s, u"01.01.2000"_s}));
}

void SiparisStoreTest::tellsTypesOfOneShortNameApart()
{
    OrderFixture company;
    Recordset types = company.oturum.Veritabani->table(u"UrunTipi"_s);
    types.addNew();
    types.set(u"UrunTipi", u"Alyans"_s);
    types.set(u"KisaAD", u"yzk"_s);
    types.set(u"Sirano", 9);
    types.update();
    const int other = int(types.integer(u"TipID"));
    company.addLine(1, 1, u"boş"_s, other, u"SR"_s, 6);
    const SiparisStore store(company.oturum);
    LoadedRows unread;
    std::optional<Siparis> siparis = store.SiparisBul(1);
    QVERIFY(store.save(*siparis, unread));
    QCOMPARE(company.lines(1).filter(u"boş"_s), QStringList({u"2 boş %1 SR [] 6"_s.arg(other)}));
}

void SiparisStoreTest::savesAsNew()
{
    OrderFixture company;
    company.oturum.Veritabani->execute(u"UPDATE SiparisD SET Drm1 = 'HAZIR' Where SipnumD = 1"_s);
    const SiparisStore store(company.oturum);
    LoadedRows unread;
    Siparis siparis = *store.SiparisBul(1);
    store.saveAsNew(siparis, QDate(2012, 7, 8), unread);
    QCOMPARE(siparis.Sipnum, 5);
    QCOMPARE(company.header(5, u"SipTrh"), u"08.07.2012"_s);
    QCOMPARE(company.field(5, u"SipSatir"), QStringList({u"0"_s, u"0"_s, u"0"_s}));
    QCOMPARE(company.field(5, u"Drm1"), QStringList({u" "_s, u" "_s, u" "_s}));
    QCOMPARE(company.field(5, u"Drm2"), QStringList({u" "_s, u" "_s, u" "_s}));
    QCOMPARE(company.field(5, u"Trhbas"),
             QStringList({u"01.01.2000"_s, u"01.01.2000"_s, u"01.01.2000"_s}));
    QCOMPARE(company.field(1, u"Drm1").first(), u"HAZIR"_s); // the first one stays
}

void SiparisStoreTest::missingHeader()
{
    OrderFixture company;
    const SiparisStore store(company.oturum);
    LoadedRows unread;
    Siparis siparis = *store.SiparisBul(1);
    company.oturum.Veritabani->execute(u"DELETE From SiparisB Where Sipnum = 1"_s);
    const QStringList before = company.lines(1);
    QVERIFY(!store.save(siparis, unread));
    QCOMPARE(company.lines(1), before);
}

void SiparisStoreTest::linesOfOthersAreNotDeletedUnseen()
{
    OrderFixture company;
    company.addLine(1, 5, u"A75"_s, 1, u"XX"_s, 4); // has no cell
    const SiparisStore store(company.oturum);
    LoadedRows loaded = store.oku(1);
    Siparis mine = *store.SiparisBul(1);
    mine.Aciklama = u"benim"_s;
    company.addLine(1, 9, u"A75"_s, 1, u"BY"_s, 6);
    const QStringList theirs = company.lines(1);
    QVERIFY_THROWS_EXCEPTION(ChangedMeanwhile, store.save(mine, loaded));
    QVERIFY_THROWS_EXCEPTION(ChangedMeanwhile, store.remove(1, loaded));
    QCOMPARE(company.lines(1), theirs);
    QCOMPARE(company.header(1, u"Aciklama"), u"Acele"_s); // nor is the header half of a save

    // Between the header and its lines: nothing but the header is written.
    company.oturum.Veritabani->execute(
        u"DELETE From SiparisD Where Siprenk = 'BY' and SipSatir = 9"_s);
    company.oturum.Veritabani->engine().run(
        u"CREATE TRIGGER t AFTER UPDATE ON SiparisB BEGIN UPDATE SiparisD SET Drm1 = 'HAZIR' WHERE "
        "SipnumD = 1; END"_s);
    QVERIFY_THROWS_EXCEPTION(ChangedMeanwhile, store.save(mine, loaded));
    QCOMPARE(company.header(1, u"Aciklama"), u"benim"_s);
    QCOMPARE(company.field(1, u"Drm1"), QStringList(4, u"HAZIR"_s));
    company.oturum.Veritabani->engine().run(u"DROP TRIGGER t"_s);

    // A hidden line that another wrote anew, as it was: there is still one of it.
    loaded = store.oku(1);
    mine = *store.SiparisBul(1);
    company.oturum.Veritabani->execute(u"UPDATE SiparisD SET Dotosayi = 99 Where Siprenk = 'XX'"_s);
    QVERIFY(store.save(mine, loaded));
    QCOMPARE(company.lines(1).filter(u"XX"_s), QStringList{u"5 A75 1 XX [] 4"_s});
}

void SiparisStoreTest::removes()
{
    OrderFixture company;
    const SiparisStore store(company.oturum);
    LoadedRows unread;
    store.remove(1, unread);
    QVERIFY(company.header(1, u"Sipnum").isNull());
    QCOMPARE(company.lines(1), QStringList());
    QCOMPARE(company.lines(2).size(), 1);
}

void SiparisStoreTest::readsLabels()
{
    const std::optional<ProductLabel> label = readLabel(u"1600100000427");
    QVERIFY(label);
    QCOMPARE(label->TipID, 1);
    QCOMPARE(label->Model_ID, 42);
    for (const QStringView other : {u"8690001234567", u"160010000042", u"16001000004270",
                                    u"16001x0000427", u"16-0100000427", u""})
        QVERIFY(!readLabel(other));
}

void SiparisStoreTest::findsModels()
{
    OrderFixture company;
    const OrderLookups lookups(company.oturum);
    QCOMPARE(lookups.model(u"1600100000019"_s)->KisaAD, u"YZK"_s);
    QCOMPARE(lookups.model(u"1600200000030"_s)->Model, u"A75"_s); // a row of its necklace
    QVERIFY(!lookups.model(u"1600200000017"_s));                  // record 1 is a ring
    QCOMPARE(lookups.model(u"a75"_s)->Model, u"A75"_s);
    QVERIFY(lookups.model(u"a75"_s)->KisaAD.isEmpty());
    QVERIFY(!lookups.model(u"O'Hara"_s));
    QCOMPARE(lookups.typesOfModel(u"A75"_s), QStringList({u"KLY"_s, u"YZK"_s}));
    QCOMPARE(lookups.UrGram(u"boş"_s), 3.5);
    QCOMPARE(lookups.UrGram(u"yok"_s), 0.0);

    // Codes that differ only in letter case: the one typed exactly so.
    Recordset models = company.oturum.Veritabani->table(u"Model"_s);
    models.addNew();
    models.set(u"Model", u"a75"_s);
    models.set(u"M_Uruntip", 3);
    models.update();
    QCOMPARE(lookups.model(u"a75"_s)->Model, u"a75"_s);
    // A number that is no label, and a label-like code, are codes.
    models.addNew();
    models.set(u"Model", u"8690001234567"_s);
    models.update();
    QCOMPARE(lookups.model(u"8690001234567"_s)->Model, u"8690001234567"_s);
}

void SiparisStoreTest::checksInOrder()
{
    using Field = OrderFault::Field;
    const auto known = [](const QString &model) { return model != u"YOK"_s; };
    Siparis siparis;
    siparis.satirlar = {SiparisSatiri::empty(2), SiparisSatiri::empty(2), SiparisSatiri::empty(2)};
    const auto expect = [&](const QString &text, const QString &title, Field alan,
                            int column = -1) {
        const std::optional<OrderFault> fault = checkOrder(siparis, known);
        QVERIFY(fault);
        QCOMPARE(fault->text, text);
        QCOMPARE(fault->title, title);
        QCOMPARE(fault->alan, alan);
        QCOMPARE(fault->column, column);
        QCOMPARE(fault->satir, column < 0 ? -1 : 1);
    };
    siparis.FirAdi = u"Işık"_s;
    expect(u"MÜŞTERİ SEÇİMİ YAPILMAMIŞ...!"_s, u"HATA"_s, Field::FirAdi);
    siparis.Firkod = 10;
    siparis.FirAdi = u"  "_s;
    expect(u"MÜŞTERİ SEÇİMİ YAPILMAMIŞ...!"_s, u"HATA"_s, Field::FirAdi);
    siparis.FirAdi = u"Işık"_s;
    expect(u"AYAR BİLGİSİ GİRİLMEMİŞ...!"_s, u"HATA"_s, Field::Ayar);
    siparis.Ayar = 585;
    siparis.Patent = u" "_s;
    expect(u"PATENT BİLGİSİ GİRİLMEMİŞ...!"_s, u"HATA"_s, Field::Patent);
    siparis.Patent = u"585"_s;
    expect(u"AÇIKLAMA BİLGİSİ GİRİLMEMİŞ...!"_s, u"HATA"_s, Field::Aciklama);
    siparis.Aciklama = u"x"_s;
    siparis.satirlar[0].renk = u"SR"_s; // a row without a model counts for nothing
    siparis.satirlar[0].adetler[0] = 5;
    expect(u"SİPARİŞ DETAY BİLGİLERİ GİRİLMEMİŞ...!"_s, u"HATA"_s, Field::Grid);
    siparis.satirlar[1].model = u"YOK"_s;
    expect(u"HATALI MODEL KODU !"_s, u"YOK"_s, Field::None);
    QVERIFY(checkOrder(siparis, known)->critical);
    siparis.satirlar[1].model = u"A75"_s;
    expect(u"RENK BİLGİSİ GİRİLMEMİŞ...!"_s, {}, Field::Grid, 1);
    siparis.satirlar[1].renk = u"SR"_s;
    expect(u"SİPARİŞ ADETLERİ GİRİLMEMİŞ...!"_s, {}, Field::Grid, 2);
    siparis.satirlar[1].adetler[1] = 1;
    QVERIFY(!checkOrder(siparis, known));
}

KUYUM_TEST(SiparisStoreTest)

} // namespace kuyum

#include "SiparisStoreTest.moc"
