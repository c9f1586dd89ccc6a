#include "LookupModel.h"

#include "TurkishText.h"

#include <QElapsedTimer>
#include <QScopedValueRollback>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

constexpr int firstPage = 64;
constexpr qint64 sliceMilliseconds = 8;
constexpr qint64 firstMilliseconds = 40; ///< for what a key has asked for

bool isText(const QVariant &value)
{
    return value.typeId() == QMetaType::QString;
}

/// Nothing before everything, texts in Turkish order, the rest by value.
int compareValues(const QVariant &a, const QVariant &b)
{
    if (!a.isValid() || !b.isValid())
        return int(a.isValid()) - int(b.isValid());
    if (isText(a) && isText(b))
        return compareText(*static_cast<const QString *>(a.constData()),
                           *static_cast<const QString *>(b.constData()));
    if (a.typeId() == QMetaType::QDateTime && b.typeId() == QMetaType::QDateTime) {
        const QDateTime x = a.toDateTime();
        const QDateTime y = b.toDateTime();
        return int(x > y) - int(x < y);
    }
    const double x = a.toDouble();
    const double y = b.toDouble();
    return int(x > y) - int(x < y);
}

} // namespace

LookupModel::LookupModel(QObject *parent) : QAbstractTableModel(parent)
{
    connect(&m_timer, &QTimer::timeout, this, &LookupModel::workAWhile);
}

void LookupModel::open(std::unique_ptr<LookupRows> rows)
{
    showAnew([&] {
        m_source = std::move(rows);
        m_columns = m_source->columns();
        m_store.clear();
        m_words.clear();
        m_sortColumn = -1;
        m_sort.reset();
        m_order.clear();
    });
    workUntil([this] { return m_found.size() >= firstPage; });
    m_timer.start(0);
}

void LookupModel::narrow(const QString &text)
{
    const QStringList words = searchKey(text).split(u' ', Qt::SkipEmptyParts);
    if (words == m_words)
        return;
    showAnew([&] { m_words = words; });
    QElapsedTimer clock;
    clock.start();
    workUntil([&] { return m_found.size() >= firstPage || clock.elapsed() >= firstMilliseconds; });
    m_timer.start(0);
}

/// Begins again with looking for the rows to be shown.
void LookupModel::showAnew(const std::function<void()> &change)
{
    const QScopedValueRollback working(m_working, true);
    beginResetModel();
    change();
    m_shown.clear();
    m_found.clear();
    m_scanned = 0;
    endResetModel();
}

void LookupModel::append(const QVariantList &row)
{
    waitForAll();
    m_store.insert(m_store.end(), row.begin(), row.end());
    if (!m_order.empty())
        m_order.push_back(readCount() - 1);
    workUntil([] { return false; });
}

QVariantList LookupModel::values(int row) const
{
    QVariantList result;
    for (int column = 0; column < m_columns.size(); ++column)
        result.append(stored(m_shown[std::size_t(row)], column));
    return result;
}

int LookupModel::readCount() const
{
    return m_columns.isEmpty() ? 0 : int(m_store.size() / std::size_t(m_columns.size()));
}

bool LookupModel::isComplete() const
{
    return m_source == nullptr && !m_sort && m_scanned == readCount() && m_found.empty();
}

bool LookupModel::waitForRow(int row)
{
    workUntil([this, row] { return int(m_shown.size() + m_found.size()) > row && !m_sort; });
    return row < rowCount();
}

void LookupModel::waitForAll()
{
    workUntil([] { return false; });
}

void LookupModel::workUntil(const Enough &enough)
{
    // A grid that hears of a change may ask for more rows at once.
    if (m_working)
        return;
    const QScopedValueRollback working(m_working, true);
    try {
        while (!enough() && advance()) {
        }
    } catch (const std::exception &error) {
        m_source.reset();
        // Not from within: the grid may be in the middle of asking for rows.
        const QString reason = QString::fromUtf8(error.what());
        QMetaObject::invokeMethod(
            this, [this, reason] { Q_EMIT failed(reason); }, Qt::QueuedConnection);
    }
    showFound();
}

void LookupModel::workAWhile()
{
    QElapsedTimer clock;
    clock.start();
    workUntil([&] { return clock.elapsed() >= sliceMilliseconds; });
    if (isComplete())
        m_timer.stop();
}

