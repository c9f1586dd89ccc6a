#pragma once

#include <QStyledItemDelegate>

/// Paints a cell of the order's grid. The current cell is framed, not filled:
/// yellow and white mean something and must stay visible under the cursor.
class OrderCellDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
};
