#include "ReportPageColumns.h"

#include <algorithm>

namespace kuyum {

namespace {

constexpr int gap = 2;
constexpr int widestText = 40;

QList<qsizetype> shownColumns(const ReportTable &table)
{
    QList<qsizetype> shown;
    for (qsizetype column = 0; column < table.columns.size(); ++column) {
        if (!table.columns[column].hidden)
            shown.append(column);
    }
    return shown;
}

int widestCell(const ReportTable &table, qsizetype column)
{
    qsizetype widest = 0;
    for (qsizetype row = 0; row < table.rows.size(); ++row) {
        if (!isLoneText(table.rows[row]))
            widest = qMax(widest, table.cellText(row, column).size());
    }
    return int(widest);
}

/// Figures stand in one line; texts are broken where they are long.
int fittedWidth(const ReportTable &table, qsizetype column)
{
    const bool text = table.columns[column].kind != ReportColumnKind::Number &&
                      table.columns[column].kind != ReportColumnKind::Date;
    const int cells = widestCell(table, column);
    return qMax(int(table.columns[column].heading.size()), text ? qMin(cells, widestText) : cells);
}

PageSlice fittedColumns(const ReportTable &table)
{
    PageSlice row;
    int at = 0;
    for (const qsizetype column : shownColumns(table)) {
        row.append(PlacedColumn{column, {at, fittedWidth(table, column)}});
        at += row.last().place.width + gap;
    }
    return row;
}

int endOf(const PageSlice &slice)
{
    return slice.isEmpty() ? 0 : slice.last().place.at + slice.last().place.width;
}

} // namespace

bool isLoneText(const ReportRow &row)
{
    return row.kind == ReportRowKind::Caption &&
           std::all_of(row.values.begin() + qMin<qsizetype>(1, row.values.size()), row.values.end(),
                       [](const QVariant &value) { return value.toString().isEmpty(); });
}

bool usesOwnColumns(const ReportPart &part, int pageWidth)
{
    const QList<qsizetype> shown = shownColumns(part.table);
    if (part.columns.isEmpty() || part.columns.size() != shown.size())
        return false;
    for (qsizetype i = 0; i < shown.size(); ++i) {
        const ReportPageColumn &place = part.columns[i];
        const bool figure = part.table.columns[shown[i]].kind == ReportColumnKind::Number;
        if (place.at + place.width > pageWidth ||
            (figure && widestCell(part.table, shown[i]) > place.width))
            return false;
    }
    return true;
}

bool fitsOnPage(const ReportPart &part, int pageWidth)
{
    return usesOwnColumns(part, pageWidth) || endOf(fittedColumns(part.table)) <= pageWidth;
}

QList<PageSlice> placedColumns(const ReportPart &part, int pageWidth)
{
    if (usesOwnColumns(part, pageWidth)) {
        PageSlice own;
        for (qsizetype i = 0; i < part.columns.size(); ++i)
            own.append(PlacedColumn{shownColumns(part.table)[i], part.columns[i]});
        return {own};
    }
    QList<PageSlice> slices;
    for (PlacedColumn next : fittedColumns(part.table)) {
        const int width = next.place.width;
        if (slices.isEmpty() || endOf(slices.last()) + gap + width > pageWidth) {
            // The first column says what the row is, so it stands on every sheet.
            slices.append(slices.isEmpty() ? PageSlice{} : PageSlice{slices.first().first()});
        }
        const PageSlice &slice = slices.last();
        next.place.at = slice.isEmpty() ? 0 : endOf(slice) + gap;
        slices.last().append(next);
    }
    return slices.isEmpty() ? QList<PageSlice>{PageSlice{}} : slices;
}

} // namespace kuyum
