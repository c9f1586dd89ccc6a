#include "SiparisGrid.h"

#include "CellEditors.h"
#include "EntryControls.h"
#include "Numbers.h"
#include "OrderCellDelegate.h"
#include "ProductLabel.h"
#include "SiparisModel.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>

namespace kuyum {

namespace {

constexpr int quantityDigits = 9; // what a whole number field always holds
constexpr int besideText = 12;    ///< of a cell and of an editor over it

} // namespace

SiparisGrid::SiparisGrid(QWidget *parent) : QTableView(parent), m_editors(new CellEditors(this))
{
    for (QWidget *editor : viewport()->findChildren<QWidget *>(Qt::FindDirectChildrenOnly))
        editor->installEventFilter(this);
    connect(m_editors, &CellEditors::edited, this, &SiparisGrid::labelTyped);
    setItemDelegate(new OrderCellDelegate(this));
    setEditTriggers(NoEditTriggers);
    setSelectionMode(NoSelection);
    setTabKeyNavigation(false);
    setCornerButtonEnabled(false);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 10);
    connect(this, &QTableView::clicked, this, [this](const QModelIndex &cell) {
        if (finishEdit())
            startEditor(cell);
    });
    for (const QScrollBar *bar : {verticalScrollBar(), horizontalScrollBar()})
        connect(bar, &QScrollBar::valueChanged, m_editors, &CellEditors::place);
    connect(horizontalHeader(), &QHeaderView::sectionResized, m_editors, &CellEditors::place);
}

void SiparisGrid::setSiparisModel(SiparisModel *model)
{
    m_model = model;
    setModel(model);
    connect(model, &SiparisModel::modelAboutToBeReset, this, &SiparisGrid::abandonEdit);
    connect(model, &SiparisModel::modelReset, this, &SiparisGrid::spreadColumns);
}

void SiparisGrid::setColours(const QStringList &colours)
{
    m_editors->setColours(colours);
}

void SiparisGrid::setLimits(int modelCharacters, int noteCharacters)
{
    // A scanned label must fit in also where model codes are short.
    m_modelCharacters = modelCharacters == 0 ? 0 : std::max(modelCharacters, labelLength);
    m_noteCharacters = noteCharacters;
}

void SiparisGrid::goTo(int row, int column)
{
    setCurrentIndex(m_model->index(row, column));
    scrollTo(currentIndex());
}

void SiparisGrid::goToEmptyRow()
{
    int row = 0;
    while (row < m_model->rowCount() && !m_model->rowAt(row).model.isEmpty())
        ++row;
    if (row == m_model->rowCount())
        m_model->addRow();
    goTo(row, SiparisModel::modelColumn);
}

void SiparisGrid::SatirAc()
{
    const int last = m_model->rowCount() - 1;
    const SiparisSatiri &row = m_model->rowAt(last);
    if (row.model.isEmpty())
        goTo(last, SiparisModel::modelColumn);
    else if (!row.renk.isEmpty())
        goToNextRow(last);
}

void SiparisGrid::resizeEvent(QResizeEvent *event)
{
    QTableView::resizeEvent(event);
    spreadColumns();
    m_editors->place();
}

int SiparisGrid::usualCharacters(int column) const
{
    if (column == SiparisModel::modelColumn)
        return 16;
    if (column <= m_model->noteColumn())
        return 5;
    const bool date = column > m_model->noteColumn() + 2;
    return date ? 10 : 16;
}

/// Columns as wide as what they hold usually needs, with quantities and dates
/// whole also where they are longer; the note gets the rest.
void SiparisGrid::spreadColumns()
{
    if (m_model == nullptr)
        return;
    const int digit = fontMetrics().horizontalAdvance(u'0');
    const int note = m_model->noteColumn();
    int others = 0;
    for (int column = 0; column < m_model->columnCount(); ++column) {
        if (column == note)
            continue;
        const int heading = horizontalHeader()->sectionSizeHint(column);
        int needed = usualCharacters(column) * digit;
        if (m_model->isQuantity(column) || column > note + 2)
            needed = std::max(needed + besideText, sizeHintForColumn(column));
        setColumnWidth(column, std::max(heading, needed));
        others += columnWidth(column);
    }
    setColumnWidth(note, std::max(16 * digit, viewport()->width() - others));
}

bool SiparisGrid::hasUnfinishedText() const
{
    return m_editors->isOpen() && m_editors->isChanged();
}

void SiparisGrid::abandonEdit()
{
    m_editors->close();
}

bool SiparisGrid::finishEdit()
{
    if (!m_editors->isOpen())
        return true;
    if (m_taking)
        return false;
    m_outcome = ModelOutcome::Taken;
    const QModelIndex cell = m_editors->cell();
    if (cell.column() == SiparisModel::modelColumn) {
        const QString text = m_editors->text().trimmed();
        if (text != m_model->rowAt(cell.row()).model)
            return takeModel(text);
    } else if (m_editors->isChanged()) {
        m_model->setData(cell, m_editors->text());
    }
    m_editors->close();
    return true;
}

