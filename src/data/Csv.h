#pragma once

#include <QString>

class Recordset;

/// A record set as CSV: commas; texts always in quotes, so that a null
/// (nothing) and an empty text ("") differ; dates dd.MM.yyyy, with HH:mm:ss
/// when it is not midnight; decimals with a point, at full precision; binary
/// values as hexadecimal digits.
QString csvHeader(const Recordset &rows);
QString csvRow(const Recordset &rows);
