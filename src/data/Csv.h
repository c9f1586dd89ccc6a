#pragma once

#include <QList>
#include <QString>

class Recordset;
struct ReportTable;

/// A record set as CSV: commas; texts always in quotes, so that a null
/// (nothing) and an empty text ("") differ; dates dd.MM.yyyy, with HH:mm:ss
/// when it is not midnight; decimals with a point, at full precision; binary
/// values as hexadecimal digits.
QString csvHeader(const Recordset &rows);
QString csvRow(const Recordset &rows);

/// A report in the same form; its hidden columns are left out.
QString csvHeader(const ReportTable &table);
QString csvRow(const ReportTable &table, qsizetype row);
/// Headings and rows of the tables into a file, an empty line between two of
/// them; throws as WholeFile does.
void writeCsv(const QList<ReportTable> &tables, const QString &path);
