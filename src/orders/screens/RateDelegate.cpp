#include "RateDelegate.h"

#include "EntryControls.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QRegularExpressionValidator>

using namespace Qt::StringLiterals;

namespace kuyum {

/// Before the point as many digits as a number keeps, or it would be shown as
/// another one than was typed.
static constexpr QStringView rateText = u"[0-9]{0,15}([.,][0-9.,]*)?";

RateDelegate::RateDelegate(Messages &messages, QObject *parent)
    : OrderCellDelegate(parent), m_messages(messages)
{
}

QWidget *RateDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &,
                                    const QModelIndex &cell) const
{
    auto *txtEdit = new QLineEdit(parent);
    txtEdit->setObjectName(u"txtEdit"_s);
    txtEdit->setAccessibleName(cell.data(Qt::AccessibleTextRole).toString());
    txtEdit->setAlignment(Qt::AlignRight);
    txtEdit->setValidator(
        new QRegularExpressionValidator(QRegularExpression(rateText.toString()), txtEdit));
    keepNumeric(*txtEdit, m_messages);
    return txtEdit;
}

bool RateDelegate::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return OrderCellDelegate::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Up:
    case Qt::Key_Down: {
        auto *txtEdit = static_cast<QWidget *>(watched);
        Q_EMIT commitData(txtEdit);
        Q_EMIT closeEditor(txtEdit, NoHint);
        Q_EMIT left(key);
        return true;
    }
    default:
        return OrderCellDelegate::eventFilter(watched, event);
    }
}

} // namespace kuyum
