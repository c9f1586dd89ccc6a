#pragma once

#include "EditorDelegate.h"

namespace kuyum {

/// Paints a cell of the order's grid. The current cell is framed, not filled:
/// yellow and white mean something and must stay visible under the cursor.
class OrderCellDelegate : public EditorDelegate
{
    Q_OBJECT

public:
    using EditorDelegate::EditorDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;
};

} // namespace kuyum
