#include "MenuPanel.h"

#include "Theme.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QStyleOptionButton>
#include <QStylePainter>

using namespace Qt::StringLiterals;

namespace kuyum {

static constexpr int buttonCount = 20;
static constexpr int rowsPerColumn = 7;
/// Digits that follow one another faster than this are one number.
static constexpr int digitPause = 1200;

namespace {

/// A button that shows its number before its caption.
class MenuButton : public QPushButton
{
public:
    MenuButton(int number, QWidget *parent);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int m_number;
};

MenuButton::MenuButton(int number, QWidget *parent) : QPushButton(parent), m_number(number)
{
    setObjectName(u"CmdMenu%1"_s.arg(number));
    setAutoDefault(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize MenuButton::sizeHint() const
{
    return {230, fontMetrics().height() * 2 + 22};
}

void MenuButton::paintEvent(QPaintEvent *)
{
    QStyleOptionButton option;
    initStyleOption(&option);
    option.features &= ~QStyleOptionButton::DefaultButton;
    QStylePainter painter(this);
    painter.drawControl(QStyle::CE_PushButtonBevel, option);

    const ThemeColors colors = themeColors(palette());
    const QRect inside = rect().adjusted(12, 4, -10, -4);
    const int numberWidth = fontMetrics().horizontalAdvance(u"000"_s);
    painter.setPen(isEnabled() ? colors.accent : palette().color(QPalette::Mid));
    painter.drawText(QRect(inside.topLeft(), QSize(numberWidth, inside.height())),
                     Qt::AlignVCenter | Qt::AlignLeft, QString::number(m_number));
    painter.setPen(
        palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::ButtonText));
    painter.drawText(inside.adjusted(numberWidth, 0, 0, 0),
                     Qt::AlignVCenter | Qt::AlignLeft | Qt::TextWordWrap, text());
}

} // namespace

void focusFirst(const QList<QPushButton *> &buttons)
{
    for (QPushButton *button : buttons) {
        if (button->isEnabled()) {
            button->setFocus(Qt::TabFocusReason);
            return;
        }
    }
}

bool focusAlong(const QList<QPushButton *> &buttons, const QWidget *from, qsizetype step)
{
    qsizetype at = 0;
    while (at < buttons.size() && buttons[at] != from)
        ++at;
    for (at += step; at >= 0 && at < buttons.size(); at += step) {
        if (buttons[at]->isEnabled()) {
            buttons[at]->setFocus(Qt::TabFocusReason);
            return true;
        }
    }
    return false;
}

MenuPanel::MenuPanel(QWidget *parent) : QWidget(parent), m_grid(new QGridLayout(this))
{
    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    for (int number = 0; number < buttonCount; ++number) {
        auto *button = new MenuButton(number, this);
        button->hide();
        button->installEventFilter(this);
        connect(button, &QPushButton::clicked, this, [this, number] { Q_EMIT chosen(number); });
        m_buttons.append(button);
    }
}

void MenuPanel::showItems(const QList<MenuOgesi> &items)
{
    for (const MenuOgesi &item : items) {
        QPushButton *button = m_buttons.value(item.m_ID);
        if (button == nullptr || m_shown.contains(button))
            continue;
        const int place = int(m_shown.size());
        button->setText(item.m_Adi);
        button->setAccessibleName(item.m_Adi);
        m_grid->addWidget(button, place % rowsPerColumn, place / rowsPerColumn);
        button->show();
        if (!m_shown.isEmpty())
            setTabOrder(m_shown.last(), button);
        m_shown.append(button);
    }
}

bool MenuPanel::isOpen(int number) const
{
    QPushButton *button = m_buttons.value(number);
    return button != nullptr && m_shown.contains(button) && button->isEnabled();
}

/// Whether a second digit could still make it the number of a button.
bool MenuPanel::beginsNumber(int digit) const
{
    for (int second = 0; second < 10; ++second) {
        if (digit > 0 && isOpen(digit * 10 + second))
            return true;
    }
    return false;
}

void MenuPanel::typeDigit(QChar digit)
{
    const bool goesOn =
        m_typed.size() == 1 && m_sinceDigit.isValid() && m_sinceDigit.elapsed() < digitPause;
    m_sinceDigit.start();
    m_typed = goesOn ? m_typed + digit : QString(digit);
    const int number = m_typed.toInt();
    if (isOpen(number)) {
        m_buttons[number]->setFocus(Qt::ShortcutFocusReason);
        Q_EMIT numberTyped(number, true);
        return;
    }
    // Enter must not open what had the focus before.
    setFocus(Qt::ShortcutFocusReason);
    Q_EMIT numberTyped(number, m_typed.size() == 1 && beginsNumber(number));
}

/// Where a number without a button left the focus, the arrows lead back.
void MenuPanel::keyPressEvent(QKeyEvent *event)
{
    const QList<int> arrows = {Qt::Key_Down, Qt::Key_Up, Qt::Key_Right, Qt::Key_Left};
    if (arrows.contains(event->key()))
        focusFirst();
    else
        QWidget::keyPressEvent(event);
}

bool MenuPanel::moveFocus(const QWidget *from, int key)
{
    switch (key) {
    case Qt::Key_Down:
        focusAlong(m_shown, from, 1);
        return true;
    case Qt::Key_Up:
        focusAlong(m_shown, from, -1);
        return true;
    case Qt::Key_Right:
        focusAlong(m_shown, from, rowsPerColumn);
        return true;
    case Qt::Key_Left:
        if (!focusAlong(m_shown, from, -rowsPerColumn))
            Q_EMIT leftEdge();
        return true;
    default:
        return false;
    }
}

bool MenuPanel::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress &&
        moveFocus(qobject_cast<QWidget *>(watched), static_cast<QKeyEvent *>(event)->key()))
        return true;
    return QWidget::eventFilter(watched, event);
}

} // namespace kuyum
