#include "Etiket.h"
#include "BarcodeReader.h"
#include "Ean13.h"
#include "LabelTexts.h"
#include "PdfReader.h"
#include "ProductLabel.h"
#include "TestRegistry.h"

#include <QPainter>
#include <QRandomGenerator>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

Etiket ring(const QString &model = u"YZK-Ş 12"_s)
{
    return {5, 1234, model, 3.5, u"585"_s, u"Yüzük"_s, {}};
}

Etiket randomLabel(QRandomGenerator &random)
{
    static const QString letters = u"ABCÇDEFGĞHIİJKLMNOÖPRSŞTUÜVYZ-./0123456789"_s;
    const auto word = [&](int longest) {
        QString text;
        for (int i = random.bounded(1, longest); i > 0; --i)
            text += letters[random.bounded(letters.size())];
        return text;
    };
    return {random.bounded(1, 1000),
            random.bounded(1, 10'000'000),
            word(30),
            random.bounded(90.0),
            u"%1"_s.arg(random.bounded(333, 1000)),
            word(20),
            random.bounded(2) == 0 ? word(40) : QString()};
}

/// The dark and light modules in a row of dots, each so many dots wide; a
/// question mark where a bar is not a whole number of modules.
QString modulesInRow(const QImage &image, int row, int dotsPerModule)
{
    QString modules;
    bool dark = true;
    for (const int dots : runsOfDots(image, row)) {
        modules += dots % dotsPerModule == 0 ? QString(dots / dotsPerModule, dark ? u'X' : u'O')
                                             : QString(u'?');
        dark = !dark;
    }
    return modules;
}

/// Where the symbol is: left of the second column, above the model.
QImage symbolOf(const QImage &label, int dotsPerInch)
{
    const auto dots = [&](int units) { return units * dotsPerInch / 144; };
    return label.copy(0, 0, dots(445), dots(46));
}

} // namespace

class EtiketTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textsStandAtTheirPlaces()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"etiket.pdf"_s);
        writePdf(etiketBelgesi(ring()), path);
        QStringList found;
        for (const PdfWord &word : pdfWords(path))
            found.append(
                u"%1 %2 %3"_s.arg(word.text).arg(qRound(word.x / 10)).arg(qRound(word.y / 10)));
        found.sort();
        QCOMPARE(found, (QStringList{u"12 320 50"_s, u"3.50 450 10"_s, u"585 450 30"_s,
                                     u"YZK-Ş 270 50"_s, u"Yüzük 450 50"_s}));

        Etiket etiket = ring();
        etiket.Aciklama = u" Özel "_s;
        const PageText note = labelTexts(etiketBelgesi(etiket)).last();
        QCOMPARE(note.text, u"Özel"_s);
        QCOMPARE(note.at, (PagePoint{4500_tw, 500_tw}));
    }

    void longTextsStayInTheirColumns()
    {
        Etiket etiket = ring(QString(30, u'W'));
        etiket.Aciklama = QString(40, u'M');
        const QList<PageText> texts = labelTexts(etiketBelgesi(etiket));
        for (const PageText &text : texts) {
            const Twips end = text.at.x + printedWidth(text.font, text.text);
            QVERIFY(text.font.points >= 4.5);
            QVERIFY2(end < (text.at.x < 4500_tw ? 4500_tw : Twips::fromMillimetres(104)),
                     qPrintable(text.text));
        }
        QCOMPARE(texts.first().text, etiket.Model);
        QVERIFY(texts.last().text.size() > 20 && texts.last().text.endsWith(u"M…"_s));
    }

    void everyLabelIsReadAtEveryResolution_data()
    {
        QTest::addColumn<int>("dotsPerInch");
        QTest::addColumn<int>("dotsPerModule");
        QTest::newRow("203") << 203 << 2;
        QTest::newRow("300") << 300 << 2;
        QTest::newRow("600") << 600 << 4;
    }
    void everyLabelIsReadAtEveryResolution()
    {
        QFETCH(int, dotsPerInch);
        QFETCH(int, dotsPerModule);
        QRandomGenerator random(dotsPerInch);
        BarcodeSheets sheets;
        QStringList expected;
        for (int i = 0; i < 500; ++i) {
            const Etiket etiket = randomLabel(random);
            const PrintDocument document = etiketBelgesi(etiket);
            const QImage label = pageDots(document, document.pages().first(), dotsPerInch);
            sheets.add(label);
            QString digits;
            QString modules;
            encodeEan13(barcodeNumber({etiket.TipID, etiket.Model_ID}), [&](const BarPart &part) {
                digits += part.caption;
                modules += part.modules;
            });
            expected.append(u"EAN-13:"_s + digits);
            const QImage symbol = symbolOf(label, dotsPerInch);
            QCOMPARE(modulesInRow(symbol, symbol.height() / 2, dotsPerModule), modules.mid(7));
        }
        expected.sort();
        QCOMPARE(sheets.read(), expected);
    }

    void pdfKeepsTheDotsOfItsResolution()
    {
        const QTemporaryDir folder;
        const QString pdf = folder.filePath(u"etiket.pdf"_s);
        const PrintDocument document = etiketBelgesi(ring());
        writePdf(document, pdf, 203);
        const QImage page = pdfDots(pdf, 203);
        const QImage dots = pageDots(document, document.pages().first(), 203);
        QCOMPARE(runsOfDots(symbolOf(page, 203), 40), runsOfDots(symbolOf(dots, 203), 40));
        QCOMPARE(readBarcodes(page), QStringList{u"EAN-13:1600500012344"_s});
    }

    void pngTellsItsResolution()
    {
        const QTemporaryDir folder;
        const QString png = folder.filePath(u"etiket.png"_s);
        writePng(etiketBelgesi(ring()), png, 300);
        const QImage image(png);
        QCOMPARE(image.depth(), 1);
        QCOMPARE(qRound(image.dotsPerMeterX() * 0.0254), 300);
        QCOMPARE(image.size(), QSize(1228, 142));
    }
};

KUYUM_TEST(EtiketTest)

} // namespace kuyum

#include "EtiketTest.moc"
