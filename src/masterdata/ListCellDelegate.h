#pragma once

#include <QStyledItemDelegate>

/// Paints the cells of the lookup list, with room beside their texts, and
/// frames the current one: F12 and sorting go by its column, which the
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
