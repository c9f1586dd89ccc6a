#include "OrderReport.h"

#include "Dates.h"
#include "Numbers.h"
#include "OrderLinesBehind.h"
#include "Oturum.h"
#include "ReportSql.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kuyum {

void OrderReport::Figure::add(std::optional<double> value)
{
    present = true;
    if (value)
        sum = sum.value_or(0) + *value;
}

OrderReport::OrderReport(Oturum &oturum, const ReportPeriod &period)
    : m_oturum(oturum), m_period(period)
{
}

OrderReport::Outcome OrderReport::read(const ReportProgress &progress)
{
    m_table = {};
    m_items.clear();
    m_groups = findGroups();
    if (m_groups.isEmpty())
        return Outcome::NothingFound;
    readItems();
    QList<QList<Figure>> figures;
    const auto add = [&](const Contribution &contribution) {
        if (contribution.item >= figures.size())
            figures.resize(contribution.item + 1);
        QList<Figure> &row = figures[contribution.item];
        if (row.isEmpty())
            row.resize(m_groups.size());
        if (contribution.group >= 0)
            row[contribution.group].add(contribution.pieces());
    };
    if (!walk(add, progress))
        return Outcome::Stopped;
    layOut(figures);
    return Outcome::Ready;
}

bool OrderReport::isFigure(qsizetype row, qsizetype column) const
{
    return row >= 0 && row < m_table.rows.size() && meaning(column).has_value() &&
           m_table.rows[row].values[column].isValid();
}

std::optional<ReportTable> OrderReport::linesBehind(qsizetype row, qsizetype column,
                                                    const ReportProgress &progress) const
{
    const ColumnMeaning wanted = meaning(column).value();
    std::optional<int> item; // unset: all of them
    if (m_table.rows[row].kind == ReportRowKind::Line)
        item = m_items[row];
    OrderLinesBehind behind(*m_oturum.Veritabani, decimals(wanted));
    const auto isBehind = [&](const Contribution &contribution) {
        return contribution.group >= 0 && contribution.item == item.value_or(contribution.item) &&
               contribution.group == wanted.group.value_or(contribution.group);
    };
    const auto count = [&](const Contribution &contribution) {
        if (isBehind(contribution))
            behind.count(contribution);
    };
    const auto add = [&](const Contribution &contribution) {
        if (isBehind(contribution))
            behind.add(contribution,
                       wanted.grams ? gramsPerPiece(contribution.item).value_or(0) : 1.0);
    };
    if (!walk(count, progress) || !walk(add, progress))
        return std::nullopt;
    const QString heading = m_table.rows[row].values.first().toString();
    const QString title = heading + u" / "_s + m_table.columns[column].heading;
    return behind.table(title, m_table.columns[column].picture);
}

std::optional<double> OrderReport::gramsPerPiece(int) const
{
    return std::nullopt;
}

void OrderReport::show(const QString &sql) const
{
    // A record set asks the engine for its rows when the first one is wanted.
    m_oturum.sorgula(sql);
}

QList<ReportColumnGroup> OrderReport::karats(bool ordered) const
{
    Recordset rows = m_oturum.sorgula(karatsSql(m_period, ordered));
    QList<ReportColumnGroup> groups;
    while (rows.next()) {
        ReportColumnGroup group;
        if (!rows.isNull(u"ayar"))
            group.Ayar = rows.number(u"ayar");
        group.name = rows.text(u"ayar");
        groups.append(group);
    }
    // Unordered, they come as the engine pleases, which is no order for columns.
    std::ranges::sort(groups, {}, &ReportColumnGroup::Ayar);
    return groups;
}

int OrderReport::groupOf(std::optional<double> Ayar) const
{
    const auto found = std::ranges::find(m_groups, Ayar, &ReportColumnGroup::Ayar);
    return found == m_groups.end() ? -1 : int(found - m_groups.begin());
}

int OrderReport::groupOf(std::optional<qint64> TipID) const
{
    const auto found = std::ranges::find(m_groups, TipID, &ReportColumnGroup::TipID);
    return found == m_groups.end() ? -1 : int(found - m_groups.begin());
}

std::optional<OrderReport::ColumnMeaning> OrderReport::pieceColumn(qsizetype place) const
{
    if (place < 0)
        return std::nullopt;
    ColumnMeaning meaning;
    if (place < m_groups.size())
        meaning.group = int(place);
    return meaning;
}

QString OrderReport::titled(const QString &name) const
{
    return name + formatDate(m_period.bas) + u" - "_s + formatDate(m_period.bit);
}

void OrderReport::addPieceColumns()
{
    using Kind = ReportColumnKind;
    for (const ReportColumnGroup &group : std::as_const(m_groups))
        m_table.columns.append({u"Adet(%1)"_s.arg(group.name), Kind::Number});
    m_table.columns.append({u"TOPLAM ADET"_s, Kind::Number});
}

QVariant OrderReport::cell(const Figure &figure, int decimals)
{
    return figure.sum ? QVariant(roundDecimal(*figure.sum, decimals)) : QVariant();
}

void OrderReport::addLine(QVariantList cells)
{
    for (qsizetype column = cells.size(); column < m_table.columns.size(); ++column) {
        const ColumnMeaning total = meaning(column).value();
        double sum = 0;
        for (qsizetype other = 0; other < column; ++other) {
            const std::optional<ColumnMeaning> part = meaning(other);
            if (part && part->group && part->grams == total.grams)
                sum += cells[other].toDouble();
        }
        cells.append(roundDecimal(sum, decimals(total)));
    }
    m_table.rows.append({cells});
}

void OrderReport::addTotals()
{
    QVariantList cells{u"TOPLAM"_s};
    for (qsizetype column = 1; column < m_table.columns.size(); ++column) {
        const std::optional<ColumnMeaning> figure = meaning(column);
        if (!figure) {
            cells.append(QVariant());
            continue;
        }
        double sum = 0;
        for (const ReportRow &row : std::as_const(m_table.rows))
            sum += row.values[column].toDouble();
        cells.append(roundDecimal(sum, decimals(*figure)));
    }
    m_table.rows.append({cells, ReportRowKind::Total});
}

} // namespace kuyum
