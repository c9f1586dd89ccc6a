#include "RaporGrid.h"

#include "EntryControls.h"
#include "FixedPitchText.h"
#include "ListCellDelegate.h"
#include "ListHeading.h"
#include "RaporModel.h"
#include "Theme.h"

#include <algorithm>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <QStyleOptionFrame>
#include <QTableView>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

constexpr int narrowestColumn = 64;
constexpr int widestColumn = 420;
constexpr qsizetype measuredRows = 1000;

/// Sets captions and totals apart from the lines.
class RaporDelegate : public ListCellDelegate
{
public:
    using ListCellDelegate::ListCellDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        ListCellDelegate::initStyleOption(option, index);
        const auto kind = ReportRowKind(index.data(RaporModel::RowKindRole).toInt());
        if (kind == ReportRowKind::Line)
            return;
        const ThemeColors colors = themeColors(option->palette);
        QColor tint = kind == ReportRowKind::Total ? colors.accent : colors.muted;
        tint.setAlpha(kind == ReportRowKind::Total ? 56 : 40);
        option->features.setFlag(QStyleOptionViewItem::Alternate, false);
        option->backgroundBrush = tint;
    }
};

QString cellLine(const QTableView &view, int row, int column)
{
    return onOneLine(view.model()->index(row, column).data().toString());
}

} // namespace

RaporGrid::RaporGrid(QWidget *parent)
    : QFrame(parent),
      m_table(std::make_shared<ReportTable>()),
      m_rowModel(new RaporModel(this)),
      m_totalModel(new RaporModel(this)),
      m_rows(makeView(u"satirlar"_s, m_rowModel)),
      m_total(makeView(u"toplam"_s, m_totalModel)),
      m_besideTotal(new QWidget),
      m_across(new QScrollBar(Qt::Horizontal))
{
    setFrameStyle(QFrame::StyledPanel);
    setFocusProxy(m_rows);
    m_rows->setAlternatingRowColors(true);
    m_rows->viewport()->installEventFilter(this);
    m_total->horizontalHeader()->hide();
    m_total->setFocusPolicy(Qt::ClickFocus);
    m_total->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_total->setFixedHeight(m_total->verticalHeader()->defaultSectionSize());
    m_total->setAccessibleName(u"Toplam satırı"_s);

    auto *totalLine = new QHBoxLayout;
    totalLine->setSpacing(0);
    totalLine->addWidget(m_total);
    totalLine->addWidget(m_besideTotal);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(m_rows, 1);
    layout->addLayout(totalLine);
    layout->addWidget(m_across);
    m_across->hide(); // until there is something to move
    keepInStep();
    setTable({});
}

QTableView *RaporGrid::makeView(const QString &name, RaporModel *model)
{
    auto *view = new QTableView;
    view->setObjectName(name);
    view->setModel(model);
    view->setItemDelegate(new RaporDelegate(view));
    view->setFrameShape(QFrame::NoFrame);
    view->setShowGrid(false);
    view->setWordWrap(false);
    view->setTabKeyNavigation(false);
    view->setCornerButtonEnabled(false);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view->verticalHeader()->hide();
    view->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    view->verticalHeader()->setDefaultSectionSize(view->fontMetrics().height() +
                                                  ListCellDelegate::lineSpace);
    view->setHorizontalHeader(new ListHeading);
    view->installEventFilter(this);
    connect(view, &QTableView::doubleClicked, this,
            [this, view](const QModelIndex &cell) { activate(view, cell); });
    return view;
}

/// One scroll bar moves both views, and a column is as wide in one as in the
/// other.
void RaporGrid::keepInStep()
{
    QScrollBar *rows = m_rows->horizontalScrollBar();
    QScrollBar *total = m_total->horizontalScrollBar();
    m_across->setRange(0, 0);
    m_across->hide();
    connect(rows, &QScrollBar::rangeChanged, this, [this, rows](int least, int most) {
        m_across->setRange(least, most);
        m_across->setPageStep(rows->pageStep());
        m_across->setSingleStep(rows->singleStep());
        m_across->setVisible(most > least);
    });
    connect(rows, &QScrollBar::valueChanged, m_across, &QScrollBar::setValue);
    connect(m_across, &QScrollBar::valueChanged, rows, &QScrollBar::setValue);
    connect(m_across, &QScrollBar::valueChanged, total, &QScrollBar::setValue);
    connect(total, &QScrollBar::valueChanged, m_across, &QScrollBar::setValue);
    // The total's view may hear of a new width after it was moved.
    connect(total, &QScrollBar::rangeChanged, this,
            [this, total] { total->setValue(m_across->value()); });

    QHeaderView *headings = m_rows->horizontalHeader();
    headings->setSectionsClickable(true);
    connect(headings, &QHeaderView::sectionClicked, this, &RaporGrid::sortBy);
    connect(headings, &QHeaderView::sectionResized, this,
            [this](int column, int, int width) { m_total->setColumnWidth(column, width); });
}

