#pragma once

#include <QHeaderView>

namespace kuyum {

/// The headings of a list's columns. Their texts stand as far from the columns'
/// edges as those of the cells.
class ListHeading : public QHeaderView
{
public:
    explicit ListHeading(QWidget *parent = nullptr) : QHeaderView(Qt::Horizontal, parent)
    {
        setHighlightSections(false);
    }

protected:
    void initStyleOptionForIndex(QStyleOptionHeader *option, int column) const override
    {
        QHeaderView::initStyleOptionForIndex(option, column);
        const QChar thinSpace(0x2009);
        const bool right = option->textAlignment.testFlag(Qt::AlignRight);
        option->text = right ? option->text + thinSpace : thinSpace + option->text;
    }
};

} // namespace kuyum
