#pragma once

#include "PrintDocument.h"
#include "ReportTable.h"

namespace kuyum {

/// Where a shown column stands on paper, in characters from the left edge.
/// Figures end where it ends.
struct ReportPageColumn
{
    int at = 0;
    int width = 0;
};

/// One table of a printed report; it begins on a page of its own.
struct ReportPart
{
    ReportTable table;
    /// A column heading line to the letter, and the columns under it. Where they
    /// are not given, or a figure is too wide for them, the columns are fitted.
    QString headingLine{};
    QList<ReportPageColumn> columns{};
};

/// A report on paper, in "Courier New Tur": the header lines on every page, the
/// column heading, the rows, and "Sayfa " with the page's number. The paper is
/// A4, lying where upright is too narrow; columns that do not fit there either
/// follow on further pages, beside the first column again. Long texts are broken
/// into lines: nothing is cut off.
PrintDocument reportPages(const QString &title, const QStringList &header,
                          const QList<ReportPart> &parts);

} // namespace kuyum
