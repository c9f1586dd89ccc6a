#include "KatalogGrid.h"

#include "EditorDelegate.h"
#include "EntryControls.h"
#include "KatalogModel.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>

namespace kuyum {

namespace {

/// The editors of weight and remark.
class KatalogDelegate : public EditorDelegate
{
public:
    KatalogDelegate(Messages &messages, int remarkLimit, QObject *parent)
        : EditorDelegate(parent), m_messages(messages), m_remarkLimit(remarkLimit)
    {
    }

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &,
                          const QModelIndex &cell) const override
    {
        auto *box = new QLineEdit(parent);
        if (cell.column() == KatalogModel::gramColumn) {
            box->setAlignment(Qt::AlignRight);
            keepNumeric(*box, m_messages);
        } else if (m_remarkLimit > 0) {
            box->setMaxLength(m_remarkLimit);
        }
        return box;
    }

private:
    Messages &m_messages;
    int m_remarkLimit;
};

} // namespace

KatalogGrid::KatalogGrid(QWidget *parent) : QTableView(parent)
{
    setEditTriggers(DoubleClicked | EditKeyPressed);
    setSelectionMode(SingleSelection);
    setSelectionBehavior(SelectRows);
    setTabKeyNavigation(false);
    setCornerButtonEnabled(false);
    setWordWrap(false);
    horizontalHeader()->setHighlightSections(false);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 14);
}

void KatalogGrid::setUp(KatalogModel *model, Messages &messages, int remarkLimit)
{
    m_model = model;
    setModel(model);
    setItemDelegate(new KatalogDelegate(messages, remarkLimit, this));
}

void KatalogGrid::goTo(int row)
{
    const int column = std::max(0, currentIndex().column());
    setCurrentIndex(m_model->index(std::min(row, m_model->rowCount() - 1), column));
}

void KatalogGrid::finishEdit()
{
    finishCellEdit(*this);
}

void KatalogGrid::keyPressEvent(QKeyEvent *event)
{
    const int key = event->key();
    const int row = currentIndex().row();
    const bool moves =
        event->modifiers() == Qt::AltModifier && (key == Qt::Key_Up || key == Qt::Key_Down);
    if (state() == EditingState && isEnter(*event))
        return; // it came from the editor, which takes it
    if (moves)
        moveCurrent(key == Qt::Key_Up ? row - 1 : row + 1);
    else if (event->isAutoRepeat() && (isEnter(*event) || key == Qt::Key_Delete))
        return; // held down, it would take one row after the other
    else if (key == Qt::Key_Delete && row >= 0)
        Q_EMIT rowRemovalAsked(row);
    else if (key == Qt::Key_Insert)
        Q_EMIT rowWanted();
    else if (isEnter(*event) && currentIndex().flags().testFlag(Qt::ItemIsEditable))
        edit(currentIndex());
    else if (isEnter(*event) && row >= 0) {
        // The whole row is marked: where the cursor stands in it is not seen.
        setCurrentIndex(currentIndex().siblingAtColumn(KatalogModel::gramColumn));
        edit(currentIndex());
    } else if (isEnter(*event) || key == Qt::Key_Escape)
        event->ignore(); // the screen's
    else
        QTableView::keyPressEvent(event);
}

void KatalogGrid::moveCurrent(int to)
{
    if (currentIndex().isValid() && to >= 0 && to < m_model->rowCount())
        m_model->moveTo(currentIndex().row(), to);
    scrollTo(currentIndex());
}

void KatalogGrid::mousePressEvent(QMouseEvent *event)
{
    QTableView::mousePressEvent(event);
    const bool takes = event->button() == Qt::LeftButton && indexAt(event->pos()).isValid();
    m_pressedAt = takes ? event->pos().y() : -1;
}

/// The row follows the mouse from place to place.
void KatalogGrid::mouseMoveEvent(QMouseEvent *event)
{
    const int y = event->pos().y();
    if (m_pressedAt < 0 || !event->buttons().testFlag(Qt::LeftButton) || state() == EditingState)
        return;
    if (viewport()->cursor().shape() != Qt::ClosedHandCursor) {
        if (std::abs(y - m_pressedAt) < QApplication::startDragDistance())
            return;
        viewport()->setCursor(Qt::ClosedHandCursor);
    }
    const int over = rowAt(qBound(0, y, viewport()->height() - 1));
    moveCurrent(over < 0 ? m_model->rowCount() - 1 : over);
}

void KatalogGrid::mouseReleaseEvent(QMouseEvent *event)
{
    m_pressedAt = -1;
    viewport()->unsetCursor();
    QTableView::mouseReleaseEvent(event);
}

void KatalogGrid::resizeEvent(QResizeEvent *event)
{
    QTableView::resizeEvent(event);
    spreadColumns();
}

/// What is no text of the user's own takes the room that it needs.
void KatalogGrid::spreadColumns()
{
    const int letter = fontMetrics().horizontalAdvance(u'0');
    const int width = viewport()->width();
    const int gram = 10 * letter;
    const int id = 9 * letter;
    const int shortName = 8 * letter;
    const int room = width - gram - id - shortName;
    // In a small window the model is what tells the rows apart.
    const int model = std::max(room * 2 / 5, std::min(13 * letter, room * 2 / 3));
    setColumnWidth(KatalogModel::modelColumn, model);
    setColumnWidth(KatalogModel::gramColumn, gram);
    setColumnWidth(KatalogModel::idColumn, id);
    setColumnWidth(KatalogModel::kisaAdColumn, shortName);
    setColumnWidth(KatalogModel::aciklamaColumn, room - model);
}

} // namespace kuyum
