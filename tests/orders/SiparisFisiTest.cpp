#include "SiparisFisi.h"
#include "Oturum.h"
#include "PdfReader.h"
#include "SampleCompany.h"
#include "Schema.h"
#include "SiparisStore.h"
#include "SlipLines.h"
#include "SlipReading.h"
#include "TestRegistry.h"
#include "ToplamGram.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

using namespace SlipReading;

namespace {

/// The texts of the list, in their order.
QStringList listLines(const PrintPage &page)
{
    QStringList lines;
    for (Twips y = 2650_tw; y < 16100_tw; y += 300_tw) {
        if (const QString line = at(page, 550_tw, y); !line.isEmpty())
            lines.append(line);
    }
    return lines;
}

} // namespace

class SiparisFisiTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void headerStandsInItsPlaces()
    {
        const PrintDocument slip =
            siparisFisi(orderOf({row(u"A75"_s, u"SR"_s, {1, 0, 12}, u"ölçü 14"_s)}),
                        MusteriKimligi::Kisa, 169.98);
        QCOMPARE(slip.pages().size(), 1);
        const PrintPage &page = slip.pages().first();
        QCOMPARE(at(page, 500_tw, 500_tw), u"SİPARİŞ LİSTESİ"_s);
        QCOMPARE(at(page, 8000_tw, 350_tw), u"DAMGA : TR585"_s);
        QCOMPARE(at(page, 550_tw, 1150_tw), u"MODEL              RENK  KLY  YZK  KPE  AÇIKLAMA"_s);
        QCOMPARE(at(page, 550_tw, 2650_tw), u"A75                SR      1        12  ölçü 14"_s);
        QCOMPARE(at(page, 5400_tw, 16100_tw), u"Sayfa 1"_s);

        QMap<QString, PageText> byText;
        for (const PageText &text : items<PageText>(page))
            byText.insert(text.text, text);
        QCOMPARE(byText[u"SİPARİŞ LİSTESİ"_s].font, (PageFont{u"Courier New Tur"_s, 12, true}));
        QCOMPARE(byText[u"DAMGA : TR585"_s].font, (PageFont{u"Courier New Tur"_s, 8, true}));
        QCOMPARE(byText[u"Sayfa 1"_s].font, (PageFont{u"Courier New Tur"_s, 6, false}));
        QCOMPARE(byText[u"SİPARİŞ TARİHİ : 01.03.2012 TESLİM TARİHİ : 15.03.2012"_s].at.y, 350_tw);
        QCOMPARE(byText[u"AÇIKLAMA       : Acele"_s].at.y, 650_tw);
        const PageText karat = byText[u"AYAR  : 585"_s];
        QCOMPARE(karat.at.x, 8000_tw);
        QCOMPARE(byText[u"MÜŞTERİ        : IŞIK        Toplam GRAM   : 169.98"_s].at.y, karat.at.y);
        QCOMPARE(layoutFault(page), QString());
    }

    void customerIsNamedAsChosen_data()
    {
        QTest::addColumn<MusteriKimligi>("kimlik");
        QTest::addColumn<QString>("line");
        QTest::newRow("name") << MusteriKimligi::Ad
                              << u"MÜŞTERİ        : Işık Kuyumculuk        Top.GR: 0.00"_s;
        QTest::newRow("code") << MusteriKimligi::Kod
                              << u"MÜŞTERİ        : 10        Top.GR: 0.00"_s;
    }
    void customerIsNamedAsChosen()
    {
        QFETCH(MusteriKimligi, kimlik);
        const PrintPage page = siparisFisi(orderOf({}), kimlik, 0).pages().first();
        QStringList lines;
        for (const PageText &text : items<PageText>(page))
            lines.append(text.text);
        QTEST(lines.filter(u"MÜŞTERİ"_s).value(0), "line");
    }

    void fortyFourLinesFillAPage()
    {
        QList<SiparisSatiri> rows;
        for (int i = 1; i <= 44; ++i)
            rows.append(row(u"M%1"_s.arg(i), u"SR"_s, {i, 0, 0}));
        // A row without a model is not printed and takes no line.
        rows.insert(20, row(u" "_s, u"SR"_s, {1, 1, 1}));
        PrintDocument slip = siparisFisi(orderOf(rows), MusteriKimligi::Kisa, 0);
        QCOMPARE(slip.pages().size(), 1);
        QVERIFY(at(slip.pages()[0], 550_tw, Twips(2650 + 43 * 300)).startsWith(u"M44 "_s));
        QCOMPARE(layoutFault(slip.pages()[0]), QString());

        rows.append(row(u"M45"_s, u"SR"_s, {1, 0, 0}));
        slip = siparisFisi(orderOf(rows), MusteriKimligi::Kisa, 0);
        QCOMPARE(slip.pages().size(), 2);
        QCOMPARE(listLines(slip.pages()[0]).size(), 44);
        QVERIFY(at(slip.pages()[1], 550_tw, 2650_tw).startsWith(u"M45 "_s));
        QCOMPARE(at(slip.pages()[1], 500_tw, 500_tw), u"SİPARİŞ LİSTESİ"_s);
        QCOMPARE(at(slip.pages()[1], 5400_tw, 16100_tw), u"Sayfa 2"_s);
    }

    void aLongNoteTakesLinesOfThePage()
    {
        // 40 characters before the note: 20 of it make a line of 60.
        const QString fits = u"yirmi karakterlik ab"_s;
        const QStringList one = SlipLines::rowLines(row(u"A"_s, u"SR"_s, {1, 2, 3}, fits));
        QCOMPARE(one.size(), 1);
        QCOMPARE(one[0].size(), 60);
        const QStringList two = SlipLines::rowLines(row(u"A"_s, u"SR"_s, {1, 2, 3}, fits + u"c"_s));
        QCOMPARE(two, (QStringList{u"A                  SR      1    2    3  yirmi karakterlik"_s,
                                   QString(49, u' ') + u"abc"_s}));

        QList<SiparisSatiri> rows;
        for (int i = 1; i <= 43; ++i)
            rows.append(row(u"M%1"_s.arg(i), u"SR"_s, {1, 0, 0}, i == 1 ? fits + u'c' : QString()));
        PrintDocument slip = siparisFisi(orderOf(rows), MusteriKimligi::Kisa, 0);
        QCOMPARE(slip.pages().size(), 1);
        QCOMPARE(listLines(slip.pages()[0]).size(), 44);
        rows.append(rows.first());
        slip = siparisFisi(orderOf(rows), MusteriKimligi::Kisa, 0);
        QCOMPARE(listLines(slip.pages()[1]).size(), 2);

        // A row is not torn between two pages.
        rows.first().aciklama.clear();
        slip = siparisFisi(orderOf(rows), MusteriKimligi::Kisa, 0);
        QCOMPARE(listLines(slip.pages()[0]).size(), 43);
        QVERIFY(at(slip.pages()[1], 550_tw, 2650_tw).startsWith(u"M1 "_s));
    }

    void theOrderNoteGoesOnBelow()
    {
        Siparis siparis = orderOf({row(u"A75"_s, u"SR"_s, {1, 0, 0})});
        siparis.Aciklama.clear();
        for (int i = 0; i < 150; ++i)
            siparis.Aciklama += u" kelime%1"_s.arg(i);
        const PrintDocument slip = siparisFisi(siparis, MusteriKimligi::Kisa, 0);
        const PrintPage &page = slip.pages().first();
        QString whole;
        for (const PageText &text : items<PageText>(page)) {
            if (text.at.y == 650_tw || text.at.y == 850_tw) {
                QVERIFY(text.text.endsWith(u'-'));
                whole += text.text.chopped(1) + u' ';
            }
        }
        QVERIFY(whole.startsWith(u"AÇIKLAMA       : kelime0 "_s));
        whole += listLines(page).mid(2).join(u' ');
        QCOMPARE(whole, u"AÇIKLAMA       :"_s + siparis.Aciklama);
        QCOMPARE(layoutFault(page), QString());
    }

    void whatIsTooWideIsNeitherLostNorCovered()
    {
        Siparis siparis = orderOf({});
        QStringList names;
        for (int i = 1; i <= 20; ++i)
            names.append(u"TİP%1"_s.arg(i));
        names[3] = u"Uzun Tip 4"_s;
        siparis.tipler = types(names);
        siparis.FirAdi =
            u"Pek Uzun Adlı Bir Müşteri Kuyumculuk ve Mücevherat Sanayi Ticaret A.Ş."_s;
        siparis.Patent = u"DAMGA YİRMİ HARFLİK!"_s;
        QList<qint32> quantities(20, 0);
        quantities[0] = 123456;
        quantities[1] = 54321;
        quantities[19] = 9;
        siparis.satirlar = {
            row(u"ÇOKUZUNMODELKODUOLANBİRÜRÜN-30"_s, u"BEYAZ"_s, quantities, QString(100, u'x'))};
        const PrintDocument slip = siparisFisi(siparis, MusteriKimligi::Ad, 12345678.9);
        const PrintPage &page = slip.pages().first();
        QCOMPARE(layoutFault(page), QString());

        QString all;
        for (const PageText &text : items<PageText>(page))
            all += text.text + u'\n';
        for (const QString &piece : names + QStringList{u"123456"_s, u"54321"_s, u"A.Ş."_s,
                                                        u"12345678.90"_s, u"HARFLİK!"_s})
            QVERIFY2(all.contains(piece), qPrintable(piece));
        QCOMPARE(all.count(u'x'), 100);
        // In the second band of columns the twentieth type is the fourth.
        const QStringList lines = listLines(page);
        QCOMPARE(lines.filter(u" 9"_s).value(0).indexOf(u'9'), 23 + 4 * 5 - 1);
    }

    void gramsAreRoundedQuantityByQuantity()
    {
        const Siparis siparis =
            orderOf({row(u"A"_s, u"SR"_s, {1, 0, 0}), row(u"A"_s, u"BY"_s, {0, 3, 0}),
                     row(u"yok"_s, u"BY"_s, {5, 5, 5})});
        const auto grams = [](const QString &model, const QString &KisaAD) {
            return model != u"A"_s      ? std::optional<double>()
                   : KisaAD == u"KLY"_s ? std::optional(1.0)
                                        : std::optional(0.1);
        };
        // 13.075 and 3.9225
        QCOMPARE(orderGrams(siparis, 13.075, grams).total, 13.08 + 3.92);
        QCOMPARE(orderGrams(siparis, 0, grams).total, 0.0);
    }

    void gramsComeFromTheDatabase()
    {
        QTemporaryDir folder;
        Oturum oturum;
        oturum.Veritabani = makeSampleCompany(folder.filePath(u"ornek.kuyum"_s));
        Siparis siparis = SiparisStore(oturum).SiparisBul(1).value();
        QCOMPARE(orderGrams(oturum, siparis).total, 78.45 + 65.38 + 26.15);
        QCOMPARE(oturum.SonSQL, u"Select * From Model, Uruntipi Where M_uruntip = TipID and "
                                "Model = 'İnci-1' and KisaAD = 'KPE'"_s);
        siparis.Ayar = 333;
        QCOMPARE(orderGrams(oturum, siparis).total, 0.0);
    }

    void theCommandWritesThePdf()
    {
        QTemporaryDir folder;
        const QString database = folder.filePath(u"ornek.kuyum"_s);
        makeSampleCompany(database).reset();
        const QString pdf = folder.filePath(u"fiş.pdf"_s);
        QCOMPARE(run({u"fis"_s, database, u"9"_s, u"--pdf"_s, pdf}),
                 (Outcome{1, u"9 nolu sipariş bulunamadı."_s}));
        QVERIFY(!QFile::exists(pdf));
        QCOMPARE(run({u"fis"_s, database, u"1"_s}).exitCode, 2);
        QCOMPARE(
            run({u"fis"_s, database, u"1"_s, u"--pdf"_s, pdf, u"--musteri"_s, u"x"_s}).exitCode, 2);

        QCOMPARE(run({u"fis"_s, database, u"1"_s, u"--pdf"_s, pdf, u"--musteri"_s, u"ad"_s}),
                 (Outcome{0, {}}));
        QVERIFY(!pdfWord(pdf, u"169.98"_s).text.isEmpty());
        QVERIFY(!pdfWord(pdf, u"Işık"_s).text.isEmpty());
        const PdfWord model = pdfWord(pdf, u"A75"_s);
        QCOMPARE(qRound(model.x), 550);
        QCOMPARE(qRound(model.y), 2650);
    }

    void theCommandWritesPictures()
    {
        QTemporaryDir folder;
        const QString database = folder.filePath(u"ornek.kuyum"_s);
        makeSampleCompany(database).reset();
        const QString pdf = folder.filePath(u"fiş.pdf"_s);
        const QStringList words{u"fis"_s, database, u"1"_s, u"--pdf"_s, pdf, u"--resimli"_s};
        QCOMPARE(run(words + QStringList{u"8"_s}).exitCode, 2);
        QCOMPARE(run(words + QStringList{u"12a"_s}).exitCode, 2);
        const QString missing = folder.filePath(u"yok"_s);
        QCOMPARE(run(words + QStringList{u"7"_s, u"--resim"_s, missing}),
                 (Outcome{1, u"Resim klasörü bulunamadı: "_s + missing}));
        QVERIFY(!QFile::exists(pdf));

        QCOMPARE(run(words + QStringList{u"15"_s}), (Outcome{0, {}}));
        QCOMPARE(pdfImages(pdf).size(), 0);
        QVERIFY(!pdfWord(pdf, u"A75"_s).text.isEmpty());

        QImage image(40, 30, QImage::Format_RGB32);
        image.fill(Qt::darkYellow);
        QVERIFY(image.save(folder.filePath(u"A75.jpg"_s)));
        QCOMPARE(run(words + QStringList{u"12"_s, u"--resim"_s, folder.path()}), (Outcome{0, {}}));
        QCOMPARE(pdfImages(pdf).size(), 1);
        QVERIFY(!pdfWord(pdf, u"RESIM/MODEL"_s).text.isEmpty());
        const PdfWord model = pdfWord(pdf, u"A75"_s);
        QCOMPARE(qRound(model.x), 550 + 16 * 96);
        QCOMPARE(qRound(model.y), 2650);

        // A registry beside the database knows where its pictures are.
        QVERIFY(QDir(folder.path()).mkdir(u"resim"_s));
        QVERIFY(QFile::rename(folder.filePath(u"A75.jpg"_s), folder.filePath(u"resim/A75.jpg"_s)));
        {
            const auto registry = createRegistry(folder.filePath(u"sirket.kuyum"_s));
            Recordset companies = registry->table(u"SirketKayit"_s);
            companies.addNew();
            companies.set(u"turkod"_s, u"048"_s);
            companies.set(u"Srkkod"_s, 1);
            companies.set(u"DataYolu"_s, u"c:\\database\\ORNEK.mdb"_s);
            companies.set(u"ResimYolu"_s, u"c:\\database\\resim"_s);
            companies.update();
        }
        QCOMPARE(run(words + QStringList{u"7"_s}), (Outcome{0, {}}));
        QCOMPARE(pdfImages(pdf).size(), 1);
    }

private:
    struct Outcome
    {
        int exitCode = 0;
        QString error;
        friend bool operator==(const Outcome &, const Outcome &) = default;
    };

    /// Runs the program without any display; the last line of its errors counts.
    static Outcome run(const QStringList &arguments)
    {
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(u"QT_QPA_PLATFORM"_s);
        environment.remove(u"DISPLAY"_s);
        program.setProcessEnvironment(environment);
        program.start(qEnvironmentVariable("KUYUM_PROGRAM"), arguments);
        program.waitForFinished();
        return {program.exitCode(), QString::fromUtf8(program.readAllStandardError())
                                        .split(u'\n', Qt::SkipEmptyParts)
                                        .filter(QRegularExpression(u"^(?!QStandardPaths)"_s))
                                        .value(0)};
    }
};

KUYUM_TEST(SiparisFisiTest)

} // namespace kuyum

#include "SiparisFisiTest.moc"
