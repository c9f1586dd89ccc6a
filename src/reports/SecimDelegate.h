#pragma once

#include "ListCellDelegate.h"

/// Keeps a red mark to be seen also on the current row, which lines above and
/// below tell then.
class SecimDelegate : public ListCellDelegate
{
public:
    using ListCellDelegate::ListCellDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
};
