#include "OrderCellDelegate.h"

#include <QPainter>

void OrderCellDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const
{
    constexpr int frame = 3;
    QStyleOptionViewItem plain = option;
    const bool current = option.state.testFlag(QStyle::State_Selected);
    plain.state &= ~(QStyle::State_Selected | QStyle::State_HasFocus | QStyle::State_MouseOver);
    QStyledItemDelegate::paint(painter, plain, index);
    if (!current)
        return;
    const bool coloured = index.data(Qt::BackgroundRole).isValid();
    const bool focused = option.state.testFlag(QStyle::State_HasFocus);
    QColor color = coloured ? QColor(Qt::black) : option.palette.color(QPalette::Highlight);
    if (!focused)
        color.setAlpha(100);
    painter->save();
    painter->setPen(QPen(color, frame, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter->drawRect(option.rect.adjusted(frame / 2, frame / 2, -frame / 2 - 1, -frame / 2 - 1));
    painter->restore();
}
