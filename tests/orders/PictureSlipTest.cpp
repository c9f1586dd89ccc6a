#include "PictureSlip.h"
#include "BarcodeReader.h"
#include "OrderCode.h"
#include "OrderFixture.h"
#include "OrderSlip.h"
#include "PdfReader.h"
#include "SiparisStore.h"
#include "SlipReading.h"
#include "TestRegistry.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

using namespace SlipReading;

namespace {

struct Layout
{
    int adet;
    PrintDocument (*write)(const PictureSlipSource &);
    Twips advance;
};

const QList<Layout> layouts = {{7, Yazdir_Resimli_7, 1800_tw},
                               {12, Yazdir_Resimli_12, 1050_tw},
                               {15, Yazdir_Resimli_15, 900_tw}};

/// A slip of which every model has the same picture, or none.
PrintDocument slip(const Layout &layout, const Siparis &siparis, const QImage &resim = {})
{
    const OrderGrams grams =
        orderGrams(siparis, 13.075, [](const QString &, const QString &) { return 2.0; });
    return layout.write({siparis, MusteriKimligi::Kisa, grams,
                         [&](const SiparisSatiri &) { return resim; },
                         [](const QString &) { return 2.0; }});
}

QImage picture(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::darkYellow);
    return image;
}

QList<SiparisSatiri> rows(int count)
{
    QList<SiparisSatiri> result;
    for (int i = 1; i <= count; ++i)
        result.append(row(u"M%1"_s.arg(i), u"SR"_s, {i, 0, 2}, u"not %1"_s.arg(i)));
    return result;
}

/// All texts of a document in the order in which they were put.
QString allText(const PrintDocument &document)
{
    QStringList all;
    for (const PrintPage &page : document.pages()) {
        for (const PageText &text : items<PageText>(page))
            all.append(text.text);
    }
    return all.join(u' ');
}

QString numberedWords(const QString &word, int count)
{
    QStringList words;
    for (int i = 1; i <= count; ++i)
        words.append(word + QString::number(i));
    return words.join(u' ');
}

/// An order in which nothing is short.
Siparis crowdedOrder()
{
    Siparis siparis = orderOf({});
    QStringList names;
    QList<qint32> quantities;
    for (int i = 1; i <= 17; ++i) {
        names.append(i % 5 == 0 ? u"Uzun Tip%1"_s.arg(i) : u"TP%1"_s.arg(i));
        quantities.append(i % 4 == 0 ? 123456 : 1000 + i);
    }
    siparis.tipler = types(names);
    siparis.Aciklama = numberedWords(u"başlık"_s, 100);
    for (int i = 0; i < 9; ++i) {
        QList<qint32> some(17, 0);
        some[i] = 30000 + i;
        siparis.satirlar.append(row(u"ÇOK UZUN MODEL KODU OLAN BİR %1"_s.arg(i), u"BEYAZ"_s,
                                    i % 2 == 0 ? quantities : some,
                                    numberedWords(u"açıklama%1-"_s.arg(i), 17)));
        siparis.satirlar.append(row(u"A%1"_s.arg(i), u"SR"_s, some, QString(200, u'x')));
    }
    return siparis;
}

} // namespace

class PictureSlipTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPageHoldsItsNumberOfCells()
    {
        for (const Layout &layout : layouts) {
            QList<SiparisSatiri> full = rows(layout.adet);
            // A row without a model takes no cell.
            full.insert(3, row(u" "_s, u"SR"_s, {1, 1, 1}));
            const QImage image = picture({400, 300});
            PrintDocument document = slip(layout, orderOf(full), image);
            QCOMPARE(document.pages().size(), 1);
            const QList<PagePicture> pictures = items<PagePicture>(document.pages()[0]);
            QCOMPARE(pictures.size(), layout.adet);
            for (int i = 0; i < layout.adet; ++i)
                QCOMPARE(pictures[i].at, (PagePoint{530_tw, 2650_tw + layout.advance * i - 20_tw}));
            QCOMPARE(layoutFault(document), QString());

            full.append(row(u"SONRAKİ"_s, u"SR"_s, {1, 0, 0}));
            document = slip(layout, orderOf(full), image);
            QCOMPARE(document.pages().size(), 2);
            const PrintPage &second = document.pages()[1];
            QCOMPARE(items<PagePicture>(second).value(0).at, (PagePoint{530_tw, 2630_tw}));
            QCOMPARE(at(second, 500_tw, 500_tw), u"SİPARİŞ LİSTESİ"_s);
            QCOMPARE(at(second, 5400_tw, 16100_tw), u"Sayfa 2"_s);
            QVERIFY(allText(document).contains(u"SONRAKİ"_s));
        }
    }

    void textStandsUnderItsHeading()
    {
        const SiparisSatiri satir = row(u"A75"_s, u"SR"_s, {1, 0, 12}, u"ölçü 14"_s);
        const auto page = [&](const Layout &layout) {
            return slip(layout, orderOf({satir}), picture({300, 300})).pages().first();
        };
        const PrintPage seven = page(layouts[0]);
        const QString names = u"KLY  YZK  KPE  AÇIKLAMA"_s;
        QCOMPARE(at(seven, 550_tw, 1150_tw), u"RESIM/MODEL                    RENK  "_s + names);
        QCOMPARE(at(seven, Twips(550 + 25 * 96), 2650_tw), u"A75"_s); // beside the picture
        QCOMPARE(at(seven, Twips(550 + 31 * 96), 2850_tw), u"SR      1        12  ölçü 14"_s);

        const PrintPage twelve = page(layouts[1]);
        QCOMPARE(at(twelve, 550_tw, 1150_tw),
                 u"RESIM/MODEL                    RNK ADET T.AD GR    T.GR   AÇIKLAMA"_s);
        QCOMPARE(at(twelve, Twips(550 + 16 * 96), 2650_tw),
                 u"A75        KLY SR     1  13  2.00  339.95 ölçü 14"_s);
        QCOMPARE(at(twelve, Twips(550 + 27 * 96), 2850_tw), u"KPE       12"_s);
        // A hundred pieces and more than a kilogram still share the line.
        QCOMPARE(at(slip(layouts[1], orderOf({row(u"A75"_s, u"SR"_s, {120, 0, 0}, u"x"_s)}))
                        .pages()
                        .first(),
                    Twips(550 + 16 * 96), 2650_tw),
                 u"A75        KLY SR   120 120  2.00 3138.00 x"_s);
        QVERIFY(allText(slip(layouts[1], orderOf({satir, satir})))
                    .contains(u"IŞIK        Toplam GRAM/AD: 679.90 / 26"_s));

        const PrintPage fifteen = page(layouts[2]);
        QCOMPARE(at(fifteen, 550_tw, 1150_tw), u"RESIM        MODEL             RENK  "_s + names);
        QCOMPARE(at(fifteen, Twips(550 + 13 * 96), 2650_tw),
                 u"A75               SR      1        12  ölçü 14"_s);
    }

    void aNoteOfTwoHundredLettersStaysInItsCell()
    {
        const QString note =
            u"ölçü 14, taşlar pembe, rodajsız; arkası düz olacak ve tırnaklar ince işlenecek. "
            "Zincir 45 cm, kilit istakoz. Kutuya müşterinin adı yazılacak, sertifika ayrıca "
            "verilecek; acele edilmesin, teslim 12 Mart."_s;
        QVERIFY(note.size() >= 200);
        for (const Layout &layout : layouts) {
            for (const int typeCount : {1, 5, 8, 13}) {
                Siparis siparis = orderOf({});
                QStringList names;
                for (int i = 1; i <= typeCount; ++i)
                    names.append(u"T%1"_s.arg(i));
                siparis.tipler = types(names);
                QList<qint32> quantities(typeCount, 0);
                quantities.last() = 3;
                for (int i = 0; i < layout.adet; ++i)
                    siparis.satirlar.append(
                        row(i == 0 ? u"ÇOK UZUN MODEL KODU OLAN ÜR-30"_s : u"ŞELALE 2362"_s,
                            u"SR"_s, quantities, note));
                const PrintDocument document = slip(layout, siparis, picture({300, 400}));
                QCOMPARE(document.pages().size(), 1);
                QCOMPARE(layoutFault(document), QString());
                QCOMPARE(allText(document).count(u"12 Mart."_s), layout.adet);
            }
        }
    }

    void nothingIsLostOrCovered()
    {
        const Siparis siparis = crowdedOrder();
        for (const Layout &layout : layouts) {
            const PrintDocument document = slip(layout, siparis);
            QCOMPARE(layoutFault(document), QString());
            const QString all = allText(document);
            for (const SiparisSatiri &satir : siparis.satirlar) {
                QVERIFY2(all.contains(satir.model), qPrintable(satir.model));
                for (const qint32 adet : satir.adetler)
                    QVERIFY(adet == 0 || all.contains(QString::number(adet)));
                for (const QString &word : satir.aciklama.split(u' '))
                    QVERIFY2(word.startsWith(u'x') || all.contains(word), qPrintable(word));
            }
            QCOMPARE(all.count(u'x'), 9 * 200);
            for (const QString &word : siparis.Aciklama.split(u' '))
                QVERIFY2(all.contains(word), qPrintable(word));
            QVERIFY(all.contains(u" (DEVAM)"_s));
            if (layout.adet != 12) {
                for (const UrunTipi &tip : siparis.tipler)
                    QVERIFY2(all.contains(tip.KisaAD), qPrintable(tip.KisaAD));
            }
        }
    }

    void aMissingPictureLeavesAFrameWithTheModel()
    {
        for (const Layout &layout : layouts) {
            const PrintDocument document =
                slip(layout, orderOf({row(u"DAMLA 2051"_s, u"SR"_s, {1, 0, 0})}));
            const PrintPage &page = document.pages().first();
            QVERIFY(items<PagePicture>(page).isEmpty());
            QRectF frame;
            for (const PageLine &line : items<PageLine>(page)) {
                if (line.from.y >= 2600_tw)
                    frame |= paperOf(line).first();
            }
            QCOMPARE(frame.topLeft().toPoint(), QPoint(528, 2628));
            int inside = 0;
            for (const PageText &text : items<PageText>(page))
                inside += text.text == u"DAMLA 2051"_s && frame.contains(paperOf(text).last());
            QCOMPARE(inside, 1);
            QCOMPARE(layoutFault(document), QString());
        }
    }

    void picturesAreReadOnceAndKeptSmall()
    {
        OrderFixture fixture;
        fixture.oturum.ResimYolu = fixture.dir.filePath(u"resim"_s);
        QVERIFY(QDir().mkpath(fixture.dir.filePath(u"resim/YZK"_s)));
        QVERIFY(picture({1600, 1200}).save(fixture.dir.filePath(u"resim/A75.jpg"_s)));
        QVERIFY(picture({600, 1200}).save(fixture.dir.filePath(u"resim/YZK/boş.jpg"_s)));
        QFile broken(fixture.dir.filePath(u"resim/İnci-1.jpg"_s));
        QVERIFY(broken.open(QIODevice::WriteOnly) && broken.write("bozuk") == 5);
        broken.close();
        Siparis siparis = orderOf({});
        for (int i = 0; i < 20; ++i)
            siparis.satirlar +=
                {row(u"A75"_s, u"SR"_s, {1, 0, 0}), row(u"a75"_s, u"BY"_s, {1, 0, 0}),
                 row(u"İnci-1"_s, u"SR"_s, {0, 0, 1}), row(u"yok"_s, u"SR"_s, {1, 0, 0}),
                 row(u"boş"_s, u"SR"_s, {0, 1, 0})};

        QList<std::pair<int, int>> told;
        const SlipChoice choice{MusteriKimligi::Kisa, true, 15};
        const auto write = [&](int stopAt) {
            told.clear();
            return orderSlip(fixture.oturum, siparis, choice, [&](int done, int total) {
                told.append({done, total});
                return done < stopAt;
            });
        };
        QVERIFY(!write(2));
        QCOMPARE(told.size(), 3);
        const PrintDocument document = write(100).value();
        QCOMPARE(told.last(), std::pair(3, 4)); // of four models, the last one begun

        QSet<qint64> images;
        for (const PrintPage &page : document.pages()) {
            for (const PagePicture &found : items<PagePicture>(page)) {
                images.insert(found.image.cacheKey());
                QVERIFY(found.image.width() <= 157 && found.image.height() <= 118);
            }
        }
        QCOMPARE(images.size(), 2);

        const QString pdf = fixture.dir.filePath(u"fiş.pdf"_s);
        writePdf(document, pdf);
        QSet<QString> objects;
        const QStringList places = pdfImages(pdf);
        for (const QString &place : places) {
            const QStringList fields = place.split(u' ', Qt::SkipEmptyParts);
            QCOMPARE(fields.value(8), u"jpeg"_s);
            objects.insert(fields.value(10));
        }
        QCOMPARE(places.size(), 60);
        QCOMPARE(objects.size(), 2);
    }

    /// The plain list's and the pictures'.
    void theOrdersBarsAreReadFromPaper()
    {
        OrderFixture fixture;
        Siparis siparis = SiparisStore(fixture.oturum).SiparisBul(1).value();
        siparis.Sipnum = std::numeric_limits<qint32>::max();
        const QString pdf = fixture.dir.filePath(u"fiş.pdf"_s);
        const auto goOn = [](int, int) { return true; };
        for (const int adet : {0, 7, 12, 15}) {
            const SlipChoice choice{MusteriKimligi::Kisa, adet > 0, adet};
            const PrintDocument document = orderSlip(fixture.oturum, siparis, choice, goOn).value();
            QCOMPARE(layoutFault(document), QString());
            QVERIFY(allText(document).contains(u"SİPARİŞ NO: 2147483647"_s));
            for (const int dotsPerInch : {203, 300}) {
                writePdf(document, pdf, dotsPerInch);
                QCOMPARE(readBarcodes(pdfDots(pdf, dotsPerInch)),
                         QStringList{u"EAN-13:"_s + orderCode(siparis.Sipnum)});
            }
        }
        // What is not stored yet has no number to be found by.
        siparis.Sipnum = 0;
        const PrintDocument unsaved = orderSlip(fixture.oturum, siparis, {}, goOn).value();
        QVERIFY(!unsaved.hasBars() && !allText(unsaved).contains(u"SİPARİŞ NO:"_s));
    }

    void lineTotalsAddUpToTheHeaders()
    {
        OrderFixture fixture;
        const Siparis siparis = SiparisStore(fixture.oturum).SiparisBul(1).value();
        const auto goOn = [](int, int) { return true; };
        const PrintDocument document =
            orderSlip(fixture.oturum, siparis, {MusteriKimligi::Ad, true, 12}, goOn).value();
        const QString all = allText(document);
        QVERIFY(all.contains(u"Toplam GRAM/AD: 169.98 / 6"_s));
        // Three rings of 2 grams and a necklace of 5, with the density of the karat.
        QVERIFY2(all.contains(u"4  2.00  143.83 ölçü 14"_s), qPrintable(all));
        QVERIFY2(all.contains(u"2  1.00   26.15"_s), qPrintable(all));
        // Any other number of cells stands for 12.
        const PrintDocument other =
            orderSlip(fixture.oturum, siparis, {MusteriKimligi::Ad, true, 9}, goOn).value();
        QCOMPARE(allText(other), all);
    }
};

KUYUM_TEST(PictureSlipTest)

} // namespace kuyum

#include "PictureSlipTest.moc"
