#include "Yazdir0.h"
#include "Dates.h"
#include "OrderFixture.h"
#include "PageReading.h"
#include "PdfReader.h"
#include "TestRegistry.h"

#include <QDir>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

using namespace PageReading;

namespace {

QList<UretimMalzemesi> materials(const QString &prefix, int count)
{
    QList<UretimMalzemesi> result;
    for (int i = 1; i <= count; ++i)
        result.append({prefix + QString::number(i), double(i)});
    return result;
}

/// A sheet whose blocks need anything from two lines to more than a page.
UretimListesi awkwardList()
{
    UretimListesi list;
    list.Ayar = 585;
    list.filtre = {noDate(), QDate(2012, 12, 31), u"HAZIR"_s, QString(60, u'ü')};
    for (qint32 order = 1; order <= 400; ++order)
        list.siparisler.append(order * 7919);
    const QString note = u"Pek uzun bir not, "_s.repeated(20);
    for (int i = 1; i <= 60; ++i) {
        UretimBlogu block;
        block.satir = {
            i * 7919,       u"M%1"_s.arg(i), u"YZK"_s, u"SR"_s, i % 3 == 0 ? note : QString(),
            u"ONAYLANDI"_s, u"DÖKÜM"_s,      i * 1.0};
        block.musteri = {u"Müşteri %1"_s.arg(i), i % 5 == 0 ? note.repeated(3) : u"Acele"_s};
        block.kaliplar = materials(u"K%1-"_s.arg(i), i % 8);
        block.taslar = materials(u"T%1-"_s.arg(i), i % 20);
        list.bloklar.append(block);
    }
    list.bloklar[20].satir.model = QString(30, u'W');
    list.bloklar[20].kaliplar = materials(QString(40, u'K'), 80);
    list.bloklar[30].taslar = materials(QString(40, u'T'), 200);
    return list;
}

UretimResimleri pictures(const QImage &image)
{
    return {[image](const UretimSatiri &) { return image; },
            [image](const QString &) { return image; }};
}

QImage picture()
{
    QImage image(400, 300, QImage::Format_RGB32);
    image.fill(Qt::darkYellow);
    return image;
}

QStringList texts(const PrintPage &page)
{
    QStringList result;
    for (const PageText &text : items<PageText>(page))
        result.append(text.text);
    return result;
}

/// The pages on which a text beginning so stands, from 0.
QList<int> pagesWith(const PrintDocument &document, const QString &beginning)
{
    QList<int> pages;
    for (int i = 0; i < document.pages().size(); ++i) {
        for (const QString &text : texts(document.pages()[i])) {
            if (text.startsWith(beginning))
                pages.append(i);
        }
    }
    return pages;
}

const auto goOn = [](int, int) { return true; };

} // namespace

class Yazdir0Test : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsToThePage_data();
    void keepsToThePage();
    void saysEverythingOfALine();
    void refusesWhatGivesNoSheet();
    void readsPicturesOnceIntoThePdf();
};

void Yazdir0Test::keepsToThePage_data()
{
    QTest::addColumn<PrintDocument>("sheet");
    const UretimListesi list = awkwardList();
    QTest::newRow("with pictures") << Yazdir0_1(list, pictures(picture()));
    QTest::newRow("without a picture") << Yazdir0_1(list, pictures({}));
    QTest::newRow("text") << Yazdir0_2(list);
}

void Yazdir0Test::keepsToThePage()
{
    QFETCH(PrintDocument, sheet);
    QCOMPARE(layoutFault(sheet), QString());
    QVERIFY(sheet.pages().size() > 3);
    for (int i = 0; i < sheet.pages().size(); ++i) {
        const QStringList page = texts(sheet.pages()[i]);
        for (const QString &heading : {u"URETIM RAPORU"_s, u"AYAR : 585"_s,
                                       u"TARIH :01.01.2000-31.12.2012"_s, u"Syf:%1"_s.arg(i + 1)})
            QVERIFY2(page.contains(heading), qPrintable(heading + page.join(u'/')));
        QVERIFY(page.filter(QRegularExpression(u"^SİPARİŞ NOLARI : 7919,15838,"_s)).size() == 1);
        for (const PageText &text : items<PageText>(sheet.pages()[i]))
            QCOMPARE(text.font.family, u"Courier New Tur"_s);
    }
    // A block that fits on a page is not divided; one that does not goes on
    // under its name.
    for (int i = 1; i <= 60; ++i) {
        if (i == 21 || i == 31)
            continue;
        const QList<int> head = pagesWith(sheet, u"M%1 "_s.arg(i));
        QCOMPARE(head.size(), 1);
        if (i % 20 != 0)
            QVERIFY(pagesWith(sheet, u"TAŞ      : T%1-1 "_s.arg(i)) == head);
    }
    QVERIFY(!pagesWith(sheet, u"M31 "_s).isEmpty());
    // All numbers are printed, behind the last block.
    QString all;
    for (const PrintPage &page : sheet.pages())
        all += texts(page).join(u',');
    for (const qint32 order : awkwardList().siparisler)
        QVERIFY(all.contains(QString::number(order)));
}

