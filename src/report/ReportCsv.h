#pragma once

#include <QList>
#include <QString>

namespace kuyum {

struct ReportTable;

/// A report as CSV for a spreadsheet: the values as csvValue() writes them,
/// but texts that it would run as formulas begin with an apostrophe. Hidden
/// columns are left out.
QString csvHeader(const ReportTable &table);
QString csvRow(const ReportTable &table, qsizetype row);
/// Headings, rows and notes of the tables into a file, an empty line between
/// two of them and before the notes; throws as WholeFile does.
void writeCsv(const QList<ReportTable> &tables, const QString &path);

} // namespace kuyum
