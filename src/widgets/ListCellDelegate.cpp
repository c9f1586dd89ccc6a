#include "ListCellDelegate.h"

#include <QAbstractItemView>
#include <QPainter>

namespace kuyum {

void ListCellDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                             const QModelIndex &index) const
{
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const QString text = cell.text;
    cell.text.clear();
    cell.state.setFlag(QStyle::State_HasFocus, false);
    const QStyle *style = option.widget->style();
    style->drawControl(QStyle::CE_ItemViewItem, &cell, painter, option.widget);

    const bool selected = option.state.testFlag(QStyle::State_Selected);
    const QPalette::ColorRole role = selected ? QPalette::HighlightedText : QPalette::Text;
    const QRect room = cell.rect.adjusted(padding, 0, -padding, 0);
    const bool wraps = cell.features.testFlag(QStyleOptionViewItem::WrapText);
    const int flags = int(cell.displayAlignment) | (wraps ? Qt::TextWordWrap : 0);
    painter->setFont(cell.font);
    style->drawItemText(
        painter, room, flags, cell.palette, true,
        wraps ? text : cell.fontMetrics.elidedText(text, Qt::ElideRight, room.width()), role);

    const auto *grid = qobject_cast<const QAbstractItemView *>(option.widget);
    if (grid == nullptr || grid->currentIndex() != index)
        return;
    painter->setPen(QPen(option.palette.color(role), 1, Qt::DotLine));
    painter->drawRect(option.rect.adjusted(2, 2, -3, -3));
}

QSize ListCellDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    // Before it is laid out a cell has no width that its text could wrap in.
    const bool wraps = option.features.testFlag(QStyleOptionViewItem::WrapText) &&
                       option.rect.width() > 2 * padding;
    const QRect room(0, 0, option.rect.width() - 2 * padding, 0);
    const QString text = index.data().toString();
    const QRect needed =
        wraps ? option.fontMetrics.boundingRect(room, Qt::TextWordWrap, text)
              : QRect(0, 0, option.fontMetrics.horizontalAdvance(text) + 1, // it is rounded
                      option.fontMetrics.height());
    return needed.size() + QSize(2 * padding, lineSpace);
}

} // namespace kuyum