void RaporGrid::setTable(const ReportTable &table)
{
    m_table = std::make_shared<const ReportTable>(table);
    const bool hasTotal =
        !m_table->rows.isEmpty() && m_table->rows.last().kind == ReportRowKind::Total;
    const qsizetype count = m_table->rows.size() - (hasTotal ? 1 : 0);
    m_rowModel->show(m_table, 0, count);
    m_totalModel->show(m_table, count, hasTotal ? 1 : 0);
    m_total->setVisible(hasTotal);
    m_besideTotal->setVisible(hasTotal);
    if (!accessibleName().isEmpty())
        m_rows->setAccessibleName(accessibleName());
    m_sortColumn = -1;
    m_rows->horizontalHeader()->setSortIndicatorShown(false);
    fitColumns();
    if (const QList<int> shown = shownColumns(); count > 0 && !shown.isEmpty()) {
        const bool captioned = count > 1 && m_table->rows.first().kind == ReportRowKind::Caption;
        m_rows->setCurrentIndex(m_rowModel->index(captioned ? 1 : 0, shown.first()));
    }
}

ReportTable RaporGrid::table() const
{
    ReportTable shown{m_table->title, m_table->columns, {}, m_table->notes};
    shown.rows.reserve(m_table->rows.size());
    for (const RaporModel *model : {m_rowModel, m_totalModel}) {
        for (int row = 0; row < model->rowCount(); ++row)
            shown.rows.append(m_table->rows[model->tableRow(row)]);
    }
    return shown;
}

// Columns

QList<int> RaporGrid::shownColumns() const
{
    QList<int> columns;
    for (int column = 0; column < m_table->columns.size(); ++column) {
        if (!m_table->columns[column].hidden)
            columns.append(column);
    }
    return columns;
}

void RaporGrid::fitColumns()
{
    for (int column = 0; column < m_table->columns.size(); ++column) {
        const bool hidden = m_table->columns[column].hidden;
        m_rows->setColumnHidden(column, hidden);
        m_total->setColumnHidden(column, hidden);
        if (!hidden)
            m_rows->setColumnWidth(column, columnFit(column));
    }
}

/// Of a long report, rows all over it are measured, and besides them the
/// longest text and the outermost figures, which are the widest.
int RaporGrid::columnFit(int column) const
{
    const QList<ReportRow> &rows = m_table->rows;
    const QFontMetrics plain(m_rows->font());
    QFont boldFont = m_rows->font();
    boldFont.setBold(true);
    const QFontMetrics bold(boldFont);
    const int sortArrow = 16;
    int widest = m_rows->horizontalHeader()->fontMetrics().horizontalAdvance(
                     m_table->columns[column].heading) +
                 sortArrow;
    const auto measure = [&](qsizetype row) {
        const bool line = rows[row].kind == ReportRowKind::Line;
        const QString text = m_table->cellText(row, column);
        widest = qMax(widest, (line ? plain : bold).horizontalAdvance(text));
    };
    const qsizetype step = rows.size() / measuredRows + 1;
    for (qsizetype row = 0; row < rows.size(); row += step)
        measure(row);
    if (!rows.isEmpty())
        measure(rows.size() - 1);
    qsizetype longest = 0;
    qsizetype least = 0;
    qsizetype most = 0;
    for (qsizetype row = 0; step > 1 && row < rows.size(); ++row) {
        const QVariant &value = rows[row].values[column];
        if (value.typeId() == QMetaType::QString) {
            if (value.toString().size() > rows[longest].values[column].toString().size())
                longest = row;
        } else if (value.toDouble() < rows[least].values[column].toDouble()) {
            least = row;
        } else if (value.toDouble() > rows[most].values[column].toDouble()) {
            most = row;
        }
    }
    if (!rows.isEmpty()) {
        for (const qsizetype row : {longest, least, most})
            measure(row);
    }
    return qBound(narrowestColumn, widest + 2 * ListCellDelegate::padding + 4, widestColumn);
}

int RaporGrid::fittingWidth() const
{
    return m_rows->horizontalHeader()->length() + m_rows->verticalScrollBar()->sizeHint().width() +
           2 * frameWidth();
}

/// The total's view leaves out what the other's scroll bar takes.
void RaporGrid::alignTotal()
{
    m_besideTotal->setFixedWidth(qMax(0, m_rows->width() - m_rows->viewport()->width()));
}

// Keys

void RaporGrid::initStyleOption(QStyleOptionFrame *option) const
{
    QFrame::initStyleOption(option);
    option->state.setFlag(QStyle::State_HasFocus, m_rows->hasFocus() || m_total->hasFocus());
}

