#pragma once

#include "ReportSheet.h"

class QCommandLineParser;

/// Where a word of the command line puts its report: into a CSV, spreadsheet or
/// PDF file.
struct ReportOutput
{
    QString csv;
    QString xlsx;
    QString pdf;

    /// The header stands above the table on paper.
    void write(const ReportTable &table, const QStringList &header,
               const PictureFinder &pictures) const;
};

/// Adds --csv, --xlsx and --pdf.
void addReportOutput(QCommandLineParser &parser);
/// What they say: exactly one file. Throws WrongUsage.
ReportOutput reportOutput(const QCommandLineParser &parser);
