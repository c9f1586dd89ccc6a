#pragma once

#include "ReportPages.h"

namespace kuyum {

/// A column of a table in its place on a page.
struct PlacedColumn
{
    qsizetype column = 0; ///< of the table
    ReportPageColumn place;
};

/// The columns that stand side by side, once for each sheet that the table's
/// width takes.
using PageSlice = QList<PlacedColumn>;

/// The columns of a part on pages of so many characters; at least one slice.
QList<PageSlice> placedColumns(const ReportPart &part, int pageWidth);

/// Whether all columns stand side by side on a page of so many characters.
bool fitsOnPage(const ReportPart &part, int pageWidth);

/// Whether the part's own columns are used.
bool usesOwnColumns(const ReportPart &part, int pageWidth);

/// Whether the row says but one thing, in its first column; such a text may
/// run over the others.
bool isLoneText(const ReportRow &row);

} // namespace kuyum
