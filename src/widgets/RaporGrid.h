#pragma once

#include "ReportTable.h"

#include <memory>
#include <QFrame>

class QScrollBar;
class QTableView;

namespace kuyum {

class RaporModel;

/// Shows a report's figures to be read, sorted and copied. The heading stays
/// above the rows, and the report's total, where it ends with one, below them.
///
/// A click on a heading or F9 puts the lines into that column's order, then
/// the other way round, then back into the report's own. Enter or a double
/// click on a figure asks for what is behind it.
class RaporGrid : public QFrame
{
    Q_OBJECT

public:
    explicit RaporGrid(QWidget *parent = nullptr);

    /// Every row has a value for each column.
    void setTable(const ReportTable &table);
    /// The table with its rows as they stand on the screen.
    ReportTable table() const;

    /// How wide it is when every column stands in full.
    int fittingWidth() const;
    /// The view of all rows but the total.
    QTableView *rows() const { return m_rows; }
    /// The view of the total below them.
    QTableView *total() const { return m_total; }

Q_SIGNALS:
    /// A figure was chosen; by its place in the table as it was set.
    void figureActivated(qsizetype row, qsizetype column);

protected:
    void initStyleOption(QStyleOptionFrame *option) const override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QTableView *makeView(const QString &name, RaporModel *model);
    void keepInStep();
    void fitColumns();
    int columnFit(int column) const;
    void alignTotal();
    bool pressKey(QTableView *view, QKeyEvent *event);
    void activate(const QTableView *view, const QModelIndex &cell);
    void sortBy(int column);
    void copy() const;
    QString copiedText() const;
    QList<int> shownColumns() const;

    std::shared_ptr<const ReportTable> m_table;
    RaporModel *m_rowModel;
    RaporModel *m_totalModel;
    QTableView *m_rows;
    QTableView *m_total;
    QWidget *m_besideTotal; ///< as wide as the scroll bar above it
    QScrollBar *m_across;
    int m_sortColumn = -1;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
};

} // namespace kuyum
