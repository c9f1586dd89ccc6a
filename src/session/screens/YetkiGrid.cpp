#include "YetkiGrid.h"

#include "EntryControls.h"
#include "ListHeading.h"
#include "MarkedRowDelegate.h"
#include "Theme.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QStandardItemModel>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

enum Column { No, MenuTanimi };

} // namespace

YetkiGrid::YetkiGrid(QWidget *parent) : QTableView(parent), m_model(new QStandardItemModel(this))
{
    m_model->setHorizontalHeaderLabels({u"NO"_s, u"MENU TANIMI"_s});
    m_model->horizontalHeaderItem(No)->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_model->horizontalHeaderItem(MenuTanimi)->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    setModel(m_model);
    setItemDelegate(new MarkedRowDelegate(Qt::ForegroundRole, this));
    setHorizontalHeader(new ListHeading(this));
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setSelectionBehavior(SelectRows);
    setTabKeyNavigation(false);
    setCornerButtonEnabled(false);
    setWordWrap(false);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + ListCellDelegate::lineSpace);
    horizontalHeader()->setStretchLastSection(true);
    setColumnWidth(No, fontMetrics().averageCharWidth() * 8);
}

void YetkiGrid::Yetkidoldur(const QList<MenuOgesi> &items, const QList<qint32> &rights)
{
    m_model->setRowCount(0);
    for (const MenuOgesi &item : items) {
        auto *number = new QStandardItem;
        number->setData(item.m_ID, Qt::DisplayRole);
        number->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        m_model->appendRow({number, new QStandardItem(item.m_Adi)});
        if (!rights.contains(item.m_ID))
            continue;
        setCurrentIndex(number->index());
        toggle();
    }
    setCurrentIndex(m_model->index(0, No));
}

void YetkiGrid::toggle()
{
    const bool marks = !isMarked(currentIndex().row());
    SatirYaziRenk(*this, marks ? themeColors(palette()).mark : QColor());
    // Colour and weight say nothing to who has the screen read out.
    m_model->setData(currentIndex().siblingAtColumn(MenuTanimi),
                     marks ? QVariant(u"açık"_s) : QVariant(), Qt::AccessibleDescriptionRole);
}

bool YetkiGrid::isMarked(int row) const
{
    return m_model->index(row, No).data(Qt::ForegroundRole).isValid();
}

qint32 YetkiGrid::itemAt(int row) const
{
    return m_model->index(row, No).data().toInt();
}

QList<qint32> YetkiGrid::marked() const
{
    QList<qint32> items;
    for (int row = 0; row < m_model->rowCount(); ++row) {
        if (isMarked(row))
            items.append(itemAt(row));
    }
    return items;
}

void YetkiGrid::keyPressEvent(QKeyEvent *event)
{
    if (isEnter(*event)) {
        event->ignore(); // the screen's, which goes on
        return;
    }
    if (event->key() != Qt::Key_Space ||
        event->modifiers().testAnyFlags(Qt::ControlModifier | Qt::AltModifier)) {
        QTableView::keyPressEvent(event);
        return;
    }
    // Held down, it would turn the mark over and over.
    if (!event->isAutoRepeat() && currentIndex().isValid())
        Q_EMIT toggleAsked();
}

void YetkiGrid::mouseDoubleClickEvent(QMouseEvent *event)
{
    const QModelIndex cell = indexAt(event->position().toPoint());
    if (event->button() != Qt::LeftButton || !cell.isValid())
        return;
    setCurrentIndex(cell);
    Q_EMIT toggleAsked();
}

} // namespace kuyum
