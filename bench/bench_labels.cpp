// bench_labels [RUNS]: 1,000 product labels as the pages of one PDF, and to a
// PDF and a PNG file each, beside zint (the program of the package of that name)
// drawing the same 1,000 codes into files of its own: as SVG, vectors like a
// PDF, and as PNG. Zint draws the bars and their digits, a label the bars and four
// texts; and unlike zint's, a file of ours is on the disk when it is done.

#include "Etiket.h"
#include "Measured.h"
#include "ProductLabel.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

using namespace kuyum;

namespace {

constexpr int labelCount = 1000;
constexpr int labelHead = 203;

Etiket labelNumber(int i)
{
    return {i % 20 + 1, 1000 + i * 7, u"A.%1"_s.arg(1000 + i), 2.37, u"585"_s, u"Yüzük"_s, {}};
}

void writeCodes(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        qFatal("no room for the codes");
    for (int i = 0; i < labelCount; ++i) {
        const Etiket etiket = labelNumber(i);
        file.write(barcodeNumber({etiket.TipID, etiket.Model_ID}).toLatin1() + '\n');
    }
}

/// All labels, a page each.
PrintDocument allLabels()
{
    PrintDocument all(u"Etiketler"_s, etiketBelgesi(labelNumber(0)).width(),
                      etiketBelgesi(labelNumber(0)).height());
    for (int i = 0; i < labelCount; ++i) {
        all.newPage();
        const PrintDocument label = etiketBelgesi(labelNumber(i));
        for (const PageItem &item : label.pages().first().items) {
            if (const PageText *text = std::get_if<PageText>(&item)) {
                all.setFont(text->font);
                all.text(text->at, text->text);
            } else if (const PageSymbol *symbol = std::get_if<PageSymbol>(&item)) {
                all.bars(symbol->at, symbol->bars);
            }
        }
    }
    return all;
}

/// Zint's rendering of all codes, each into a file of its own in the folder.
double zintMilliseconds(int runs, const QString &folder, const QString &type)
{
    const QStringList arguments = {u"--batch"_s,
                                   u"-b"_s,
                                   u"EANX"_s,
                                   u"-i"_s,
                                   folder + u"/codes.txt"_s,
                                   u"-o"_s,
                                   folder + u"/zint~~~~."_s + type};
    return middleMilliseconds(runs, [&] {
        if (QProcess::execute(u"zint"_s, arguments) != 0)
            qFatal("zint is missing or failed");
    });
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const int runs = argc > 1 ? qMax(1, atoi(argv[1])) : 5;
    const QTemporaryDir folder;
    writeCodes(folder.filePath(u"codes.txt"_s));

    const double svg = zintMilliseconds(runs, folder.path(), u"svg"_s);
    const double png = zintMilliseconds(runs, folder.path(), u"png"_s);
    const auto eachLabel = [&](const auto &work) {
        return middleMilliseconds(runs, [&] {
            for (int i = 0; i < labelCount; ++i)
                work(etiketBelgesi(labelNumber(i)), folder.filePath(u"etiket%1"_s.arg(i)));
        });
    };
    const double layout = eachLabel([](const PrintDocument &, const QString &) {});
    const double pages = middleMilliseconds(
        runs, [&] { writePdf(allLabels(), folder.filePath(u"hepsi.pdf"_s), labelHead); });
    const double pdf = eachLabel([](const PrintDocument &document, const QString &path) {
        writePdf(document, path + u".pdf"_s, labelHead);
    });
    const double dots = eachLabel([](const PrintDocument &document, const QString &path) {
        writePng(document, path + u".png"_s, labelHead);
    });

    printMeasured(u"baseline: zint, 1,000 SVG files"_s, svg);
    printMeasured(u"baseline: zint, 1,000 PNG files"_s, png);
    printMeasured(u"layout of 1,000 labels"_s, layout);
    printRatio(u"1,000 labels to the pages of a PDF"_s, pages, svg);
    printRatio(u"1,000 labels to PDF files"_s, pdf, svg);
    printRatio(u"1,000 labels to PNG files"_s, dots, png);
    return 0;
}
