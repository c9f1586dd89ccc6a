#include "KuyumStyle.h"

#include "Theme.h"

#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>
#include <QWidget>

using namespace Qt::StringLiterals;

static constexpr double corner = 5;
static constexpr int lowestControl = 34;

KuyumStyle::KuyumStyle() : QProxyStyle(QStyleFactory::create(u"Fusion"_s)) {}

/// The button that Enter presses: filled with gold.
static bool isDefaultButton(const QStyleOption *option)
{
    const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option);
    return button != nullptr && button->features.testFlag(QStyleOptionButton::DefaultButton) &&
           button->state.testFlag(QStyle::State_Enabled);
}

void KuyumStyle::drawButtonPanel(const QStyleOption *option, QPainter *painter) const
{
    const ThemeColors colors = themeColors(option->palette);
    const bool enabled = option->state.testFlag(State_Enabled);
    const bool pressed = option->state.testAnyFlags(State_Sunken | State_On);
    const bool focused = enabled && option->state.testFlag(State_HasFocus);
    const bool gold = isDefaultButton(option);

    QColor fill = gold ? colors.accent : option->palette.color(QPalette::Button);
    if (pressed)
        fill = colors.dark && !gold ? fill.lighter(140) : fill.darker(112);
    else if (enabled && option->state.testFlag(State_MouseOver))
        fill = colors.dark ? fill.lighter(118) : fill.darker(gold ? 94 : 104);
    QColor edge = gold ? colors.accent.darker(115) : option->palette.color(QPalette::Mid);
    if (focused)
        edge = gold ? option->palette.color(QPalette::WindowText) : colors.accent;

    const double width = focused ? 2 : 1;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(edge, width));
    painter->setBrush(fill);
    const double inset = width / 2;
    painter->drawRoundedRect(QRectF(option->rect).adjusted(inset, inset, -inset, -inset), corner,
                             corner);
    painter->restore();
}

void KuyumStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                               QPainter *painter, const QWidget *widget) const
{
    switch (element) {
    case PE_PanelButtonCommand:
        drawButtonPanel(option, painter);
        return;
    case PE_FrameDefaultButton:
        return;
    case PE_FrameFocusRect: {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(QPen(themeColors(option->palette).accent, 1.5));
        painter->setBrush(Qt::NoBrush);
        painter->drawRoundedRect(QRectF(option->rect).adjusted(1, 1, -1, -1), 3, 3);
        painter->restore();
        return;
    }
    default:
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void KuyumStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                             const QWidget *widget) const
{
    const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option);
    if (element == CE_PushButton && button != nullptr) {
        // The panel shows the focus itself.
        drawControl(CE_PushButtonBevel, option, painter, widget);
        QStyleOptionButton label = *button;
        label.rect = subElementRect(SE_PushButtonContents, option, widget);
        drawControl(CE_PushButtonLabel, &label, painter, widget);
        return;
    }
    if (element == CE_PushButtonLabel && isDefaultButton(option)) {
        QStyleOptionButton onGold = *button;
        onGold.palette.setColor(QPalette::ButtonText, themeColors(option->palette).accentText);
        QProxyStyle::drawControl(element, &onGold, painter, widget);
        return;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

int KuyumStyle::pixelMetric(PixelMetric metric, const QStyleOption *option,
                            const QWidget *widget) const
{
    switch (metric) {
    case PM_LayoutHorizontalSpacing:
    case PM_LayoutVerticalSpacing:
        return 10;
    case PM_LayoutLeftMargin:
    case PM_LayoutRightMargin:
    case PM_LayoutTopMargin:
    case PM_LayoutBottomMargin:
        return 14;
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
        return 0;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

QSize KuyumStyle::sizeFromContents(ContentsType type, const QStyleOption *option,
                                   const QSize &contents, const QWidget *widget) const
{
    QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    // An editor inside a grid cell takes the cell's height.
    const bool inCell = widget != nullptr && widget->parentWidget() != nullptr &&
                        widget->parentWidget()->objectName() == "qt_scrollarea_viewport"_L1;
    if (inCell)
        return size;
    switch (type) {
    case CT_PushButton:
        return size.expandedTo({96, lowestControl}) + QSize(8, 0);
    case CT_LineEdit:
    case CT_ComboBox:
    case CT_SpinBox:
        return size.expandedTo({0, lowestControl});
    default:
        return size;
    }
}

int KuyumStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                          QStyleHintReturn *returnData) const
{
    // Alt shows nothing new: the marked letters are always to be seen.
    if (hint == SH_UnderlineShortcut)
        return 1;
    return QProxyStyle::styleHint(hint, option, widget, returnData);
}
