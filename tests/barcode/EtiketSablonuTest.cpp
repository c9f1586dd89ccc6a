#include "EtiketSablonu.h"
#include "BarcodeReader.h"
#include "EtiketStore.h"
#include "LabelTexts.h"
#include "Oturum.h"
#include "SampleCompany.h"
#include "TestRegistry.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

BarkodAlani field(const QString &text, double left, double top)
{
    return {text, {u"Courier New Tur"_s, 7, true}, {Twips(left * 10), Twips(top * 10)}};
}

BarkodTipi smallLabel(const QList<BarkodAlani> &alanlar)
{
    return {1, u"Küçük"_s, {2400_tw, 100_tw}, {}, 1, 1, alanlar, {}};
}

const Etiket ring{5, 1234, u"YZK-12"_s, 3.5, u"585"_s, u"Yüzük"_s, {}};

} // namespace

class EtiketSablonuTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void placeholdersAreFilledAndTheTextAroundThemStays()
    {
        SablonVerileri veriler;
        veriler.firma = u"Altın Atölyesi"_s;
        veriler.sorulan[u"%TFYT%"_s] = u"%KOD% 1500"_s;
        const BarkodTipi tip =
            smallLabel({field(u"Kod: %KOD%/%AYAR%"_s, 0, 10), field(u"%BKOD%"_s, 0, 30),
                        field(u"%FRM%"_s, 0, 50), field(u"%100 %miktar% gr"_s, 0, 70),
                        field(u"%TFYT% TL"_s, 0, 90), field(u"%ALAN5%"_s, 0, 110)});
        QCOMPARE(labelLines(sablonBelgesi(ring, tip, veriler)),
                 (QStringList{u"Kod: YZK-12/585"_s, u"1600500012344"_s, u"Altın Atölyesi"_s,
                              u"%100 3.50 gr"_s, u"%KOD% 1500 TL"_s}));
        veriler.ozelUrun = OzelUrun{u"ÖZEL-1"_s, u"Nişan"_s};
        QCOMPARE(labelLines(sablonBelgesi(ring, smallLabel({field(u"%KOD%"_s, 0, 10)}), veriler)),
                 QStringList{u"ÖZEL-1 Nişan"_s});
        QVERIFY(uses(tip, u"%TFYT%"_s) && uses(tip, u"%MIKTAR%"_s) && !uses(tip, u"%ALAN1%"_s));
    }

    /// Whatever a template does to its symbol, it can be read.
    void theSymbolIsReadAmongItsFields_data()
    {
        QTest::addColumn<int>("left");
        QTest::newRow("over it") << 250;
        QTest::newRow("right of it") << 343;
        QTest::newRow("far right of it") << 400;
        QTest::newRow("left of it") << 150;
    }
    void theSymbolIsReadAmongItsFields()
    {
        QFETCH(int, left);
        const BarkodTipi tip =
            smallLabel({field(u"%KOD%"_s, left, 10), field(u"WWWW"_s, left, 30)});
        const PrintDocument document = sablonBelgesi(ring, tip, {});
        for (const int dotsPerInch : {203, 300, 600})
            QCOMPARE(readBarcodes(pageDots(document, document.pages().first(), dotsPerInch)),
                     QStringList{u"EAN-13:1600500012344"_s});
        QCOMPARE(coveredFields(tip).isEmpty(), left != 250);
        // Only a field that the widest symbol would reach makes way.
        QCOMPARE(labelTexts(document).first().at.x == Twips(left * 10), left != 343);
    }

    void aColumnMakesWayWhole()
    {
        // Two columns right of the symbol: only the first begins below its widest
        // place, with a line above and one below the symbol.
        const BarkodTipi tip =
            smallLabel({field(u"A"_s, 343, 10), field(u"B"_s, 360, 30), field(u"C"_s, 343, 95),
                        field(u"D"_s, 500, 30), field(u"E"_s, 350, 95)});
        QList<int> lefts;
        for (const PageText &text : labelTexts(sablonBelgesi(ring, tip, {})))
            lefts.append(qRound(text.at.x.count()));
        QCOMPARE(lefts[2], lefts[0]);
        QCOMPARE(lefts[1], lefts[0] + 170);
        QVERIFY(lefts[0] > 3430);
        QCOMPARE(lefts.mid(3), (QList<int>{5000, 3500}));
    }

    void aSheetsLabelIsPrintedInItsPlace()
    {
        BarkodTipi tip = smallLabel({field(u"%KOD%"_s, 20, 30)});
        tip.BasSatiri = 3;
        tip.BasSutunu = 2;
        const PrintDocument document = sablonBelgesi(ring, tip, {});
        const PagePoint at = labelTexts(document).first().at;
        QCOMPARE(qRound(at.x.millimetres() * 10), qRound(10 * (104 + Twips(200).millimetres())));
        QCOMPARE(qRound(at.y.millimetres() * 10), qRound(10 * (24 + Twips(300).millimetres())));
        QCOMPARE(qRound(document.width().millimetres()), 208);
        QCOMPARE(qRound(document.height().millimetres()), 36);
    }

    void readsTheCompanysLabelTypes()
    {
        const QTemporaryDir folder;
        Oturum oturum;
        oturum.Veritabani = makeSampleCompany(folder.filePath(u"atolye.kuyum"_s));
        const EtiketStore store(oturum);
        QVERIFY(store.BarkodTipleri().isEmpty());
        for (
            const QString &sql :
            {u"Insert Into Barkodtip (BarkodTip_ID, BarkodTip_Ad, BarkodTip_OzelUrun, pBarkod_Top, "
             "pBarkod_Left, BasSutunu, pic_Top, pic_Left) Values (7, 'Nişan', 1, 20, 240, 2, 15, 5)"_s,
             u"Insert Into Barkodtip (BarkodTip_ID, pBarkod_Top, pBarkod_Left, "
             "pic_Top, pic_Left) Values (8, Null, Null, 0, 0)"_s,
             u"Insert Into BarkodtipAlanlar (btipno, alanno, alanadi, [Check], FontName, boyut, "
             u"Bold, "
             "pic_Top, pic_Left) Values (7, 2, '%AYAR%', 1, 'Arial Tur', 9.5, 1, 30, 360)"_s,
             u"Insert Into BarkodtipAlanlar (btipno, alanno, alanadi, [Check]) "
             "Values (7, 1, '%KOD%', 1)"_s,
             u"Insert Into BarkodtipAlanlar (btipno, alanno, alanadi, [Check]) "
             "Values (7, 3, '%FRM%', 0)"_s,
             u"Insert Into Barkodtipozel (btipno, BarkodKod_Kod) Values (7, 'ÖZEL')"_s,
             u"Insert Into Barkodtipozel (btipno, BarkodKod_Kod) Values (8, 'SIRADAN')"_s})
            oturum.Veritabani->execute(sql);

        const QList<BarkodTipi> types = store.BarkodTipleri();
        QCOMPARE(types.size(), 2);
        const BarkodTipi &tip = types[0];
        QCOMPARE(tip.pBarkod, (PagePoint{2400_tw, 200_tw}));
        QCOMPARE(tip.resim, (PagePoint{50_tw, 150_tw}));
        QCOMPARE(tip.BasSatiri, 1);
        QCOMPARE(tip.BasSutunu, 2);
        QCOMPARE(tip.ozelUrunler.size(), 1);
        QCOMPARE(tip.alanlar.size(), 2);
        QCOMPARE(tip.alanlar[0].font, (PageFont{u"Courier New Tur"_s, 7}));
        QCOMPARE(tip.alanlar[1].font, (PageFont{u"Arial Tur"_s, 9.5, true}));
        QCOMPARE(tip.alanlar[1].at, (PagePoint{3600_tw, 300_tw}));
        QCOMPARE(types[1].pBarkod, (PagePoint{2600_tw, 100_tw}));
        QVERIFY(!types[1].resim && types[1].ozelUrunler.isEmpty());
    }
};

KUYUM_TEST(EtiketSablonuTest)

} // namespace kuyum

#include "EtiketSablonuTest.moc"
