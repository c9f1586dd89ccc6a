#include "PrintDocument.h"
#include "FixedPitchText.h"
#include "PdfReader.h"
#include "TestRegistry.h"

#include <QPainter>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

class PrintDocumentTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pdfHoldsTextsAtTheirPositionsInEmbeddedFonts()
    {
        PrintDocument document(u"Öğüt İş"_s);
        document.setFont({u"Courier New Tur"_s, 12, true});
        document.text({500_tw, 700_tw}, u"ĞÜŞİÖÇ ğüşıöç"_s);
        document.newPage();
        document.setFont({u"Courier New Tur"_s, 6});
        document.text({5400_tw, 16100_tw}, u"Sayfa 2"_s);

        QTemporaryDir folder;
        const QString path = folder.filePath(u"fiş.pdf"_s);
        writePdf(document, path);
        const PdfWord capitals = pdfWord(path, u"ĞÜŞİÖÇ"_s);
        QCOMPARE(capitals.page, 1);
        QVERIFY(near(capitals, 500, 700));
        // Twelve points and seven characters further on.
        QVERIFY(near(pdfWord(path, u"ğüşıöç"_s), 500 + 7 * 144, 700));
        const PdfWord footer = pdfWord(path, u"Sayfa"_s);
        QCOMPARE(footer.page, 2);
        QVERIFY(near(footer, 5400, 16100));

        const QStringList fonts = pdfFonts(path);
        QCOMPARE(fonts.size(), 2);
        for (const QString &font : fonts)
            QVERIFY2(font.contains(QRegularExpression(u"^\\S+.*\\s(yes)\\s+(yes|no)\\s+yes"_s)),
                     qPrintable(font));
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray bytes = file.readAll();
        QVERIFY(!bytes.contains(folder.path().toUtf8()));
        QVERIFY(bytes.contains("/Title"));
    }

    void pictureKeepsItsProportions()
    {
        PrintDocument document(u"Resim"_s);
        QImage wide(200, 100, QImage::Format_RGB32);
        wide.fill(Qt::red);
        document.picture({1440_tw, 1440_tw}, 1440_tw, 1440_tw, wide);
        document.line({0_tw, 720_tw}, {2880_tw, 720_tw}, 20_tw);

        QImage paper(300, 300, QImage::Format_RGB32);
        paper.fill(Qt::white);
        QPainter painter(&paper);
        paintPage(painter, document.pages().first(), 100);
        painter.end();
        const QColor red(Qt::red);
        QCOMPARE(paper.pixelColor(101, 101), red);
        QCOMPARE(paper.pixelColor(198, 148), red);
        QCOMPARE(paper.pixelColor(150, 153), QColor(Qt::white));
        QVERIFY(paper.pixelColor(100, 50).lightness() < 128);
    }

    void barsAreWholeDotsWhereverThePageIsMoved_data()
    {
        QTest::addColumn<int>("dotsPerInch");
        QTest::addColumn<int>("room");
        QTest::addColumn<int>("dotsPerModule");
        QTest::newRow("two dots to read") << 203 << 200 << 2;
        QTest::newRow("no room for two") << 203 << 80 << 1;
        QTest::newRow("nearest number of dots") << 600 << 80 << 4;
    }
    void barsAreWholeDotsWhereverThePageIsMoved()
    {
        QFETCH(int, dotsPerInch);
        QFETCH(int, room);
        QFETCH(int, dotsPerModule);
        PrintDocument document(u"Barkod"_s);
        document.line({0_tw, 0_tw}, {1000_tw, 1000_tw}, 200_tw);
        document.bars({101_tw, 103_tw}, {u"OXOXXOOX"_s, 10_tw, 200_tw, Twips(room)});
        for (const double moved : {0.0, 0.3, 0.5, 0.9}) {
            QImage paper(400, 400, QImage::Format_RGB32);
            paper.fill(Qt::white);
            QPainter painter(&paper);
            painter.translate(moved, moved);
            paintPage(painter, document.pages().first(), dotsPerInch);
            painter.end();
            const int left = qRound(101.0 * dotsPerInch / 1440 + moved);
            const int row = qRound(150.0 * dotsPerInch / 1440);
            QString dots;
            for (int x = left; x < left + 8 * dotsPerModule; ++x) {
                const QRgb dot = paper.pixel(x, row) & RGB_MASK;
                dots += dot == 0 ? u'X' : dot == RGB_MASK ? u'O' : u'?';
            }
            QString expected;
            for (const QChar module : u"OXOXXOOX"_s)
                expected += QString(dotsPerModule, module);
            QCOMPARE(dots, expected);
        }
    }

    void aPdfThatCannotBeWrittenIsRefused()
    {
        QTemporaryDir folder;
        PrintDocument document(u"Fiş"_s);
        document.newPage();
        QVERIFY_THROWS_EXCEPTION(std::runtime_error,
                                 writePdf(document, folder.filePath(u"yok/a.pdf"_s)));
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, writePdf(document, folder.path()));
        QVERIFY(QDir(folder.path()).isEmpty());
    }

    void linesBreakBetweenWords_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("lines");
        const auto row = [](const char *name, const QString &text, const QStringList &lines) {
            QTest::newRow(name) << text << lines;
        };
        row("nothing", {}, {{}});
        row("just fits", u"on harf on"_s, {u"on harf on"_s});
        row("one more", u"on harf on1 son"_s, {u"on harf"_s, u"on1 son"_s});
        row("word ends at the edge", u"on harf on artık"_s, {u"on harf on"_s, u"artık"_s});
        row("long word waits", u"uzuncabirkelime kısa"_s, {{}, u"uzuncabirkelime"_s, u"kısa"_s});
        row("longer than any line", u"a 1234567890123456789"_s,
            {u"a"_s, u"123456789012345"_s, u"6789"_s});
        row("line breaks", u"bir\r\niki\tüç"_s, {u"bir iki üç"_s});
    }
    void linesBreakBetweenWords()
    {
        QFETCH(QString, text);
        QTEST(wrappedLines(text, 10, 15), "lines");
    }

private:
    static bool near(const PdfWord &word, double x, double y)
    {
        return qAbs(word.x - x) < 3 && qAbs(word.y - y) < 3;
    }
};

KUYUM_TEST(PrintDocumentTest)

} // namespace kuyum

#include "PrintDocumentTest.moc"
