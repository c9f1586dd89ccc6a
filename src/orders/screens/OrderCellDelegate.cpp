#include "OrderCellDelegate.h"

#include <QAbstractItemView>
#include <QPainter>

namespace kuyum {

void OrderCellDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const
{
    constexpr int frame = 3;
    QStyleOptionViewItem plain = option;
    plain.state &= ~(QStyle::State_HasFocus | QStyle::State_MouseOver);
    EditorDelegate::paint(painter, plain, index);

    const auto *grid = qobject_cast<const QAbstractItemView *>(option.widget);
    if (grid == nullptr || index != grid->currentIndex())
        return;
    const bool coloured = index.data(Qt::BackgroundRole).isValid();
    QColor color = coloured ? QColor(Qt::black) : option.palette.color(QPalette::Highlight);
    if (!option.state.testFlag(QStyle::State_HasFocus))
        color.setAlpha(90);
    painter->save();
    painter->setPen(QPen(color, frame, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter->drawRect(option.rect.adjusted(frame / 2, frame / 2, -frame / 2 - 1, -frame / 2 - 1));
    painter->restore();
}

/// White means nothing while no order is open, and would glare from a dark window.
void OrderCellDelegate::initStyleOption(QStyleOptionViewItem *option,
                                        const QModelIndex &index) const
{
    EditorDelegate::initStyleOption(option, index);
    if (option->state.testFlag(QStyle::State_Enabled) || option->widget == nullptr)
        return;
    option->backgroundBrush = QBrush();
    option->palette = option->widget->palette();
}

} // namespace kuyum