bool SiparisGrid::takeModel(const QString &text, ModelSource source)
{
    m_taking = true;
    // The editor's row is the current one, wherever the mouse was pressed.
    setCurrentIndex(m_editors->cell());
    m_outcome = m_take(text, source);
    m_taking = false;
    if (m_outcome == ModelOutcome::Refused) {
        m_editors->selectAll();
        return false;
    }
    m_editors->close();
    return true;
}

void SiparisGrid::startEditor(const QModelIndex &cell, const QString &typed)
{
    if (!m_model->isOpen(cell))
        return;
    setCurrentIndex(cell);
    using Kind = CellEditors::Kind;
    if (cell.column() == SiparisModel::colourColumn)
        m_editors->open(cell, Kind::Colour, 0, typed);
    else if (m_model->isQuantity(cell.column()))
        m_editors->open(cell, Kind::Quantity, quantityDigits, typed);
    else if (cell.column() == SiparisModel::modelColumn)
        m_editors->open(cell, Kind::Text, m_modelCharacters, typed);
    else
        m_editors->open(cell, Kind::Text, m_noteCharacters, typed);
}

bool SiparisGrid::startsEditor(const QKeyEvent *event) const
{
    return typesCharacter(*event) && m_model->isOpen(currentIndex()) &&
           (!m_model->isQuantity(currentIndex().column()) || isDecimalDigit(event->text().front()));
}

void SiparisGrid::keyPressEvent(QKeyEvent *event)
{
    if (takeScan(event))
        return;
    // An editor that was left with a text not yet taken is finished first.
    const QModelIndex cell = currentIndex();
    if (isEnter(*event) || event->key() == Qt::Key_F2) {
        if (!isScannerEnter(event) && finishEdit())
            startEditor(cell);
    } else if (event->key() == Qt::Key_Insert) {
        if (finishEdit())
            SatirAc();
    } else if (event->key() == Qt::Key_Delete) {
        if (cell.isValid() && finishEdit())
            Q_EMIT rowRemovalAsked(cell.row());
    } else if (event->key() == Qt::Key_Escape) {
        Q_EMIT abandoned();
    } else if (startsEditor(event)) {
        if (finishEdit())
            startEditor(cell, event->text());
    } else if (!typesCharacter(*event)) {
        QTableView::keyPressEvent(event);
    }
}

bool SiparisGrid::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_editors->editor())
        return QTableView::eventFilter(watched, event);
    if (event->type() == QEvent::KeyPress)
        return editorKey(static_cast<QKeyEvent *>(event));
    if (leavesForGood(*event))
        editorLeft();
    return false;
}

bool SiparisGrid::editorKey(QKeyEvent *event)
{
    if (takeScan(event))
        return true;
    const QModelIndex cell = m_editors->cell();
    const bool colour = cell.column() == SiparisModel::colourColumn;
    if (isEnter(*event) || event->key() == Qt::Key_Tab) {
        // Enter without a code asks for the list of models.
        const bool list = isEnter(*event) && cell.column() == SiparisModel::modelColumn &&
                          m_editors->text().trimmed().isEmpty();
        if (!isScannerEnter(event) && (list ? takeModel({}) : finishEdit()))
            goOn(cell);
    } else if (event->key() == Qt::Key_Backtab) {
        if (finishEdit())
            goTo(cell.row(), std::max(0, cell.column() - 1));
    } else if (event->key() == Qt::Key_Escape) {
        m_editors->close();
    } else if (!colour && (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down)) {
        const int row = cell.row() + (event->key() == Qt::Key_Up ? -1 : 1);
        if (finishEdit() && m_model->hasIndex(row, cell.column()))
            goTo(row, cell.column());
    } else {
        return colour && m_editors->typeColour(event);
    }
    return true;
}

/// The focus went to another control: what was typed is taken, except that a
/// model is only looked up when the user goes on in the grid or saves.
void SiparisGrid::editorLeft()
{
    const bool model = m_editors->cell().column() == SiparisModel::modelColumn;
    if (!m_taking && !(model && m_editors->isChanged()))
        finishEdit();
}

void SiparisGrid::goOn(const QModelIndex &from)
{
    const int row = from.row();
    if (from.column() == SiparisModel::modelColumn && m_outcome == ModelOutcome::Counted) {
        goToNextRow(row);
        return;
    }
    const SiparisSatiri &satir = m_model->rowAt(row);
    if (from.column() == m_model->noteColumn()) {
        const bool isLast = row + 1 == m_model->rowCount();
        if (!isLast || (!satir.model.isEmpty() && !satir.renk.isEmpty()))
            goToNextRow(row);
        return;
    }
    int column = from.column() + 1;
    if (column == SiparisModel::colourColumn && !satir.renk.isEmpty())
        ++column;
    while (m_model->isQuantity(column) && !m_model->isYellow(row, column))
        ++column;
    goTo(row, column);
}

void SiparisGrid::goToNextRow(int row)
{
    if (row + 1 == m_model->rowCount())
        m_model->addRow();
    goTo(row + 1, SiparisModel::modelColumn);
}

} // namespace kuyum
