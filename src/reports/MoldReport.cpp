#include "MaterialReport.h"
#include "ReportSql.h"

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

constexpr int firstFigure = 2; ///< column
constexpr int wholePieces = 0; ///< decimals

} // namespace

QString MoldReport::sql() const
{
    return moldReportSql(m_period);
}

QString MoldReport::itemsSql() const
{
    return u"Select KalipID, KalipKodu, KalipAck, Null From Kalip"_s;
}

int MoldReport::decimals(const ColumnMeaning &) const
{
    return wholePieces;
}

std::optional<OrderReport::ColumnMeaning> MoldReport::meaning(qsizetype column) const
{
    return pieceColumn(column - firstFigure);
}

void MoldReport::layOut(const QList<QList<Figure>> &figures)
{
    m_table.title = titled(u"YARI MAMUL RAPORU : "_s);
    m_table.columns = {{u"KOD"_s}, {u"TANIM"_s}};
    addPieceColumns();
    m_items = sortedItems(figures);
    for (const int number : std::as_const(m_items)) {
        QVariantList cells{item(number).code, item(number).description};
        for (const Figure &figure : figures[number])
            cells.append(cell(figure, wholePieces));
        addLine(cells);
    }
    addTotals();
}

} // namespace kuyum
