#pragma once

#include <QStyledItemDelegate>

namespace kuyum {

/// Paints the cells of lists and reports, with room beside their texts, and
/// frames the current one: keys such as F9 and F12 go by its column, which a
/// highlighted row alone does not show.
class ListCellDelegate : public QStyledItemDelegate
{
public:
    static constexpr int padding = 6;    ///< on both sides of a text
    static constexpr int lineSpace = 10; ///< of a row, beyond its text's height

    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};

} // namespace kuyum