/// Does one small piece of what is left to do; false when nothing is.
bool LookupModel::advance()
{
    if (m_scanned < readCount()) {
        const int row = m_order.empty() ? m_scanned : m_order[std::size_t(m_scanned)];
        ++m_scanned;
        if (matches(row))
            m_found.push_back(row);
        return true;
    }
    if (m_source != nullptr)
        return readOne();
    if (!m_sort)
        return false;
    if (m_sort->step())
        applyOrder();
    return true;
}

bool LookupModel::readOne()
{
    QVariantList row;
    if (m_source->next(row)) {
        m_store.insert(m_store.end(), std::make_move_iterator(row.begin()),
                       std::make_move_iterator(row.end()));
        return true;
    }
    m_source.reset();
    if (m_sortColumn >= 0)
        startSort();
    return true;
}

void LookupModel::applyOrder()
{
    showAnew([this] {
        m_order = m_sort->order();
        m_sort.reset();
    });
}

void LookupModel::showFound()
{
    if (!m_found.empty()) {
        const int first = int(m_shown.size());
        beginInsertRows({}, first, first + int(m_found.size()) - 1);
        m_shown.insert(m_shown.end(), m_found.begin(), m_found.end());
        m_found.clear();
        endInsertRows();
    }
    Q_EMIT progressed();
}

void LookupModel::sort(int column, Qt::SortOrder order)
{
    if (column < 0 || column >= m_columns.size())
        return;
    m_sortColumn = column;
    m_sortOrder = order;
    if (m_source == nullptr)
        startSort();
    m_timer.start(0);
}

void LookupModel::startSort()
{
    const bool descending = m_sortOrder == Qt::DescendingOrder;
    m_sort.emplace(readCount(), [this, descending](int a, int b) {
        const int compared = compareValues(stored(a, m_sortColumn), stored(b, m_sortColumn));
        return descending ? compared > 0 : compared < 0;
    });
}

bool LookupModel::matches(int storedRow) const
{
    if (m_words.isEmpty())
        return true;
    QString key;
    for (int column = 0; column < m_columns.size(); ++column) {
        if (m_columns[column].width > 0_tw)
            key += text(storedRow, column) + u'\n';
    }
    key = searchKey(key);
    for (const QString &word : m_words) {
        if (!key.contains(word))
            return false;
    }
    return true;
}

const QVariant &LookupModel::stored(int row, int column) const
{
    return m_store[std::size_t(row) * std::size_t(m_columns.size()) + std::size_t(column)];
}

QString LookupModel::text(int storedRow, int column) const
{
    return lookupText(stored(storedRow, column), m_columns[column].picture);
}

int LookupModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_shown.size());
}

int LookupModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_columns.size());
}

QVariant LookupModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    switch (role) {
    case Qt::ToolTipRole:
        // What the column's picture hides.
        return lookupText(stored(m_shown[std::size_t(index.row())], index.column()));
    case Qt::DisplayRole:
        return text(m_shown[std::size_t(index.row())], index.column());
    case Qt::TextAlignmentRole:
        return int(m_columns[index.column()].alignment | Qt::AlignVCenter);
    default:
        return {};
    }
}

QVariant LookupModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical || section < 0 || section >= m_columns.size())
        return {};
    if (role == Qt::DisplayRole)
        return m_columns[section].heading;
    if (role == Qt::TextAlignmentRole) {
        // At the right end it would run into the next one.
        const bool right = m_columns[section].alignment == Qt::AlignRight;
        return int((right ? Qt::AlignHCenter : m_columns[section].alignment) | Qt::AlignVCenter);
    }
    return {};
}

bool LookupModel::canFetchMore(const QModelIndex &parent) const
{
    return !parent.isValid() && m_source != nullptr;
}

void LookupModel::fetchMore(const QModelIndex &)
{
    QElapsedTimer clock;
    clock.start();
    // Ends before sorting begins: the grid could not bear its rows changing
    // their places while it asks for more of them.
    workUntil([&] { return m_source == nullptr || clock.elapsed() >= sliceMilliseconds; });
}

} // namespace kuyum
