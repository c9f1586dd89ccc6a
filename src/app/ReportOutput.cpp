#include "ReportOutput.h"

#include "CommandLine.h"
#include "Csv.h"
#include "ReportPages.h"

#include <algorithm>
#include <QCommandLineParser>

using namespace Qt::StringLiterals;

void ReportOutput::write(const ReportTable &table, const QStringList &header,
                         const PictureFinder &pictures) const
{
    const auto goOn = [](int, int) { return true; };
    if (!csv.isEmpty())
        writeCsv(table, csv);
    else if (!xlsx.isEmpty())
        writeSheet({table, table.title, SheetForm::Sayilarla, pictures}, xlsx, goOn);
    else
        writePdf(reportPages(table.title, header, {{table}}), pdf);
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
