#pragma once

#include <QString>

namespace kuyum {

class Recordset;

/// A record set as CSV: commas, the values as csvValue() writes them. Raw: a
/// text that a spreadsheet would run as a formula stays as it is.
QString csvHeader(const Recordset &rows);
QString csvRow(const Recordset &rows);

} // namespace kuyum
