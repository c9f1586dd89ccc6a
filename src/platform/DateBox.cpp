#include "DateBox.h"

#include "Dates.h"

#include <QFocusEvent>

using namespace Qt::StringLiterals;

DateBox::DateBox(QWidget *parent) : QLineEdit(parent)
{
    setInputMask(u"99.99.9999;_"_s);
}

QDate DateBox::date() const
{
    return parseDate(text());
}

void DateBox::setDate(QDate date)
{
    setText(formatDate(date));
}

void DateBox::focusInEvent(QFocusEvent *event)
{
    QLineEdit::focusInEvent(event);
    selectAll();
}

void DateBox::focusOutEvent(QFocusEvent *event)
{
    QLineEdit::focusOutEvent(event);
    // Another window in front does not mean that the entry is finished.
    if (event->reason() == Qt::ActiveWindowFocusReason || event->reason() == Qt::PopupFocusReason)
        return;
    const QDate entered = date();
    if (entered.isValid())
        setDate(entered);
    else
        Q_EMIT leftInvalid();
}
