#include "Emblem.h"

#include <QPainter>

namespace kuyum {

namespace {

/// The drawing's own square: 0 to 100 both ways.
constexpr double drawingSize = 100;

// Flat colours only: a gradient is filled by several threads, and starting
// those takes longer than the whole login window.

void paintRing(QPainter &painter)
{
    const QPointF centre(50, 66);
    const auto arc = [&](double radius, double width, QRgb color, int from, int span) {
        painter.setPen(QPen(QColor(color), width, Qt::SolidLine, Qt::RoundCap));
        painter.drawArc(QRectF(centre - QPointF(radius, radius), QSizeF(radius, radius) * 2),
                        from * 16, span * 16);
    };
    painter.setBrush(Qt::NoBrush);
    arc(28, 7.5, 0xffc9951f, 0, 360);
    arc(30, 2.5, 0xffe9c35a, 70, 150);
    arc(26.2, 2, 0xff9a6f08, 60, 150);
    arc(30.2, 2, 0xffa87a0c, 260, 110);
    arc(27.5, 2.2, 0xfff6df9a, 130, 55);
    arc(26.2, 2, 0xfff0d078, 250, 110);
}

void paintBrilliant(QPainter &painter)
{
    struct Facet
    {
        QRgb color;
        QPolygonF outline;
    };
    const QPointF left(21, 22), right(79, 22), point(50, 47);
    const QPointF topLeft(32, 10), top(50, 10), topRight(68, 10), girdle1(38, 22), girdle2(62, 22);
    painter.setPen(QPen(QColor(0x6f, 0x93, 0xa3), 1.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    for (const Facet &facet : {Facet{0xffffffff, QPolygonF({topLeft, left, girdle1})},
                               Facet{0xffe2eef3, QPolygonF({topLeft, girdle1, top})},
                               Facet{0xfff7fbfc, QPolygonF({top, girdle1, girdle2})},
                               Facet{0xffd3e5ec, QPolygonF({top, girdle2, topRight})},
                               Facet{0xffc3dae4, QPolygonF({topRight, girdle2, right})},
                               Facet{0xffe8f2f6, QPolygonF({left, girdle1, point})},
                               Facet{0xffd6e7ee, QPolygonF({girdle1, girdle2, point})},
                               Facet{0xffb4d0dc, QPolygonF({girdle2, right, point})}}) {
        painter.setBrush(QColor(facet.color));
        painter.drawPolygon(facet.outline);
    }
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
    for (const int side : {16, 32, 64}) {
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

} // namespace kuyum