bool RaporGrid::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Resize:
        if (watched == m_rows->viewport())
            alignTotal();
        break;
    case QEvent::FocusIn:
    case QEvent::FocusOut:
        update();
        break;
    case QEvent::KeyPress:
        if (watched == m_rows || watched == m_total)
            return pressKey(static_cast<QTableView *>(watched), static_cast<QKeyEvent *>(event));
        break;
    default:
        break;
    }
    return QFrame::eventFilter(watched, event);
}

bool RaporGrid::pressKey(QTableView *view, QKeyEvent *event)
{
    const QModelIndex cell = view->currentIndex();
    const auto goTo = [&](QTableView *other, int row) {
        other->setFocus(Qt::OtherFocusReason);
        other->setCurrentIndex(other->model()->index(row, cell.column()));
        return true;
    };
    if (event->matches(QKeySequence::Copy)) {
        copy();
        return true;
    }
    if (isEnter(*event)) {
        if (!event->isAutoRepeat())
            activate(view, cell);
        return true;
    }
    if (event->key() == Qt::Key_F9) {
        if (cell.isValid())
            sortBy(cell.column());
        return true;
    }
    const int last = m_rowModel->rowCount() - 1;
    if (event->key() == Qt::Key_Down && view == m_rows && cell.row() == last &&
        m_totalModel->rowCount() > 0)
        return goTo(m_total, 0);
    if (event->key() == Qt::Key_Up && view == m_total && last >= 0) {
        m_total->clearSelection();
        return goTo(m_rows, last);
    }
    return false;
}

void RaporGrid::activate(const QTableView *view, const QModelIndex &cell)
{
    if (!cell.isValid())
        return;
    const RaporModel *model = view == m_rows ? m_rowModel : m_totalModel;
    const qsizetype row = model->tableRow(cell.row());
    const bool figure = m_table->columns[cell.column()].kind == ReportColumnKind::Number &&
                        m_table->rows[row].values[cell.column()].isValid();
    if (figure && m_table->rows[row].kind != ReportRowKind::Caption)
        Q_EMIT figureActivated(row, cell.column());
}

void RaporGrid::sortBy(int column)
{
    if (column != m_sortColumn) {
        m_sortColumn = column;
        m_sortOrder = Qt::AscendingOrder;
    } else if (m_sortOrder == Qt::AscendingOrder) {
        m_sortOrder = Qt::DescendingOrder;
    } else {
        m_sortColumn = -1;
    }
    QHeaderView *headings = m_rows->horizontalHeader();
    headings->setSortIndicator(m_sortColumn, m_sortOrder);
    headings->setSortIndicatorShown(m_sortColumn >= 0);
    m_rowModel->sort(m_sortColumn, m_sortOrder);
}

// Copying

void RaporGrid::copy() const
{
    if (const QString text = copiedText(); !text.isEmpty())
        QGuiApplication::clipboard()->setText(text);
}

/// What is selected, a line for each row. With everything selected the heading
/// and the total come along.
QString RaporGrid::copiedText() const
{
    const QTableView *view = m_total->hasFocus() ? m_total : m_rows;
    const QItemSelection selection = view->selectionModel()->selection();
    const auto isSelected = [&](int row, int column) {
        return std::ranges::any_of(selection, [&](const QItemSelectionRange &range) {
            return range.top() <= row && row <= range.bottom() && range.left() <= column &&
                   column <= range.right();
        });
    };
    QList<int> columns = shownColumns();
    const qsizetype shown = columns.size();
    columns.removeIf([&](int column) {
        return std::ranges::none_of(selection, [&](const QItemSelectionRange &range) {
            return range.left() <= column && column <= range.right();
        });
    });
    QStringList lines;
    bool all = view == m_rows && columns.size() == shown;
    for (int row = 0; row < view->model()->rowCount(); ++row) {
        QStringList texts;
        qsizetype taken = 0;
        for (const int column : columns) {
            const bool selected = isSelected(row, column);
            taken += selected ? 1 : 0;
            texts.append(selected ? cellLine(*view, row, column) : QString());
        }
        all = all && taken == columns.size();
        if (taken > 0)
            lines.append(texts.join(u'\t'));
    }
    if (!all)
        return lines.join(u'\n');
    QStringList headings;
    QStringList totals;
    for (const int column : columns) {
        headings.append(onOneLine(m_table->columns[column].heading));
        totals.append(cellLine(*m_total, 0, column));
    }
    lines.prepend(headings.join(u'\t'));
    if (m_totalModel->rowCount() > 0)
        lines.append(totals.join(u'\t'));
    return lines.join(u'\n');
}

} // namespace kuyum
