#include "DateBox.h"

#include "Dates.h"
#include "EntryControls.h"
#include "Messages.h"

#include <algorithm>
#include <QAbstractButton>
#include <QAction>
#include <QCalendarWidget>
#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <QShortcut>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

// Where the mask's parts end.
constexpr int dayEnd = 2;
constexpr int monthEnd = 5;

QIcon calendarIcon(const QWidget &box)
{
    constexpr int side = 16;
    constexpr QRectF sheet(2.5, 3.5, 11, 10);
    const qreal dots = box.devicePixelRatioF();
    QPixmap picture(QSize(side, side) * dots);
    picture.setDevicePixelRatio(dots);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    const QColor line = box.palette().color(QPalette::Active, QPalette::PlaceholderText);
    painter.setPen(line);
    painter.drawRect(sheet);
    painter.fillRect(QRectF(sheet.topLeft(), QSizeF(sheet.width(), 3)), line);
    for (const qreal x : {5.0, 8.0, 11.0}) {
        for (const qreal y : {8.5, 11.0})
            painter.fillRect(QRectF(x - 0.75, y - 0.75, 1.5, 1.5), line);
    }
    return picture;
}

/// Beside the box, and whole on its screen.
QPoint placeFor(const QWidget &popup, const QWidget &box)
{
    const QRect screen = box.screen()->availableGeometry();
    const QSize size = popup.sizeHint();
    QPoint place = box.mapToGlobal(box.rect().bottomLeft());
    if (place.y() + size.height() > screen.bottom())
        place.setY(box.mapToGlobal(QPoint()).y() - size.height());
    return {std::clamp(place.x(), screen.left(),
                       std::max(screen.left(), screen.right() - size.width())),
            std::max(screen.top(), place.y())};
}

void refuse(DateBox &box, Messages &messages)
{
    messages.say(box.window(), u"Tarih Hatali."_s);
    box.setFocus(Qt::OtherFocusReason);
    box.selectAll();
}

} // namespace

DateBox::DateBox(QWidget *parent) : QLineEdit(parent)
{
    setInputMask(u"99.99.9999;_"_s);
    QAction *calendar = addAction(calendarIcon(*this), TrailingPosition);
    calendar->setToolTip(u"Takvim (F4)"_s);
    connect(calendar, &QAction::triggered, this, &DateBox::openCalendar);
}

QDate DateBox::date() const
{
    return typedDate(text());
}

void DateBox::setDate(QDate date)
{
    setText(formatDate(date));
    if (date == m_lastDate)
        return;
    m_lastDate = date;
    Q_EMIT dateChanged(date);
}

bool DateBox::isBlank() const
{
    const QString typed = text();
    return std::none_of(typed.begin(), typed.end(), [](QChar c) { return c.isDigit(); });
}

QSize DateBox::sizeHint() const
{
    constexpr int usualLetters = 17; // that a line asks room for
    const QFontMetrics metrics = fontMetrics();
    const int date = metrics.horizontalAdvance(u"00.00.0000_"_s);
    const QSize usual = QLineEdit::sizeHint();
    return {usual.width() + date - usualLetters * metrics.horizontalAdvance(u'x'), usual.height()};
}

void DateBox::keyPressEvent(QKeyEvent *event)
{
    static const QString separators = u"/-,"_s;
    const bool up = event->key() == Qt::Key_Up;
    const bool alone = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    if (event->key() == Qt::Key_F4 ||
        (event->key() == Qt::Key_Down && event->modifiers() == Qt::AltModifier)) {
        openCalendar();
    } else if (alone && (up || event->key() == Qt::Key_Down)) {
        step(up ? 1 : -1);
    } else if (typesCharacter(*event) && separators.contains(event->text())) {
        QKeyEvent point(event->type(), Qt::Key_Period, event->modifiers(), u"."_s);
        QLineEdit::keyPressEvent(&point);
    } else if (!event->matches(QKeySequence::Paste) || !pasteDate()) {
        QLineEdit::keyPressEvent(event);
    }
}

/// The mask puts the cursor where it likes when the focus comes, and so does the
/// click that brings it: the text is selected after them. Coming back from another
/// window to a text that is being typed does not count.
void DateBox::focusInEvent(QFocusEvent *event)
{
    QLineEdit::focusInEvent(event);
    const Qt::FocusReason reason = event->reason();
    if (reason == Qt::MouseFocusReason)
        QMetaObject::invokeMethod(this, &QLineEdit::selectAll, Qt::QueuedConnection);
    else if (reason != Qt::PopupFocusReason &&
             (reason != Qt::ActiveWindowFocusReason || !isModified()))
        selectAll();
}

void DateBox::focusOutEvent(QFocusEvent *event)
{
    QLineEdit::focusOutEvent(event);
    if (!leavesForGood(*event))
        return;
    const QDate entered = date();
    if (entered.isValid())
        setDate(entered);
    else
        Q_EMIT leftInvalid();
}

/// As the user, not the screen, sets it.
void DateBox::choose(QDate date)
{
    setDate(date);
    setModified(true);
}

void DateBox::step(int by)
{
    const QDate from = date();
    if (!from.isValid())
        return;
    const bool whole = hasSelectedText();
    const int place = cursorPosition();
    if (whole || place <= dayEnd)
        choose(from.addDays(by));
    else
        choose(place <= monthEnd ? from.addMonths(by) : from.addYears(by));
    if (whole)
        selectAll();
    else
        setCursorPosition(place);
}

/// Whole: character by character the mask would make another date of 1/10/2027.
bool DateBox::pasteDate()
{
    const QDate pasted = typedDate(QGuiApplication::clipboard()->text());
    if (pasted.isValid())
        choose(pasted);
    return pasted.isValid();
}

void DateBox::openCalendar()
{
    auto *calendar = new QCalendarWidget(this);
    calendar->setWindowFlags(Qt::Popup);
    calendar->setAttribute(Qt::WA_DeleteOnClose);
    calendar->setObjectName(u"takvim"_s);
    calendar->setAccessibleName(u"Takvim"_s);
    calendar->setLocale(QLocale(QLocale::Turkish, QLocale::Turkey));
    calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    calendar->setSelectedDate(date().isValid() ? date() : QDate::currentDate());
    const auto take = [this, calendar](QDate chosen) {
        choose(chosen);
        calendar->close();
        setFocus(Qt::PopupFocusReason);
    };
    connect(calendar, &QCalendarWidget::activated, this, take);
    connect(calendar, &QCalendarWidget::clicked, this, take);
    connect(new QShortcut(Qt::Key_Escape, calendar), &QShortcut::activated, calendar,
            &QWidget::close);
    calendar->move(placeFor(*calendar, *this));
    // As a menu does: the box under it is not left.
    calendar->setFocus(Qt::PopupFocusReason);
    calendar->show();
}

void keepDate(DateBox &box, Messages &messages)
{
    // When the user has arrived: a message in between would swallow his click.
    QObject::connect(
        &box, &DateBox::leftInvalid, &box,
        [&box, &messages] {
            const QWidget *reached = box.window()->focusWidget();
            if (box.isVisible() && box.isEnabled() && !box.date().isValid() &&
                qobject_cast<const QAbstractButton *>(reached) == nullptr)
                refuse(box, messages);
        },
        Qt::QueuedConnection);
}

bool holdDates(std::initializer_list<DateBox *> boxes, Messages &messages)
{
    for (DateBox *box : boxes) {
        if (!box->date().isValid()) {
            refuse(*box, messages);
            return false;
        }
    }
    return true;
}

} // namespace kuyum
