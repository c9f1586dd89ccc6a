#pragma once

#include <QList>
#include <QString>

class Recordset;
struct ReportTable;

/// A record set as CSV: commas; texts always in quotes, so that a null
/// (nothing) and an empty text ("") differ; dates dd.MM.yyyy, with HH:mm:ss
/// when it is not midnight; decimals with a point, at full precision; binary
/// values as hexadecimal digits. Raw: a text that a spreadsheet would run as a
/// formula stays as it is.
QString csvHeader(const Recordset &rows);
QString csvRow(const Recordset &rows);

/// A report in the same form, for a spreadsheet: texts that it would run as
/// formulas begin with an apostrophe. Hidden columns are left out.
QString csvHeader(const ReportTable &table);
QString csvRow(const ReportTable &table, qsizetype row);
/// Headings, rows and notes of the tables into a file, an empty line between
/// two of them and before the notes; throws as WholeFile does.
void writeCsv(const QList<ReportTable> &tables, const QString &path);
