#include "KuyumStyle.h"

#include "StylePainting.h"
#include "Theme.h"

#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace kuyum {

static constexpr int lowestControl = 34;

KuyumStyle::KuyumStyle() : QProxyStyle(QStyleFactory::create(u"Fusion"_s)) {}

static constexpr int textIndent = 4;
static constexpr int shortestHandle = 32;

/// An editor inside a grid cell takes the cell's size.
static bool isInCell(const QWidget *widget)
{
    return widget != nullptr && widget->parentWidget() != nullptr &&
           widget->parentWidget()->objectName() == "qt_scrollarea_viewport"_L1;
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
    case PE_Frame:
        drawViewFrame(option, painter);
        return;
    case PE_FrameFocusRect:
        drawFocusRing(option, painter);
        return;
    case PE_IndicatorCheckBox:
    case PE_IndicatorItemViewItemCheck:
        drawCheckBox(option, painter);
        return;
    case PE_IndicatorRadioButton:
        drawRadioButton(option, painter);
        return;
    default:
        break;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void KuyumStyle::drawArrow(PrimitiveElement arrow, SubControl part,
                           const QStyleOptionComplex *option, QPainter *painter,
                           const QWidget *widget) const
{
    constexpr int side = 14;
    const ComplexControl control = part == SC_ComboBoxArrow ? CC_ComboBox : CC_SpinBox;
    QStyleOption place = *option;
    const QPoint centre = subControlRect(control, option, part, widget).center();
    place.rect = QRect(centre - QPoint(side / 2, side / 2), QSize(side, side));
    drawPrimitive(arrow, &place, painter, widget);
}

void KuyumStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                    QPainter *painter, const QWidget *widget) const
{
    if (const auto *bar = qstyleoption_cast<const QStyleOptionSlider *>(option);
        control == CC_ScrollBar && bar != nullptr) {
        drawScrollBar(bar, subControlRect(control, option, SC_ScrollBarSlider, widget), painter);
        return;
    }
    const auto *list = qstyleoption_cast<const QStyleOptionComboBox *>(option);
    if (control == CC_ComboBox && list != nullptr && !isInCell(widget)) {
        QStyleOptionButton panel;
        panel.QStyleOption::operator=(*option);
        if (list->editable)
            drawLinePanel(option, painter);
        else
            drawButtonPanel(&panel, painter);
        drawArrow(PE_IndicatorArrowDown, SC_ComboBoxArrow, option, painter, widget);
        return;
    }
    if (control == CC_SpinBox && !isInCell(widget)) {
        drawLinePanel(option, painter);
        if (option->subControls.testFlag(SC_SpinBoxUp)) {
            drawArrow(PE_IndicatorArrowUp, SC_SpinBoxUp, option, painter, widget);
            drawArrow(PE_IndicatorArrowDown, SC_SpinBoxDown, option, painter, widget);
        }
        return;
    }
    QProxyStyle::drawComplexControl(control, option, painter, widget);
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
    if (const auto *header = qstyleoption_cast<const QStyleOptionHeader *>(option);
        element == CE_HeaderSection && header != nullptr) {
        drawHeaderSection(header, painter);
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
    case PM_ScrollBarExtent:
        return 13;
    case PM_ScrollBarSliderMin:
        return shortestHandle;
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return 18;
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

/// Without arrows at its ends the bar is all groove.
static QRect scrollBarPart(const QStyleOptionSlider *bar, QStyle::SubControl part)
{
    const QRect &rect = bar->rect;
    const bool upright = bar->orientation == Qt::Vertical;
    const int length = upright ? rect.height() : rect.width();
    const qint64 range = qint64(bar->maximum) - bar->minimum;
    int handle = length;
    if (range > 0) {
        handle = int(length * qint64(bar->pageStep) / (range + bar->pageStep));
        handle = qBound(qMin(shortestHandle, length), handle, length);
    }
    const int start = QStyle::sliderPositionFromValue(
        bar->minimum, bar->maximum, bar->sliderPosition, length - handle, bar->upsideDown);
    const auto stretch = [&](int from, int to) {
        return upright ? QRect(rect.left(), rect.top() + from, rect.width(), to - from)
                       : QRect(rect.left() + from, rect.top(), to - from, rect.height());
    };
    switch (part) {
    case QStyle::SC_ScrollBarSlider:
        return stretch(start, start + handle);
    case QStyle::SC_ScrollBarSubPage:
        return stretch(0, start);
    case QStyle::SC_ScrollBarAddPage:
        return stretch(start + handle, length);
    case QStyle::SC_ScrollBarGroove:
        return rect;
    default:
        return {};
    }
}

QRect KuyumStyle::subControlRect(ComplexControl control, const QStyleOptionComplex *option,
                                 SubControl part, const QWidget *widget) const
{
    if (const auto *bar = qstyleoption_cast<const QStyleOptionSlider *>(option);
        control == CC_ScrollBar && bar != nullptr)
        return scrollBarPart(bar, part);
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
    if (hint == SH_Table_GridLineColor && option != nullptr)
        return int(option->palette.color(QPalette::Mid).rgba());
    return QProxyStyle::styleHint(hint, option, widget, returnData);
}

} // namespace kuyum
