#include "ReportOutput.h"

#include "CommandLine.h"
#include "ReportCsv.h"

#include <QCommandLineParser>

using namespace Qt::StringLiterals;

namespace kuyum {

void ReportOutput::write(const QList<ReportSheet> &sheets,
                         const std::function<PrintDocument()> &pages) const
{
    const auto goOn = [](int, int) { return true; };
    if (!csv.isEmpty()) {
        QList<ReportTable> tables;
        for (const ReportSheet &sheet : sheets)
            tables.append(sheet.table);
        writeCsv(tables, csv);
    } else if (!xlsx.isEmpty()) {
        writeSheets(sheets, xlsx, goOn);
    } else {
        writePdf(pages(), pdf);
    }
}

void addReportOutput(QCommandLineParser &parser)
{
    parser.addOptions(
        {{u"csv"_s, {}, u"DOSYA"_s}, {u"xlsx"_s, {}, u"DOSYA"_s}, {u"pdf"_s, {}, u"DOSYA"_s}});
}

ReportOutput reportOutput(const QCommandLineParser &parser)
{
    const ReportOutput output{parser.value(u"csv"_s), parser.value(u"xlsx"_s),
                              parser.value(u"pdf"_s)};
    const QStringList files{output.csv, output.xlsx, output.pdf};
    if (files.count(QString()) != files.size() - 1)
        throw WrongUsage();
    return output;
}

} // namespace kuyum
