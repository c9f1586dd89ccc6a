#include "MarkedRowDelegate.h"

#include <QPainter>

namespace kuyum {

void MarkedRowDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const
{
    constexpr int thickness = 3;
    const bool marked = index.data(m_mark).isValid();
    QStyleOptionViewItem cell = option;
    const bool framed = marked && option.state.testFlag(QStyle::State_Selected);
    // The list has filled the row with the selection's colour already.
    if (framed)
        painter->fillRect(option.rect, option.palette.base());
    if (marked)
        cell.state.setFlag(QStyle::State_Selected, false);
    ListCellDelegate::paint(painter, cell, index);
    if (!framed)
        return;
    const QColor frame = option.palette.color(QPalette::Text);
    painter->fillRect(option.rect.x(), option.rect.y(), option.rect.width(), thickness, frame);
    painter->fillRect(option.rect.x(), option.rect.bottom() + 1 - thickness, option.rect.width(),
                      thickness, frame);
}

} // namespace kuyum
