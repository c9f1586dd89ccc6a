#pragma once

#include "LookupRows.h"
#include "SlicedSort.h"

#include <deque>
#include <functional>
#include <optional>
#include <QAbstractTableModel>
#include <QTimer>

namespace kuyum {

/// The rows of an open list for its grid. The first page is there at once; the
/// rest is read, narrowed and sorted in short slices between the user's keys,
/// so a list of any length opens in the same time.
class LookupModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit LookupModel(QObject *parent = nullptr);

    /// Shows another list, or the same with other rows: all of them, in their
    /// own order.
    void open(std::unique_ptr<LookupRows> rows);
    /// Shows the rows that hold every word of the text in a shown column.
    void narrow(const QString &text);
    /// Adds a row behind all others.
    void append(const QVariantList &row);

    const QList<LookupColumn> &columns() const { return m_columns; }
    /// The values of a shown row.
    QVariantList values(int row) const;
    /// How many rows were read so far.
    int readCount() const;
    /// Whether everything is read, narrowed and sorted.
    bool isComplete() const;
    /// The column that the rows are sorted by; -1: in their own order.
    int sortColumn() const { return m_sortColumn; }
    Qt::SortOrder sortOrder() const { return m_sortOrder; }
    /// Goes on until that row is shown, or there is no such row.
    bool waitForRow(int row);
    void waitForAll();

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    bool canFetchMore(const QModelIndex &parent) const override;
    void fetchMore(const QModelIndex &parent) override;
    /// Texts in Turkish order, numbers and dates by value. The rows change
    /// their places when all of them are read and put into order.
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

Q_SIGNALS:
    void progressed();
    /// The rows could not be read to their end.
    void failed(const QString &reason);

private:
    using Enough = std::function<bool()>;

    void workUntil(const Enough &enough);
    void workAWhile();
    bool advance();
    bool readOne();
    void showAnew(const std::function<void()> &change);
    void applyOrder();
    void showFound();
    void startSort();
    bool matches(int storedRow) const;
    const QVariant &stored(int row, int column) const;
    QString text(int storedRow, int column) const;

    QList<LookupColumn> m_columns;
    std::unique_ptr<LookupRows> m_source; ///< null when read to the end
    std::deque<QVariant> m_store;         ///< all values, row after row

    QStringList m_words;
    int m_sortColumn = -1;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
    std::optional<SlicedSort> m_sort; ///< under way
    std::vector<int> m_order;         ///< empty: as read
    int m_scanned = 0;                ///< rows of the order that were looked at
    std::vector<int> m_shown;
    std::vector<int> m_found; ///< to be shown next

    bool m_working = false;
    QTimer m_timer;
};

} // namespace kuyum
