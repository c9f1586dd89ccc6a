#pragma once

#include "OrderReport.h"
#include "OrderShares.h"

namespace kuyum {

/// Gathers the order lines behind a figure of an order report.
///
/// A report rounds each figure, and totals add the rounded ones. Each line gets
/// what the rounded figure grows by when the line is added, so that the lines
/// of every figure and of every total sum to what the report shows.
class OrderLinesBehind
{
public:
    OrderLinesBehind(Database &db, int decimals);

    /// Counts a line that will be added. Throws when there are more than a person
    /// looks through, which is told before the slow work of adding them.
    void count(const Contribution &contribution);
    /// Adds what a line contributes, each piece for so many units. A line may
    /// contribute several times in a row.
    void add(const Contribution &contribution, double unit);
    ReportTable table(const QString &title, const QString &picture) const;

private:
    struct Running
    {
        double pieces = 0;
        double shown = 0;
    };

    OrderShare newShare(const PeriodLine &line) const;

    int m_decimals;
    QHash<qint64, QString> m_firmalar;
    QHash<qint64, QString> m_tipler;
    QHash<quint64, Running> m_figures; ///< by item and group
    QList<OrderShare> m_shares;
    int m_counted = -1; ///< the line that was counted last
    qsizetype m_count = 0;
    int m_walked = -1; ///< the line that the last share is of
};

} // namespace kuyum
