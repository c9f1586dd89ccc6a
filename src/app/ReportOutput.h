#pragma once

#include "PrintDocument.h"
#include "ReportSheet.h"

class QCommandLineParser;

namespace kuyum {

/// Where a word of the command line puts its report: into a CSV file, a
/// spreadsheet or a PDF.
struct ReportOutput
{
    QString csv;
    QString xlsx;
    QString pdf;

    /// Tables of one report stand one below the other in the CSV, and on sheets
    /// of their own in the spreadsheet. The pages are laid out only when they
    /// are wanted.
    void write(const QList<ReportSheet> &sheets, const std::function<PrintDocument()> &pages) const;
};

/// Adds --csv, --xlsx and --pdf.
void addReportOutput(QCommandLineParser &parser);
/// What they say: exactly one file. Throws WrongUsage.
ReportOutput reportOutput(const QCommandLineParser &parser);

} // namespace kuyum
