#include "PdfReader.h"

#include <QProcess>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

constexpr double twipsPerPoint = 20;

QByteArray output(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished();
    return process.readAllStandardOutput();
}

/// What stands below a table's heading and the rule under it.
QStringList tableRows(const QByteArray &table)
{
    return QString::fromUtf8(table).split(u'\n', Qt::SkipEmptyParts).mid(2);
}

} // namespace

QList<PdfWord> pdfWords(const QString &path)
{
    QXmlStreamReader xml(output(u"pdftotext"_s, {u"-bbox"_s, path, u"-"_s}));
    QList<PdfWord> words;
    int page = 0;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == u"page") {
            ++page;
        } else if (xml.name() == u"word") {
            const QXmlStreamAttributes box = xml.attributes();
            const double x = box.value(u"xMin"_s).toDouble() * twipsPerPoint;
            const double y = box.value(u"yMin"_s).toDouble() * twipsPerPoint;
            words.append({page, x, y, xml.readElementText()});
        }
    }
    return words;
}

PdfWord pdfWord(const QString &path, const QString &text)
{
    for (const PdfWord &word : pdfWords(path)) {
        if (word.text == text)
            return word;
    }
    return {};
}

QImage pdfDots(const QString &path, int dotsPerInch)
{
    return QImage::fromData(output(u"pdftoppm"_s, {u"-r"_s, QString::number(dotsPerInch),
                                                   u"-mono"_s, u"-singlefile"_s, path}));
}

QStringList pdfFonts(const QString &path)
{
    return tableRows(output(u"pdffonts"_s, {path}));
}

QStringList pdfImages(const QString &path)
{
    return tableRows(output(u"pdfimages"_s, {u"-list"_s, path}));
}

} // namespace kuyum
