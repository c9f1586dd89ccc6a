#pragma once

#include "ListCellDelegate.h"

namespace kuyum {

/// Paints the cells of a list whose rows can be marked by a colour of their
/// own: on a marked row the selection is only a frame, so that the mark is seen.
class MarkedRowDelegate : public ListCellDelegate
{
public:
    /// A row is marked where its cells have a colour in this role.
    MarkedRowDelegate(Qt::ItemDataRole mark, QObject *parent)
        : ListCellDelegate(parent), m_mark(mark)
    {
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

private:
    Qt::ItemDataRole m_mark;
};

} // namespace kuyum
