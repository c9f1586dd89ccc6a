#pragma once

#include "ReportTable.h"

#include <memory>
#include <QAbstractTableModel>
#include <vector>

namespace kuyum {

/// A stretch of a report's rows for a view. Lines are put into order between
/// the captions and totals, which keep their places.
class RaporModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    static constexpr int RowKindRole = Qt::UserRole; ///< a ReportRowKind, as a number

    using QAbstractTableModel::QAbstractTableModel;

    /// Shows `count` rows of the table from `first` on, in the table's order.
    void show(std::shared_ptr<const ReportTable> table, qsizetype first, qsizetype count);

    /// The row of the table that stands in this row.
    qsizetype tableRow(int row) const { return m_order[std::size_t(row)]; }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    /// Texts in Turkish order, numbers and dates by value, empty cells behind
    /// all others either way. Column -1 gives the table's own order back.
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

private:
    void sortLines(qsizetype from, qsizetype to, int column, Qt::SortOrder order);

    std::shared_ptr<const ReportTable> m_table;
    qsizetype m_first = 0;
    std::vector<qsizetype> m_order; ///< rows of the table, as they are shown
};

} // namespace kuyum
