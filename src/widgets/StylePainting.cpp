#include "StylePainting.h"

#include "Theme.h"

#include <QPainter>
#include <QStyleOption>

namespace kuyum {

static constexpr double corner = 5;

static bool isEnabled(const QStyleOption *option)
{
    return option->state.testFlag(QStyle::State_Enabled);
}

static bool isFocused(const QStyleOption *option)
{
    return isEnabled(option) && option->state.testFlag(QStyle::State_HasFocus);
}

static bool isHovered(const QStyleOption *option)
{
    return isEnabled(option) && option->state.testFlag(QStyle::State_MouseOver);
}

static QColor lineColor(const QStyleOption *option)
{
    return option->palette.color(QPalette::Mid);
}

/// Gold and thick with the focus.
static QPen edgeOf(const QStyleOption *option)
{
    return isFocused(option) ? QPen(themeColors(option->palette).accent, 2)
                             : QPen(lineColor(option), 1);
}

static void drawPanel(QPainter *painter, const QRectF &rect, const QBrush &fill, const QPen &edge,
                      double radius = corner)
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(edge);
    painter->setBrush(fill);
    const double inset = edge.style() == Qt::NoPen ? 0 : edge.widthF() / 2;
    painter->drawRoundedRect(rect.adjusted(inset, inset, -inset, -inset), radius, radius);
    painter->restore();
}

bool isDefaultButton(const QStyleOption *option)
{
    const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option);
    return button != nullptr && button->features.testFlag(QStyleOptionButton::DefaultButton) &&
           isEnabled(option);
}

void drawButtonPanel(const QStyleOption *option, QPainter *painter)
{
    const ThemeColors colors = themeColors(option->palette);
    const bool gold = isDefaultButton(option);
    QColor fill = gold ? colors.accent : option->palette.color(QPalette::Button);
    if (option->state.testAnyFlags(QStyle::State_Sunken | QStyle::State_On))
        fill = colors.dark && !gold ? fill.lighter(140) : fill.darker(112);
    else if (isHovered(option))
        fill = colors.dark ? fill.lighter(118) : fill.darker(gold ? 94 : 104);
    QPen edge = edgeOf(option);
    if (gold)
        edge.setColor(isFocused(option) ? option->palette.color(QPalette::WindowText)
                                        : colors.accent.darker(115));
    drawPanel(painter, option->rect, fill, edge);
}

void drawLinePanel(const QStyleOption *option, QPainter *painter)
{
    drawPanel(painter, option->rect, option->palette.color(QPalette::Base), edgeOf(option));
}

void drawViewFrame(const QStyleOption *option, QPainter *painter)
{
    // The content reaches into the corners, so they are not round.
    painter->save();
    painter->setPen(isFocused(option) ? themeColors(option->palette).accent : lineColor(option));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
    painter->restore();
}

void drawFocusRing(const QStyleOption *option, QPainter *painter)
{
    drawPanel(painter, QRectF(option->rect), Qt::NoBrush,
              QPen(themeColors(option->palette).accent, 1.5), 3);
}

/// The colours of a box or a circle that can be on.
static void drawIndicator(const QStyleOption *option, QPainter *painter, double radius)
{
    const ThemeColors colors = themeColors(option->palette);
    const bool marked = option->state.testAnyFlags(QStyle::State_On | QStyle::State_NoChange);
    const QRectF box = QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5);
    QPen edge(isFocused(option) || isHovered(option) ? colors.accent : colors.muted, 1);
    QColor fill = option->palette.color(QPalette::Base);
    if (!isEnabled(option))
        edge.setColor(lineColor(option));
    if (marked) {
        fill = isEnabled(option) ? colors.accent : lineColor(option);
        edge.setColor(fill);
    }
    drawPanel(painter, box, fill, edge, radius);
}

void drawCheckBox(const QStyleOption *option, QPainter *painter)
{
    drawIndicator(option, painter, 3);
    const QRectF box(option->rect);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(themeColors(option->palette).accentText, box.width() / 8, Qt::SolidLine,
                         Qt::RoundCap, Qt::RoundJoin));
    const auto at = [&box](double x, double y) {
        return QPointF(box.left() + box.width() * x, box.top() + box.height() * y);
    };
    if (option->state.testFlag(QStyle::State_On))
        painter->drawPolyline(QPolygonF({at(0.24, 0.52), at(0.43, 0.71), at(0.77, 0.31)}));
    else if (option->state.testFlag(QStyle::State_NoChange))
        painter->drawLine(at(0.25, 0.5), at(0.75, 0.5));
    painter->restore();
}

void drawRadioButton(const QStyleOption *option, QPainter *painter)
{
    drawIndicator(option, painter, option->rect.width() / 2.0);
    if (!option->state.testFlag(QStyle::State_On))
        return;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(themeColors(option->palette).accentText);
    const QRectF circle(option->rect);
    painter->drawEllipse(circle.center(), circle.width() / 5.5, circle.width() / 5.5);
    painter->restore();
}

void drawHeaderSection(const QStyleOptionHeader *option, QPainter *painter)
{
    const QRect &rect = option->rect;
    painter->save();
    painter->fillRect(
        rect, option->palette.color(isHovered(option) ? QPalette::Midlight : QPalette::Window));
    painter->setPen(lineColor(option));
    painter->drawLine(rect.bottomLeft(), rect.bottomRight());
    painter->drawLine(rect.topRight(), rect.bottomRight());
    painter->restore();
}

void drawScrollBar(const QStyleOptionSlider *option, const QRect &handle, QPainter *painter)
{
    painter->fillRect(option->rect, option->palette.color(QPalette::Window));
    if (option->maximum <= option->minimum)
        return;
    const ThemeColors colors = themeColors(option->palette);
    const bool held = option->activeSubControls.testFlag(QStyle::SC_ScrollBarSlider) &&
                      option->state.testAnyFlags(QStyle::State_Sunken | QStyle::State_MouseOver);
    constexpr double margin = 3;
    const QRectF bar = QRectF(handle).adjusted(margin, margin, -margin, -margin);
    drawPanel(painter, bar, held ? colors.accent : lineColor(option).darker(colors.dark ? 80 : 112),
              Qt::NoPen, qMin(bar.width(), bar.height()) / 2);
}

} // namespace kuyum
