#include "RateGrid.h"

#include "EntryControls.h"
#include "KurModel.h"
#include "RateDelegate.h"
#include "Twips.h"

#include <QHeaderView>
#include <QKeyEvent>

namespace kuyum {

/// The currencies stand in a fixed column, which the cursor does not enter.
static QModelIndex besideFixed(const QModelIndex &cell)
{
    return cell.column() == KurModel::currencyColumn ? cell.siblingAtColumn(KurModel::sellingColumn)
                                                     : cell;
}

RateGrid::RateGrid(QWidget *parent) : QTableView(parent)
{
    setEditTriggers(EditKeyPressed | AnyKeyPressed);
    setSelectionMode(NoSelection);
    setTabKeyNavigation(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setHighlightSections(false);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 10);
    connect(this, &QTableView::clicked, this, [this](const QModelIndex &cell) {
        setCurrentIndex(besideFixed(cell));
        editRate(cell);
    });
}

void RateGrid::setMessages(Messages &messages)
{
    auto *delegate = new RateDelegate(messages, this);
    setItemDelegate(delegate);
    connect(delegate, &RateDelegate::left, this, &RateGrid::goOn);
}

void RateGrid::spreadColumns()
{
    const bool both = model()->columnCount() > KurModel::buyingColumn;
    const auto pixels = [this](Twips width) { return int(width.pixels(logicalDpiX())); };
    setColumnWidth(KurModel::currencyColumn, pixels(1300_tw));
    for (int column = KurModel::sellingColumn; column < model()->columnCount(); ++column)
        setColumnWidth(column, pixels(both ? 2500_tw : 2700_tw));
    setFixedWidth(pixels(both ? 6800_tw : 4425_tw));
}

void RateGrid::goToFirst()
{
    setCurrentIndex(model()->index(0, KurModel::sellingColumn));
    setFocus(Qt::OtherFocusReason);
}

void RateGrid::finishEdit()
{
    finishCellEdit(*this);
}

void RateGrid::keyPressEvent(QKeyEvent *event)
{
    if (isEnter(*event))
        editRate(currentIndex());
    else
        QTableView::keyPressEvent(event);
}

QModelIndex RateGrid::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    return besideFixed(QTableView::moveCursor(action, modifiers));
}

/// Tab walks the rates also while no editor is open, and leaves at their ends.
bool RateGrid::focusNextPrevChild(bool next)
{
    const int target = currentPlace() + (next ? 1 : -1);
    if (!hasFocus() || target < 0 || target >= model()->rowCount() * ratesPerRow())
        return QTableView::focusNextPrevChild(next);
    goToCell(target);
    return true;
}

int RateGrid::ratesPerRow() const
{
    return model()->columnCount() - KurModel::sellingColumn;
}

int RateGrid::currentPlace() const
{
    const QModelIndex cell = currentIndex();
    return cell.row() * ratesPerRow() + cell.column() - KurModel::sellingColumn;
}

void RateGrid::editRate(const QModelIndex &cell)
{
    if (cell.flags().testFlag(Qt::ItemIsEditable))
        edit(cell);
}

void RateGrid::goOn(int key)
{
    const QModelIndex cell = currentIndex();
    const int rates = ratesPerRow();
    const int place = currentPlace();
    if (key == Qt::Key_Tab)
        goToCell(place + 1);
    else if (key == Qt::Key_Backtab)
        goToCell(std::max(0, place - 1));
    else if (key == Qt::Key_Up)
        goToCell(place < rates ? place : place - rates);
    else if (key == Qt::Key_Down && cell.row() + 1 < model()->rowCount())
        goToCell(place + rates);
    else if (key == Qt::Key_Return || key == Qt::Key_Enter)
        goDown();
}

void RateGrid::goDown()
{
    const QModelIndex cell = currentIndex();
    if (cell.row() + 1 < model()->rowCount())
        setCurrentIndex(cell.siblingAtRow(cell.row() + 1));
    else if (cell.column() + 1 < model()->columnCount())
        setCurrentIndex(model()->index(0, cell.column() + 1));
    else
        Q_EMIT finished();
}

/// To a rate by its place in reading order.
void RateGrid::goToCell(int place)
{
    const int rates = ratesPerRow();
    if (place < model()->rowCount() * rates)
        setCurrentIndex(model()->index(place / rates, KurModel::sellingColumn + place % rates));
    else
        Q_EMIT finished();
}

} // namespace kuyum
