#include "MaterialReport.h"
#include "Numbers.h"
#include "ReportSql.h"

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

const QString gramPicture = u"##0.00"_s;
constexpr int gramDecimals = 2;
constexpr int firstFigure = 1; ///< column

} // namespace

QString StoneReport::sql() const
{
    return stoneReportSql(m_period);
}

QString StoneReport::itemsSql() const
{
    return u"Select TasID, Taskodu, Null, TasKatsayi From Tas"_s;
}

std::optional<double> StoneReport::gramsPerPiece(int number) const
{
    return item(number).gramsPerPiece;
}

int StoneReport::decimals(const ColumnMeaning &meaning) const
{
    return meaning.grams ? gramDecimals : pieceDecimals;
}

std::optional<OrderReport::ColumnMeaning> StoneReport::meaning(qsizetype column) const
{
    const qsizetype figure = column - firstFigure;
    if (figure < 0)
        return std::nullopt;
    ColumnMeaning meaning;
    meaning.grams = figure % 2 == 1;
    if (figure / 2 < m_groups.size())
        meaning.group = int(figure / 2);
    return meaning;
}

void StoneReport::addColumns()
{
    using Kind = ReportColumnKind;
    m_table.columns = {{u"TAŞ"_s}};
    for (const ReportColumnGroup &group : std::as_const(m_groups)) {
        m_table.columns.append({u"Adet(%1)"_s.arg(group.name), Kind::Number});
        m_table.columns.append({u"GR"_s, Kind::Number, gramPicture});
    }
    m_table.columns.append({u"TOPLAM ADET"_s, Kind::Number});
    m_table.columns.append({u"TOPLAM GR"_s, Kind::Number, gramPicture});
}

void StoneReport::layOut(const QList<QList<Figure>> &figures)
{
    m_table.title = titled(u"TAŞ RAPORU : "_s);
    addColumns();
    m_items = sortedItems(figures);
    for (const int number : std::as_const(m_items)) {
        QVariantList cells{item(number).code};
        for (const Figure &figure : figures[number]) {
            cells.append(cell(figure, pieceDecimals));
            Figure weight = figure;
            if (weight.sum && gramsPerPiece(number))
                weight.sum = *weight.sum * *gramsPerPiece(number);
            else
                weight.sum.reset();
            cells.append(cell(weight, gramDecimals));
        }
        addLine(cells);
    }
    addTotals();
}

} // namespace kuyum
