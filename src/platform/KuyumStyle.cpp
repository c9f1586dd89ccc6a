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

static constexpr int textIndent = 4;

/// An editor inside a grid cell takes the cell's size.
static bool isInCell(const QWidget *widget)
{
    return widget != nullptr && widget->parentWidget() != nullptr &&
           widget->parentWidget()->objectName() == "qt_scrollarea_viewport"_L1;
}

/// The button that Enter presses: filled with gold.
static bool isDefaultButton(const QStyleOption *option)
{
    const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option);
    return button != nullptr && button->features.testFlag(QStyleOptionButton::DefaultButton) &&
           button->state.testFlag(QStyle::State_Enabled);
}

static void drawPanel(QPainter *painter, const QRect &rect, const QColor &fill, const QPen &edge)
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(edge);
    painter->setBrush(fill);
    const double inset = edge.widthF() / 2;
    painter->drawRoundedRect(QRectF(rect).adjusted(inset, inset, -inset, -inset), corner, corner);
    painter->restore();
}

static void drawLinePanel(const QStyleOption *option, QPainter *painter)
{
    const bool focused = option->state.testFlag(QStyle::State_HasFocus);
    const QColor edge =
        focused ? themeColors(option->palette).accent : option->palette.color(QPalette::Mid);
    drawPanel(painter, option->rect, option->palette.color(QPalette::Base),
              QPen(edge, focused ? 2 : 1));
}

static void drawButtonPanel(const QStyleOption *option, QPainter *painter)
{
    const ThemeColors colors = themeColors(option->palette);
    const bool enabled = option->state.testFlag(QStyle::State_Enabled);
    const bool pressed = option->state.testAnyFlags(QStyle::State_Sunken | QStyle::State_On);
    const bool focused = enabled && option->state.testFlag(QStyle::State_HasFocus);
    const bool gold = isDefaultButton(option);

    QColor fill = gold ? colors.accent : option->palette.color(QPalette::Button);
    if (pressed)
        fill = colors.dark && !gold ? fill.lighter(140) : fill.darker(112);
    else if (enabled && option->state.testFlag(QStyle::State_MouseOver))
        fill = colors.dark ? fill.lighter(118) : fill.darker(gold ? 94 : 104);
    QColor edge = gold ? colors.accent.darker(115) : option->palette.color(QPalette::Mid);
    if (focused)
        edge = gold ? option->palette.color(QPalette::WindowText) : colors.accent;

    drawPanel(painter, option->rect, fill, QPen(edge, focused ? 2 : 1));
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
    case PE_PanelLineEdit: {
        // Inside a list or a cell the frame is that of the list or the cell.
        const auto *frame = qstyleoption_cast<const QStyleOptionFrame *>(option);
        if (frame == nullptr || frame->lineWidth <= 0 || isInCell(widget))
            break;
        drawLinePanel(option, painter);
        return;
    }
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
        break;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void KuyumStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                    QPainter *painter, const QWidget *widget) const
{
    const auto *list = qstyleoption_cast<const QStyleOptionComboBox *>(option);
    if (control != CC_ComboBox || list == nullptr || list->editable || isInCell(widget)) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        return;
    }
    QStyleOptionButton panel;
    panel.QStyleOption::operator=(*option);
    drawButtonPanel(&panel, painter);
    QStyleOption arrow = *option;
    arrow.rect = subControlRect(control, option, SC_ComboBoxArrow, widget);
    const int inset = (arrow.rect.height() - 14) / 2;
    arrow.rect.adjust(0, inset, 0, -inset);
    drawPrimitive(PE_IndicatorArrowDown, &arrow, painter, widget);
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
    if (isInCell(widget))
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

QRect KuyumStyle::subElementRect(SubElement element, const QStyleOption *option,
                                 const QWidget *widget) const
{
    const QRect rect = QProxyStyle::subElementRect(element, option, widget);
    if (element == SE_LineEditContents && !isInCell(widget))
        return rect.adjusted(textIndent, 0, -textIndent, 0);
    return rect;
}

QRect KuyumStyle::subControlRect(ComplexControl control, const QStyleOptionComplex *option,
                                 SubControl part, const QWidget *widget) const
{
    const QRect rect = QProxyStyle::subControlRect(control, option, part, widget);
    if (control == CC_ComboBox && part == SC_ComboBoxEditField && !isInCell(widget))
        return rect.adjusted(textIndent, 0, 0, 0);
    return rect;
}

int KuyumStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                          QStyleHintReturn *returnData) const
{
    // Alt shows nothing new: the marked letters are always to be seen.
    if (hint == SH_UnderlineShortcut)
        return 1;
    return QProxyStyle::styleHint(hint, option, widget, returnData);
}
