#include "RaporModel.h"

#include "TurkishText.h"

#include <algorithm>
#include <numeric>
#include <QDate>
#include <QFont>

namespace kuyum {

namespace {

bool isText(const QVariant &value)
{
    return value.typeId() == QMetaType::QString;
}

const QString &textOf(const QVariant &value)
{
    return *static_cast<const QString *>(value.constData());
}

bool isEmpty(const QVariant &value)
{
    return !value.isValid() || (isText(value) && textOf(value).isEmpty());
}

/// Where a column of figures has a text, it stands behind them.
int compareValues(const QVariant &a, const QVariant &b)
{
    if (isText(a) && isText(b))
        return compareText(textOf(a), textOf(b));
    if (isText(a) || isText(b))
        return int(isText(a)) - int(isText(b));
    if (a.typeId() == QMetaType::QDate && b.typeId() == QMetaType::QDate) {
        const QDate x = a.toDate();
        const QDate y = b.toDate();
        return int(x > y) - int(x < y);
    }
    const double x = a.toDouble();
    const double y = b.toDouble();
    return int(x > y) - int(x < y);
}

} // namespace

void RaporModel::show(std::shared_ptr<const ReportTable> table, qsizetype first, qsizetype count)
{
    beginResetModel();
    m_table = std::move(table);
    m_first = first;
    m_order.resize(std::size_t(count));
    std::iota(m_order.begin(), m_order.end(), first);
    endResetModel();
}

int RaporModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_order.size());
}

int RaporModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() || m_table == nullptr ? 0 : int(m_table->columns.size());
}

QVariant RaporModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const qsizetype row = tableRow(index.row());
    const ReportRowKind kind = m_table->rows[row].kind;
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        return m_table->cellText(row, index.column());
    case Qt::TextAlignmentRole: {
        const bool figure = m_table->columns[index.column()].kind == ReportColumnKind::Number;
        return int((figure ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    }
    case Qt::FontRole: {
        if (kind == ReportRowKind::Line)
            return {};
        QFont font;
        font.setBold(true);
        return font;
    }
    case RowKindRole:
        return int(kind);
    default:
        return {};
    }
}

QVariant RaporModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical || section < 0 || section >= columnCount())
        return {};
    const ReportColumn &column = m_table->columns[section];
    if (role == Qt::DisplayRole)
        return column.heading;
    if (role == Qt::TextAlignmentRole) {
        const bool figure = column.kind == ReportColumnKind::Number;
        return int((figure ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    }
    return {};
}

void RaporModel::sort(int column, Qt::SortOrder order)
{
    if (m_table == nullptr || column >= columnCount())
        return;
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    const QModelIndexList before = persistentIndexList();
    std::vector<qsizetype> kept;
    kept.reserve(std::size_t(before.size()));
    for (const QModelIndex &index : before)
        kept.push_back(tableRow(index.row()));

    std::iota(m_order.begin(), m_order.end(), m_first);
    const auto isLine = [this](qsizetype row) {
        return m_table->rows[row].kind == ReportRowKind::Line;
    };
    const qsizetype end = m_first + qsizetype(m_order.size());
    for (qsizetype from = m_first; column >= 0 && from < end; ++from) {
        qsizetype to = from;
        while (to < end && isLine(to))
            ++to;
        sortLines(from, to, column, order);
        from = to;
    }

    std::vector<int> shownAt(m_order.size());
    for (std::size_t i = 0; i < m_order.size(); ++i)
        shownAt[std::size_t(m_order[i] - m_first)] = int(i);
    QModelIndexList after;
    for (qsizetype i = 0; i < before.size(); ++i) {
        const int row = shownAt[std::size_t(kept[std::size_t(i)] - m_first)];
        after.append(index(row, before[i].column()));
    }
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged({}, VerticalSortHint);
}

void RaporModel::sortLines(qsizetype from, qsizetype to, int column, Qt::SortOrder order)
{
    const auto less = [&](qsizetype a, qsizetype b) {
        const QVariant &x = m_table->rows[a].values[column];
        const QVariant &y = m_table->rows[b].values[column];
        if (isEmpty(x) || isEmpty(y))
            return !isEmpty(x) && isEmpty(y);
        const int compared = compareValues(x, y);
        return order == Qt::AscendingOrder ? compared < 0 : compared > 0;
    };
    std::stable_sort(m_order.begin() + (from - m_first), m_order.begin() + (to - m_first), less);
}

} // namespace kuyum