void Yazdir0Test::saysEverythingOfALine()
{
    OrderFixture company;
    Oturum &oturum = company.oturum;
    oturum.Veritabani->execute(
        u"Update SiparisD Set Drm1 = 'HAZIR', Drm2 = 'DÖKÜM' Where SipnumD = 1"_s);
    const UretimListesi list =
        uretimListesi(oturum, {{3, 585}, {1, 585}}, {noDate(), QDate(2012, 12, 31), {}, {}});
    const QStringList text =
        texts(uretimRaporu(oturum, list, UretimYazdirma::Yazili, goOn)->pages().first());
    const QStringList expected = {
        u"URETIM RAPORU"_s, u"AYAR : 585"_s, u"TARIH :01.01.2000-31.12.2012"_s,
        u"SİPARİŞ NOLARI : 3,1"_s,
        // The order's lines one after the other, with all of the model's materials.
        u"A75 (YZK)  SR"_s, u"ADET : 3"_s, u"SİPARİŞ  : 1  Işık Kuyumculuk"_s,
        u"SİP.NOTU : Acele"_s, u"AÇIKLAMA : ölçü 14"_s, u"SİP.DUR  : HAZIR    URT.DUR : DÖKÜM"_s,
        u"KALIP    : K-1 1.00 Adet, K-2 2.00 Adet"_s, u"TAŞ      : ZRK 2 4.00 Adet"_s,
        u"A75 (KLY)  SR"_s};
    QCOMPARE(text.first(expected.size()), expected);
    QVERIFY(text.contains(u"İnci-1 (KPE)  BY"_s));
    const PrintDocument pictured = *uretimRaporu(oturum, list, UretimYazdirma::Resimli, goOn);
    // The missing pictures' frames name model and mold.
    QCOMPARE(pagesWith(pictured, u"K-1"_s).size(), 2 * 3);
    QCOMPARE(texts(pictured.pages().first()).count(u"A75"_s), 3);
    QVERIFY(texts(pictured.pages().first()).contains(u"A75  KLY  SR"_s));
}

void Yazdir0Test::refusesWhatGivesNoSheet()
{
    OrderFixture company;
    const UretimFiltre always{noDate(), QDate(2012, 12, 31), {}, {}};
    const auto reason = [&](const QList<SecilenSiparis> &orders, const UretimFiltre &filter) {
        try {
            uretimListesi(company.oturum, orders, filter);
        } catch (const UretimReddi &refusal) {
            return QString::fromUtf8(refusal.what());
        }
        return QString();
    };
    QCOMPARE(reason({}, always), u"SEÇİM İŞLEMİ YAPILMAMIŞ..."_s);
    QCOMPARE(reason({{1, 585}, {2, 750}}, always),
             u"FARKLI AYARLARDA SIPARIS SECIMI YAPILAMAZ..."_s);
    UretimFiltre later = always;
    later.bas = QDate(2012, 1, 1);
    QCOMPARE(reason({{1, 585}}, later), u"KAYIT BULUNAMADI..."_s);
    QCOMPARE(reason({{1, 585}}, always), QString());
}

void Yazdir0Test::readsPicturesOnceIntoThePdf()
{
    OrderFixture company;
    Oturum &oturum = company.oturum;
    oturum.ResimYolu = company.dir.filePath(u"resim"_s);
    QVERIFY(QDir().mkpath(oturum.ResimYolu + u"/KLP"_s));
    QVERIFY(picture().save(oturum.ResimYolu + u"/A75.jpg"_s));
    QVERIFY(picture().save(oturum.ResimYolu + u"/KLP/K-1.jpg"_s));
    const UretimListesi list =
        uretimListesi(oturum, {{1, 585}, {3, 585}}, {noDate(), QDate(2012, 12, 31), {}, {}});
    int read = 0;
    const auto count = [&](int, int) { return ++read > 0; };
    const std::optional<PrintDocument> sheet =
        uretimRaporu(oturum, list, UretimYazdirma::Resimli, count);
    QCOMPARE(read, 5); // three models with their types, and two molds
    const QString path = company.dir.filePath(u"uretim.pdf"_s);
    writePdf(*sheet, path);
    // Three lines of the model, each with its mold: two pictures in six places.
    const QStringList placed = pdfImages(path);
    QCOMPARE(placed.size(), 6);
    QSet<QString> objects;
    for (const QString &line : placed)
        objects.insert(line.split(u' ', Qt::SkipEmptyParts).value(10));
    QCOMPARE(objects.size(), 2);
    // A necklace's picture stands for no ring of the same code.
    QVERIFY(QDir().mkpath(oturum.ResimYolu + u"/KLY"_s));
    QVERIFY(QFile::rename(oturum.ResimYolu + u"/A75.jpg"_s, oturum.ResimYolu + u"/KLY/A75.jpg"_s));
    writePdf(*uretimRaporu(oturum, list, UretimYazdirma::Resimli, count), path);
    QCOMPARE(pdfImages(path).size(), 4);
    QVERIFY(!pdfWord(path, u"RAPORU"_s).text.isEmpty());
    QVERIFY(!pdfWord(path, u"Syf:1"_s).text.isEmpty());
    QVERIFY(!uretimRaporu(oturum, list, UretimYazdirma::Resimli, [](int, int) { return false; }));
}

KUYUM_TEST(Yazdir0Test)

} // namespace kuyum

#include "Yazdir0Test.moc"
