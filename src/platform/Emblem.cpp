#include "Emblem.h"

#include <QPainter>
#include <QPainterPath>

namespace {

/// The drawing's own square: 0 to 100 both ways.
constexpr double drawingSize = 100;

void paintRing(QPainter &painter)
{
    QLinearGradient gold(20, 40, 80, 100);
    gold.setColorAt(0, QColor(0xf6, 0xdf, 0x9a));
    gold.setColorAt(0.45, QColor(0xd4, 0xa0, 0x2c));
    gold.setColorAt(0.55, QColor(0xb8, 0x86, 0x0b));
    gold.setColorAt(1, QColor(0xf0, 0xd0, 0x78));
    painter.setPen(QPen(QBrush(gold), 7.5));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(QPointF(50, 66), 28, 28);
}

void paintBrilliant(QPainter &painter)
{
    const QPolygonF outline({{32, 10}, {68, 10}, {79, 22}, {50, 47}, {21, 22}});
    QLinearGradient light(21, 10, 79, 47);
    light.setColorAt(0, QColor(0xff, 0xff, 0xff));
    light.setColorAt(1, QColor(0xc9, 0xdf, 0xe8));
    painter.setPen(QPen(QColor(0x6f, 0x93, 0xa3), 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(light);
    painter.drawPolygon(outline);
    painter.drawLine(QPointF(21, 22), QPointF(79, 22));
    painter.drawPolyline(QPolygonF({{32, 10}, {38, 22}, {50, 10}, {62, 22}, {68, 10}}));
    painter.drawPolyline(QPolygonF({{38, 22}, {50, 47}, {62, 22}}));
}

} // namespace

void paintEmblem(QPainter &painter, const QRectF &box)
{
    const double side = qMin(box.width(), box.height());
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(box.center() - QPointF(side / 2, side / 2));
    painter.scale(side / drawingSize, side / drawingSize);
    paintRing(painter);
    paintBrilliant(painter);
    painter.restore();
}

QIcon emblemIcon()
{
    QIcon icon;
    for (const int side : {16, 32, 48, 128}) {
        QPixmap picture(side, side);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paintEmblem(painter, picture.rect());
        painter.end();
        icon.addPixmap(picture);
    }
    return icon;
}

Emblem::Emblem(QWidget *parent) : QWidget(parent) {}

void Emblem::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    paintEmblem(painter, rect());
}
