#include "EditorDelegate.h"

#include "EntryControls.h"

#include <QAbstractItemView>

namespace kuyum {

bool EditorDelegate::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusOut && !leavesForGood(*event))
        return false;
    return QStyledItemDelegate::eventFilter(watched, event);
}

void finishCellEdit(QAbstractItemView &grid)
{
    QWidget *editor = grid.indexWidget(grid.currentIndex());
    if (editor == nullptr)
        return;
    QAbstractItemDelegate *delegate = grid.itemDelegateForIndex(grid.currentIndex());
    Q_EMIT delegate->commitData(editor);
    Q_EMIT delegate->closeEditor(editor, QAbstractItemDelegate::NoHint);
}

} // namespace kuyum
