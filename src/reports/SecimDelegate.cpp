#include "SecimDelegate.h"

#include <QPainter>

void SecimDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const
{
    constexpr int thickness = 3;
    const bool marked = index.data(Qt::BackgroundRole).isValid();
    QStyleOptionViewItem cell = option;
    if (marked)
        cell.state.setFlag(QStyle::State_Selected, false);
    ListCellDelegate::paint(painter, cell, index);
    if (!marked || !option.state.testFlag(QStyle::State_Selected))
        return;
    const QColor frame = option.palette.color(QPalette::Text);
    painter->fillRect(option.rect.x(), option.rect.y(), option.rect.width(), thickness, frame);
    painter->fillRect(option.rect.x(), option.rect.bottom() + 1 - thickness, option.rect.width(),
                      thickness, frame);
}
