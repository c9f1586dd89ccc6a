#pragma once

#include "OrderCellDelegate.h"

namespace kuyum {

class Messages;

/// Edits a rate in place. The keys that leave the editor are the grid's matter.
class RateDelegate : public OrderCellDelegate
{
    Q_OBJECT

public:
    RateDelegate(Messages &messages, QObject *parent);

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &cell) const override;

Q_SIGNALS:
    /// The editor is closed, its text taken, by this key.
    void left(int key);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    Messages &m_messages;
};

} // namespace kuyum
