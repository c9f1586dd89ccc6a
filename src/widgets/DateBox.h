#pragma once

#include <initializer_list>
#include <QDate>
#include <QLineEdit>

namespace kuyum {

class Messages;

/// The program's box for a date, day.month.year, behind the mask 99.99.9999.
/// It takes 5.1.27, 05.01.2027 and 05012027; what stands in it when it is left
/// and is a date is written out in full. Up and down step through the part
/// that the cursor stands in, and through the days when all is selected; F4 or
/// the button in the box opens the calendar.
class DateBox : public QLineEdit
{
    Q_OBJECT

public:
    explicit DateBox(QWidget *parent = nullptr);

    /// What stands in the box; invalid when that is no date.
    QDate date() const;
    void setDate(QDate date);
    /// The date that stood in it last.
    QDate lastDate() const { return m_lastDate; }
    /// Nothing but the mask stands in it.
    bool isBlank() const;
    /// A whole date, and the calendar's button.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    /// Another date stands in the box, typed to its end or chosen.
    void dateChanged(QDate date);
    /// The user goes on to another control with a text that is no date.
    void leftInvalid();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void choose(QDate date);
    void step(int by);
    bool pasteDate();
    void openCalendar();

    QDate m_lastDate;
};

/// Keeps the user, with a message, in a box that he leaves with a text that is
/// no date. On his way to a button he is not held up: the button's action asks
/// holdDates(), and one that needs no dates may go on.
void keepDate(DateBox &box, Messages &messages);
/// Whether each of the boxes holds a date; else says so and goes into the first
/// one that does not. Asked by every action that takes their dates.
bool holdDates(std::initializer_list<DateBox *> boxes, Messages &messages);

} // namespace kuyum
