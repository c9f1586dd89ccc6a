#pragma once

#include <QDate>
#include <QLineEdit>

/// A box for a date, day.month.year, behind the mask 99.99.9999. What stands
/// in it when it is left and is a date is written out in full.
class DateBox : public QLineEdit
{
    Q_OBJECT

public:
    explicit DateBox(QWidget *parent = nullptr);

    /// Invalid when the text is no date.
    QDate date() const;
    void setDate(QDate date);

Q_SIGNALS:
    /// The user goes on to another control with a text that is no date.
    void leftInvalid();

protected:
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
};
