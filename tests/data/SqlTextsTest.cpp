#include "Csv.h"
#include "Database.h"
#include "SampleCompany.h"
#include "TestRegistry.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

/// Every shape of SQL text that the program's screens and reports build, run
/// unchanged against a company whose answers can be reckoned by hand.
class SqlTextsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void selects_data();
    void selects();
    void pivotByKarat();
    void pivotByProductType();
    void deletes_data();
    void deletes();

private:
    QStringList rows(const QString &sql);

    QTemporaryDir m_folder;
    std::unique_ptr<Database> m_db;
};

void SqlTextsTest::initTestCase()
{
    m_db = makeSampleCompany(m_folder.filePath(u"atolye.kuyum"_s));
}

QStringList SqlTextsTest::rows(const QString &sql)
{
    Recordset set = m_db->query(sql);
    QStringList result;
    while (set.next())
        result.append(csvRow(set));
    return result;
}

void SqlTextsTest::selects_data()
{
    QTest::addColumn<QString>("sql");
    QTest::addColumn<QStringList>("expected");
    const auto add = [](const char *name, const QString &sql, const QStringList &expected) {
        QTest::newRow(name) << sql << expected;
    };

    // Session
    add("active users", u"Select * From Users Where User_Sil = 0"_s,
        {uR"(1,"Admin","2468",0,,,0,0,0)"_s, uR"(2,"admin","bd",0,,,0,0,0)"_s,
         uR"(4,"şifresiz",,0,,,0,0,0)"_s});
    add("user by name, blind to case", u"select User_ID from Users where user_name = 'ADMIN'"_s,
        {u"1"_s, u"2"_s});
    add("next user", u"Select Top 1 User_Id From Users Order by User_Id desc;"_s, {u"4"_s});
    add("rights",
        u"SELECT * FROM MenuKisit INNER JOIN Menuler "
        "ON MenuKisit.MK_menuid = Menuler.M_ID Where MK_userid =  2"_s,
        {uR"(2,7,7,"Sipariş Girişi")"_s});
    add("all menus", u"SELECT * FROM Menuler Order by M_ID;"_s,
        {uR"(0,"Taş Tanımları")"_s, uR"(7,"Sipariş Girişi")"_s});
    add("rates of a day", u"Select * From DovizD WHERE Tarih = DateValue('02.03.2012')"_s,
        {uR"(02.03.2012,"USD",1.9,1.8)"_s});
    add("latest earlier rates",
        u"Select * From DovizD WHERE Tarih < DateValue('05.03.2012') Order by tarih desc;"_s,
        {uR"(02.03.2012,"USD",1.9,1.8)"_s, uR"(01.03.2012,"USD",1.8,1.7)"_s,
         uR"(01.03.2012,"EUR",2.4,2.3)"_s});

    // Lookup lists
    add("stones from a key on",
        u"Select TasId, Taskodu, TasFiyati, TasBirimi From Tas Where Taskodu >= 'r' "
        "Order by Taskodu;"_s,
        {uR"(1,"ZRK 2",1.5,"USD")"_s});
    add("models of all types",
        u"Select Model, M_Uruntip, UrunTipi, Kisaad From Model, UrunTipi "
        "Where Model.M_uruntip = Uruntipi.TipID and Model >= 'A75' "
        "Group by Model, M_Uruntip, uruntipi, Kisaad Order by Model, M_Uruntip, Uruntipi;"_s,
        {uR"("A75",1,"Yüzük","YZK")"_s, uR"("A75",2,"Kolye","KLY")"_s,
         uR"("boş",1,"Yüzük","YZK")"_s, uR"("İnci-1",3,"Küpe","KPE")"_s});
    add("models for an order",
        u"Select Model, M_Uruntip, UrunTipi, Kisaad "
        "FROM Model INNER JOIN UrunTipi ON Model.M_Uruntip = UrunTipi.TipID "
        "Where Model >= 'c' Group by Model, M_uruntip, Uruntipi, Kisaad Order by Model;"_s,
        {uR"("İnci-1",3,"Küpe","KPE")"_s});
    add("customers by name",
        u"Select Firkod as Kod, Firadi as Firma, Yetkili "
        "From Firma Where Firadi >= 'O''H' Order by Firadi;"_s,
        {uR"(20,"O'Hara Gold",)"_s});
    add("orders, newest first",
        u"Select Siptrh, Sipnum, Firadi, Ayar, Patent, SiparisB.Aciklama "
        "From SiparisB, Firma Where Sipfirkod = Firkod and Firadi = 'ışık kuyumculuk' "
        "Order by Siptrh desc, Sipnum desc;"_s,
        {});
    add("orders of a customer",
        u"Select Siptrh, Sipnum, Firadi, Ayar, Patent, SiparisB.Aciklama "
        "From SiparisB, Firma Where Sipfirkod = Firkod and Firadi = 'IŞıK kuyumculuk' "
        "Order by Siptrh desc, Sipnum desc;"_s,
        {uR"(01.05.2012,4,"Işık Kuyumculuk",585,"585","Sonra")"_s,
         uR"(05.03.2012,3,"Işık Kuyumculuk",585,"TR585","Acele")"_s,
         uR"(01.03.2012,1,"Işık Kuyumculuk",585,"585","Acele")"_s});
    add("orders of a karat and hallmark",
        u"Select Sipnum From SiparisB, Firma Where Sipfirkod = Firkod and Ayar = 585 "
        "and Patent = 'tr585' Order by Siptrh desc, Sipnum desc;"_s,
        {u"3"_s});
    add("rate list currencies",
        u"SELECT Dovcinsi FROM DovizB Where Sbak = 1 and dovulke = 0 Order by Esira;"_s,
        {uR"("USD")"_s, uR"("EUR")"_s});
    add("catalogues", u"Select count(*) From (Select Katadi From Katalog Group by Katadi)"_s,
        {u"1"_s});

    // Definitions and models
    add("stone by code", u"Select Taskodu From Tas Where Taskodu = 'zrk 2  '"_s, {uR"("ZRK 2")"_s});
    add("colour, no blank after the sign", u"Select RenkSira From Renkler Where Renkno ='by'"_s,
        {u"2"_s});
    add("order of a customer", u"Select Top 1 Sipnum from SiparisB Where Sipfirkod = 20"_s,
        {u"2"_s});
    add("scanned label",
        u"Select KisaAD FROM Model INNER JOIN UrunTipi ON Model.M_Uruntip = UrunTipi.TipID "
        "Where Model_ID =  3 and m_uruntip =  2"_s,
        {uR"("KLY")"_s});
    add("types of a model",
        u"Select KisaAD From Model, UrunTipi "
        "Where M_Uruntip = TipID and Model = 'a75' Group by KisaAD Order by KisaAD;"_s,
        {uR"("KLY")"_s, uR"("YZK")"_s});
    add("catalogue entries",
        u"Select Model, katgram From Katalog, Model, Uruntipi Where Katno1 = Model_ID and "
        "Model.M_uruntip = Uruntipi.TipID and KatAdi = 'BAHAR' Order by Model;"_s,
        {uR"("A75",2.1)"_s, uR"("İnci-1",1.1)"_s});

    // Orders
    add("order lines",
        u"Select SipSatir, Sipmodel, KisaAD, Siprenk, Sipadet, Trhbas From SiparisD, UrunTipi, "
        "Renkler Where Sipuruntip = TipID and SiparisD.Siprenk = Renkler.Renkno "
        "and SipnumD =  1 Order by SipSatir, Sipmodel, Renksira, Sipack;"_s,
        {uR"(1,"A75","YZK","SR",3,01.01.2000)"_s, uR"(1,"A75","KLY","SR",1,01.01.2000)"_s,
         uR"(2,"İnci-1","KPE","BY",2,01.01.2000)"_s});
    add("type by short name", u"Select TipID From UrunTipi Where KisaAD = 'KPE'"_s, {u"3"_s});
    add("model and type by short name",
        u"Select m_miktar From Model, Uruntipi Where M_uruntip = TipID and Model = 'A75' "
        "and KisaAD = 'KLY'"_s,
        {u"5"_s});

    // Exchange rates
    add("rates with their currencies",
        u"select tarih, dovizd.dovcinsi, kur, aliskur from DovizD inner join DovizB "
        "On dovizd.dovcinsi = dovizb.dovcinsi where tarih = datevalue('01.03.2012') "
        "order by esira, dovulke, dovizd.dovcinsi;"_s,
        {uR"(01.03.2012,"USD",1.8,1.7)"_s, uR"(01.03.2012,"EUR",2.4,2.3)"_s});

    // Production tracking
    add("lines per model and type",
        u"Select Sipmodel, Kisaad, Sum(Sipadet) as Topadet FROM SiparisD INNER JOIN UrunTipi ON "
        "SiparisD.SipUruntip = UrunTipi.TipID Where SipnumD = 1 "
        "and Trhbas >= DateValue('01.01.2000') and Trhbas <= DateValue('31.12.2012') "
        "and Drm1 = '' Group by Sipmodel, Kisaad Order by Sipmodel, Kisaad;"_s,
        {uR"("A75","KLY",1)"_s, uR"("A75","YZK",3)"_s, uR"("İnci-1","KPE",2)"_s});
    add("lines of several orders",
        u"Select SipnumD, Sipmodel, Sipuruntip, Kisaad, Siprenk, SipAck, Drm1, Drm2, "
        "Sum(Sipadet) as Topadet FROM SiparisD INNER JOIN UrunTipi ON SiparisD.SipUruntip = "
        "UrunTipi.TipID Where SipnumD In(2,3) "
        "and Trhbas >= DateValue('01.01.2000') and Trhbas <= DateValue('01.01.2000') "
        " Group by SipnumD, Sipmodel, Sipuruntip, Kisaad, Siprenk, Sipack, Drm1, Drm2;"_s,
        {uR"(2,"a75",1,"YZK","SR","","","",5)"_s, uR"(3,"A75",1,"YZK","BY","","","",1)"_s});
    add("molds of a model",
        u"SELECT Kalipkodu, Sum(M_Adet) as Topadet FROM Model INNER JOIN Kalip ON Model.M_Kod = "
        "Kalip.KalipID Where model = 'A75' and M_Tip = 1 Group by Kalipkodu "_s,
        {uR"("K-1",1)"_s, uR"("K-2",2)"_s});
    add("customer and note of an order",
        u"SELECT Firadi, SiparisB.Aciklama as SAck FROM SiparisB INNER JOIN Firma ON "
        "SiparisB.SipFirkod = Firma.Firkod Where Sipnum =  2"_s,
        {uR"("O'Hara Gold","Kutulu")"_s});

    // Reports
    const QString period = u"siptrh >= datevalue('01.03.2012') and siptrh <= "
                           "datevalue('31.03.2012')"_s;
    add("karats of a period",
        u"select distinct ayar from siparisB where "_s + period + u" order by ayar"_s,
        {u"585"_s, u"750"_s});
    add("stones needed",
        u"select taskodu,ayar,sum(sipadet*m_adet) as t1 , "
        "format(sum(sipadet*m_adet)*max(taskatsayi),'0.00') as t2 from siparisB "
        ",siparisd,model,tas "
        "where sipnum=sipnumD and m_tip=0 and SipUruntip = M_Uruntip and "_s +
            period +
            u" and sipmodel=model and tasID=m_kod group by taskodu,ayar order by taskodu,ayar "_s,
        // (3 + 1) rings of 4 zircons in 585, 5 in 750; 2 earrings of 2 brilliants
        {uR"("PRL 1",585,4,"0.02")"_s, uR"("ZRK 2",585,16,"0.32")"_s,
         uR"("ZRK 2",750,20,"0.40")"_s});
    add("molds needed",
        u"select kalipkodu,KalipAck,ayar,format(sum(sipadet*m_adet),'0') as t1  from siparisB "
        ",siparisd,model,Kalip where sipnum=sipnumD and m_tip=1 and SipUruntip = M_Uruntip  and "_s +
            period +
            u" and sipmodel=model and kalipID = m_kod group by kalipkodu,KalipAck,ayar order by "
            "kalipkodu,ayar "_s,
        {uR"("K-1","Yüzük kolu",585,"4")"_s, uR"("K-1","Yüzük kolu",750,"5")"_s,
         uR"("K-2","Kolye ucu",585,"2")"_s});
    add("types of a period",
        u"select uruntipi,tipID from uruntipi where tipID in (select distinct sipuruntip from "
        "siparisB,siparisd where sipnumd=sipnum and  "_s +
            period + u") order by uruntipi"_s,
        {uR"("Kolye",2)"_s, uR"("Küpe",3)"_s, uR"("Yüzük",1)"_s});
    add("an order's models",
        u"SELECT SiparisD.SipModel, m_Uruntip, UrunTipi.KisaAD,SiparisD.SipAdet, SiparisB.Ayar, "
        "Model.M_Miktar FROM ((SiparisB INNER JOIN SiparisD ON SiparisB.Sipnum = SiparisD.SipnumD) "
        "INNER JOIN Model ON SiparisD.SipModel = Model.Model) "
        "INNER JOIN UrunTipi ON Model.M_Uruntip = UrunTipi.TipID "
        "Where (((SiparisB.Sipnum) =  2)) "
        "GROUP BY SiparisD.SipModel, m_Uruntip, UrunTipi.KisaAD, SiparisD.SipAdet, SiparisB.Ayar, "
        "Model.M_Miktar;"_s,
        {uR"("a75",1,"YZK",5,750,2)"_s, uR"("a75",2,"KLY",5,750,5)"_s});
    add("an order's molds",
        u"Select Model, SipAdet, Kalipkodu, KalipAck, Kalipdur, M_Adet From SiparisD, Model, Kalip "
        "Where SiparisD.Sipmodel = Model.Model AND Sipuruntip = M_uruntip and M_Kod = KalipID "
        "and SipnumD =  1 and M_Tip = 1 Order by KalipDur, Kalipkodu;"_s,
        {uR"("A75",1,"K-2","Kolye ucu","Disarda",2)"_s,
         uR"("A75",3,"K-1","Yüzük kolu","Icerde",1)"_s});
    add("an order's stones",
        u"Select Model, SipAdet, Taskodu, TasFiyati, TasBirimi, TasKatsayi, M_Adet From SiparisD, "
        "Model, Tas Where SiparisD.Sipmodel = Model.Model AND Sipuruntip = M_uruntip and M_Kod = "
        "TasID and SipnumD =  2 and M_Tip = 0 Order by Taskodu;"_s,
        {uR"("A75",5,"ZRK 2",1.5,"USD",0.02,4)"_s});

    // Labels and repair
    add("label's model",
        u"Select UrunTipi.UrunTipi From Model, Uruntipi Where M_uruntip = TipID "
        "and Model = 'A75' and M_uruntip =  1"_s,
        {uR"("Yüzük")"_s, uR"("Yüzük")"_s});
    add("last line number", u"Select Top 1 Dotosayi From SiparisD Order by Dotosayi desc;"_s,
        {u"6"_s});
    add("reserved word in brackets", u"Select [Check], Bold From BarkodtipAlanlar"_s, {});
}

void SqlTextsTest::selects()
{
    QFETCH(QString, sql);
    QTEST(rows(sql), "expected");
}

/// The model report split by karat: fragments are repeated per karat with
/// table aliases of their own.
void SqlTextsTest::pivotByKarat()
{
    QString selects;
    QString sums;
    QString totals;
    int n = 3;
    for (const QString &karat : {u"585"_s, u"750"_s}) {
        const QString a = QString::number(n);
        const QString b = QString::number(n + 1);
        n += 2;
        selects += u" (select sum(s%1.sipadet) from siparisd as s%1,siparisb as s%2  where "
                   "s%2.sipnum=s%1.sipnumd and s%1.sipnumd = s1.sipnum and s%1.sipmodel = "
                   "s2.sipmodel and s%2.ayar=%3) as t%3 ,"_s.arg(a, b, karat);
        sums += u"sum(t%1) as tt%1,"_s.arg(karat);
        totals += u" IIf(IsNull(t%1), 0, t%1) + "_s.arg(karat);
    }
    selects.chop(1);
    totals.chop(2);
    const auto report = [&](const QString &filter) {
        return rows(u"select * from (select sipmodel ,"_s + sums + u" sum("_s + totals +
                    u") as TOPLAM from (select s2.sipmodel,"_s + selects +
                    u" from siparisB as s1, siparisd as s2, firma, Model where sipfirkod = firkod "
                    "and s2.SipModel = Model and s2.sipuruntip = model.m_uruntip and "_s +
                    filter +
                    u" s1.sipnum=s2.sipnumD and s1.siptrh >= datevalue('01.03.2012') and s1.siptrh "
                    "<= datevalue('31.03.2012')   group by s1.sipnum,s2.sipmodel) group by "
                    "sipmodel) order by toplam desc"_s);
    };
    const QStringList expected = {uR"("A75",5,5,10)"_s, uR"("İnci-1",2,,2)"_s};
    const QStringList all = report({});
    QCOMPARE(all.size(), 2);
    QCOMPARE(all[0].toUpper(), expected[0]);
    QCOMPARE(all[1], expected[1]);
    QCOMPARE(report(u" firkod =  20 and  ULKEID =  2 and  Left(Sipmodel,1) = 'A' and "_s),
             QStringList(uR"("a75",,5,5)"_s));
    QCOMPARE(report(u" M_Uruntip =  3 and "_s), QStringList(uR"("İnci-1",2,,2)"_s));
}

/// The same report split by product type: column aliases are made of the
/// types' own names.
void SqlTextsTest::pivotByProductType()
{
    const QStringList result = rows(
        u"select * from (select sipmodel ,sum(tYüzük) as ttYüzük, sum( IIf(IsNull(tYüzük), 0, "
        "tYüzük) ) as TOPLAM from (select s2.sipmodel, (select sum(s3.sipadet) from siparisd as "
        "s3,siparisb as s4  where s4.sipnum=s3.sipnumd and s3.sipnumd = s1.sipnum and s3.sipmodel "
        "= "
        "s2.sipmodel and s3.sipuruntip=1) as tYüzük  from siparisB as s1, siparisd as s2, firma, "
        "Model where sipfirkod = firkod and s2.SipModel = Model and s2.sipuruntip = "
        "model.m_uruntip and  s1.sipnum=s2.sipnumD and s1.siptrh >= datevalue('01.05.2012') and "
        "s1.siptrh <= datevalue('31.05.2012')   group by s1.sipnum,s2.sipmodel) group by sipmodel) "
        "order by toplam desc"_s);
    QCOMPARE(result, QStringList(uR"("A75",100,100)"_s));
}

void SqlTextsTest::deletes_data()
{
    QTest::addColumn<QString>("sql");
    QTest::addColumn<qint64>("count");
    QTest::newRow("order header") << u"DELETE From SiparisB Where Sipnum =  4"_s << qint64(1);
    QTest::newRow("order lines") << u"DELETE From SiparisD Where SipnumD =  4"_s << qint64(1);
    QTest::newRow("rights") << u"DELETE From Menukisit Where Mk_userid = 2"_s << qint64(2);
    QTest::newRow("stone") << u"DELETE From Tas Where Taskodu = 'prl 1'"_s << qint64(1);
    QTest::newRow("colour") << u"DELETE From Renkler Where Renkno = 'XX'"_s << qint64(0);
    QTest::newRow("model") << u"DELETE From Model Where Model = 'A75' and M_uruntip =  1"_s
                           << qint64(2);
    QTest::newRow("catalogue") << u"DELETE From Katalog Where Katadi = 'BAHAR'"_s << qint64(3);
}

void SqlTextsTest::deletes()
{
    QFETCH(QString, sql);
    Transaction transaction(*m_db); // rolled back: the next rows need the company whole
    QTEST(m_db->execute(sql), "count");
}

KUYUM_TEST(SqlTextsTest)

} // namespace kuyum

#include "SqlTextsTest.moc"
