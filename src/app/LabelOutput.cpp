#include "LabelOutput.h"

#include "CommandLine.h"

#include <QCommandLineParser>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

constexpr int coarsest = 100; ///< below it the texts cannot be read
constexpr int finest = 2400;

} // namespace

void LabelOutput::write(const PrintDocument &document) const
{
    if (pdf.isEmpty())
        writePng(document, png, dotsPerInch);
    else
        writePdf(document, pdf, dotsPerInch);
}

void addLabelOutput(QCommandLineParser &parser)
{
    parser.addOptions(
        {{u"pdf"_s, {}, u"DOSYA"_s}, {u"png"_s, {}, u"DOSYA"_s}, {u"dpi"_s, {}, u"N"_s}});
}

LabelOutput labelOutput(const QCommandLineParser &parser)
{
    LabelOutput output{parser.value(u"pdf"_s), parser.value(u"png"_s), usualHead};
    if (output.pdf.isEmpty() == output.png.isEmpty())
        throw WrongUsage();
    if (!parser.isSet(u"dpi"_s)) {
        if (output.pdf.isEmpty())
            throw WrongUsage();
        return output;
    }
    bool isNumber = false;
    output.dotsPerInch = parser.value(u"dpi"_s).toInt(&isNumber);
    if (!isNumber || output.dotsPerInch < coarsest || output.dotsPerInch > finest)
        throw WrongUsage();
    return output;
}

} // namespace kuyum
