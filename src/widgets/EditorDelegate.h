#pragma once

#include <QStyledItemDelegate>

class QAbstractItemView;

namespace kuyum {

/// Keeps its editor open while a message, a menu or another window is in front,
/// where Qt would close it. A box that refuses what is being typed comes back
/// to the editor, which stands as it did.
class EditorDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};

/// Takes what an editor over the grid's current cell holds, and closes it.
void finishCellEdit(QAbstractItemView &grid);

} // namespace kuyum
