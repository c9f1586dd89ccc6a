#include "JewelPainter.h"

#include "Dice.h"

#include <array>
#include <cmath>
#include <numbers>
#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

constexpr QSize pictureSize(480, 360);
constexpr QRectF codeBox(20, 312, 440, 40);
constexpr double pi = std::numbers::pi;

struct Metal
{
    QColor light;
    QColor body;
    QColor dark;
};

Metal anyMetal(Dice &dice)
{
    const std::array<Metal, 3> metals = {{{QColor(0xfff6c4), QColor(0xe3b02c), QColor(0x8a5a06)},
                                          {QColor(0xffe9dd), QColor(0xdb9374), QColor(0x7d3f28)},
                                          {QColor(0xffffff), QColor(0xcfd3d8), QColor(0x70767d)}}};
    // Yellow gold sells best.
    return metals[size_t(std::max(0, dice.between(-2, 2)))];
}

QColor anyStone(Dice &dice)
{
    const std::array<QColor, 6> stones = {QColor(0xdff1ff), QColor(0xc4163c), QColor(0x1f4fb8),
                                          QColor(0x0f9058), QColor(0x8c4fc4), QColor(0xf0a63a)};
    return dice.chance(45) ? stones[0] : dice.oneOf(stones);
}

quint32 streamOf(const QString &code)
{
    quint32 stream = 2166136261U;
    for (const QChar character : code)
        stream = (stream ^ character.unicode()) * 16777619U;
    return stream;
}

/// Draws the parts of which all pieces are made.
class Goldsmith
{
public:
    Goldsmith(QPainter &painter, const QString &code)
        : dice(streamOf(code)), metal(anyMetal(dice)), stoneColour(anyStone(dice)), p(painter)
    {
    }

    /// A round wire of metal along a path: darker at its edges, with a gleam.
    void wire(const QPainterPath &path, double thickness)
    {
        const std::array<std::pair<double, QColor>, 4> layers = {{{1.0, metal.dark},
                                                                  {0.82, metal.body.darker(112)},
                                                                  {0.58, metal.body},
                                                                  {0.2, metal.light}}};
        p.setBrush(Qt::NoBrush);
        for (const auto &[share, colour] : layers) {
            p.setPen(QPen(colour, thickness * share, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
            p.drawPath(path);
        }
    }

    void plate(const QPainterPath &path)
    {
        const QRectF box = path.boundingRect();
        QLinearGradient sheen(box.topLeft(), box.bottomRight());
        sheen.setColorAt(0, metal.light);
        sheen.setColorAt(0.35, metal.body);
        sheen.setColorAt(0.6, metal.light);
        sheen.setColorAt(1, metal.dark);
        p.setPen(QPen(metal.dark, 1.5));
        p.setBrush(sheen);
        p.drawPath(path);
    }

    /// Links of a chain along a path.
    void chain(const QPainterPath &path, double size)
    {
        const double length = path.length();
        const int links = int(length / (size * 0.8));
        for (int i = 0; i <= links; ++i) {
            const double at = path.percentAtLength(length * i / links);
            p.save();
            p.translate(path.pointAtPercent(at));
            p.rotate(-path.angleAtPercent(at));
            QPainterPath link;
            link.addEllipse(QPointF(0, 0), size / 2, i % 2 == 0 ? size / 3 : size / 7);
            wire(link, size / 5);
            p.restore();
        }
    }

    /// A brilliant in its setting.
    void stone(QPointF centre, double radius)
    {
        QPainterPath setting;
        setting.addEllipse(centre, radius * 1.18, radius * 1.18);
        plate(setting);
        QRadialGradient glow(centre - QPointF(radius / 3, radius / 3), radius * 1.4);
        glow.setColorAt(0, stoneColour.lighter(160));
        glow.setColorAt(0.5, stoneColour);
        glow.setColorAt(1, stoneColour.darker(190));
        p.setPen(Qt::NoPen);
        p.setBrush(glow);
        p.drawEllipse(centre, radius, radius);
        facets(centre, radius);
    }

    void drop(QPointF top, double width, double height)
    {
        QPainterPath path(top);
        path.cubicTo(top + QPointF(width, height * 0.55), top + QPointF(width * 0.6, height),
                     top + QPointF(0, height));
        path.cubicTo(top + QPointF(-width * 0.6, height), top + QPointF(-width, height * 0.55),
                     top);
        plate(path);
    }

    Dice dice;
    const Metal metal;
    const QColor stoneColour;

private:
    void facets(QPointF centre, double radius)
    {
        constexpr int corners = 8;
        QPolygonF table;
        p.setPen(QPen(QColor(255, 255, 255, 150), std::max(0.6, radius / 22)));
        for (int i = 0; i < corners; ++i) {
            const double angle = 2 * pi * i / corners;
            const QPointF direction(std::cos(angle), std::sin(angle));
            table.append(centre + direction * radius * 0.55);
            p.drawLine(table.last(), centre + direction * radius);
        }
        p.setBrush(QColor(255, 255, 255, 70));
        p.drawPolygon(table);
    }

    QPainter &p;
};

QPainterPath ellipse(QPointF centre, double rx, double ry)
{
    QPainterPath path;
    path.addEllipse(centre, rx, ry);
    return path;
}

void drawRing(Goldsmith &smith, QPointF centre, double size)
{
    smith.wire(ellipse(centre, size * 0.86, size), size * smith.dice.decimal(0.14, 0.26, 2));
    const int stones = smith.dice.between(0, 3) * 2 + 1;
    for (int i = stones / 2; i >= 0; --i) {
        const double radius = size * (i == 0 ? 0.3 : 0.17);
        const double angle = i * 0.36;
        for (const int side : {-1, 1}) {
            smith.stone(centre + QPointF(side * std::sin(angle) * size * 0.9,
                                         -std::cos(angle) * size * 1.04),
                        radius);
        }
    }
}

void drawPendant(Goldsmith &smith, QPointF top, double size)
{
    switch (smith.dice.below(3)) {
    case 0:
        smith.drop(top, size * 0.7, size * 1.5);
        smith.stone(top + QPointF(0, size), size * 0.3);
        break;
    case 1:
        smith.wire(ellipse(top + QPointF(0, size * 0.75), size * 0.7, size * 0.7), size * 0.22);
        smith.stone(top + QPointF(0, size * 0.75), size * 0.36);
        break;
    default:
        for (int i = 0; i < 3; ++i)
            smith.stone(top + QPointF(0, size * (0.25 + 0.52 * i)), size * (0.18 + 0.07 * i));
    }
}

void drawNecklace(Goldsmith &smith, QPointF top, double width, double depth)
{
    QPainterPath path(top + QPointF(-width / 2, 0));
    path.cubicTo(top + QPointF(-width / 2, depth * 0.9), top + QPointF(-width / 5, depth),
                 top + QPointF(0, depth));
    path.cubicTo(top + QPointF(width / 5, depth), top + QPointF(width / 2, depth * 0.9),
                 top + QPointF(width / 2, 0));
    smith.chain(path, smith.dice.between(8, 13));
    drawPendant(smith, top + QPointF(0, depth), width / 8);
}

void drawEarrings(Goldsmith &smith, QPointF top, double distance, double size)
{
    const bool drops = smith.dice.chance(60);
    for (const int side : {-1, 1}) {
        const QPointF at = top + QPointF(side * distance / 2, 0);
        QPainterPath hook;
        hook.moveTo(at + QPointF(0, size * 0.5));
        hook.cubicTo(at + QPointF(0, -size * 0.35), at + QPointF(size * 0.5, -size * 0.35),
                     at + QPointF(size * 0.45, size * 0.4));
        smith.wire(hook, size * 0.08);
        if (drops)
            smith.drop(at + QPointF(0, size * 0.7), size * 0.6, size * 1.5);
        else
            smith.wire(ellipse(at + QPointF(0, size * 1.4), size * 0.65, size * 0.65), size * 0.2);
        smith.stone(at + QPointF(0, size * 0.6), size * 0.25);
        if (drops)
            smith.stone(at + QPointF(0, size * 1.65), size * 0.2);
    }
}

void drawBangle(Goldsmith &smith)
{
    const QPointF centre(240, 165);
    const double thickness = smith.dice.between(20, 34);
    smith.wire(ellipse(centre, 165, 105), thickness);
    const int marks = smith.dice.between(8, 18);
    for (int i = 0; i < marks; ++i) {
        const double angle = pi * (i + 0.5) / marks;
        smith.stone(centre + QPointF(std::cos(angle) * 165, std::sin(angle) * 105), thickness / 5);
    }
}

void drawBracelet(Goldsmith &smith)
{
    const QPointF centre(240, 165);
    smith.chain(ellipse(centre, 170, 100), smith.dice.between(16, 24));
    const int stones = smith.dice.between(3, 9);
    for (int i = 0; i < stones; ++i) {
        const double angle = pi * (0.15 + 0.7 * i / (stones - 1));
        smith.stone(centre + QPointF(std::cos(angle) * 170, std::sin(angle) * 100), 12);
    }
}

void drawWeddingRings(Goldsmith &smith)
{
    const double thickness = smith.dice.between(16, 28);
    smith.wire(ellipse(QPointF(190, 150), 88, 100), thickness);
    smith.wire(ellipse(QPointF(290, 180), 80, 92), thickness);
    const int stones = smith.dice.below(6);
    for (int i = 0; i < stones; ++i) {
        const double angle = 0.22 * (2 * i - stones + 1);
        smith.stone(QPointF(290 + 80 * std::sin(angle), 180 - 92 * std::cos(angle)), thickness / 4);
    }
}

void drawSet(Goldsmith &smith)
{
    drawNecklace(smith, QPointF(240, 20), 290, 130);
    drawEarrings(smith, QPointF(240, 60), 110, 26);
    drawRing(smith, QPointF(390, 245), 42);
}

void drawBrooch(Goldsmith &smith)
{
    const QPointF centre(240, 140);
    QPainterPath stem(centre);
    stem.cubicTo(QPointF(250, 220), QPointF(230, 250), QPointF(275, 295));
    smith.wire(stem, 9);
    const int petals = smith.dice.between(5, 9);
    for (int i = 0; i < petals; ++i) {
        const double turn = 360.0 * i / petals;
        QTransform place;
        place.translate(centre.x(), centre.y());
        place.rotate(turn);
        smith.plate(place.map(ellipse(QPointF(0, -68), 150.0 / petals + 8, 48)));
        smith.stone(place.map(QPointF(0, -86)), 7);
    }
    smith.stone(centre, 26);
}

void drawBackground(QPainter &p, QColor top, QColor bottom)
{
    QLinearGradient light(0, 0, 0, pictureSize.height());
    light.setColorAt(0, top);
    light.setColorAt(1, bottom);
    p.fillRect(QRect(QPoint(), pictureSize), light);
}

void drawCode(QPainter &p, const QString &code)
{
    QFont font = p.font();
    font.setBold(true);
    font.setPixelSize(30);
    const double width = QFontMetricsF(font).horizontalAdvance(code);
    if (width > codeBox.width())
        font.setPixelSize(int(30 * codeBox.width() / width));
    p.setFont(font);
    p.setPen(QColor(0x3a3128));
    p.drawText(codeBox, Qt::AlignCenter, code);
}

QImage blank()
{
    return {pictureSize, QImage::Format_RGB32};
}

} // namespace

QImage drawJewel(int type, const QString &code)
{
    QImage picture = blank();
    QPainter p(&picture);
    p.setRenderHint(QPainter::Antialiasing);
    drawBackground(p, QColor(0xfdfbf7), QColor(0xe4dacb));
    Goldsmith smith(p, code);
    switch (type) {
    case 0:
        drawRing(smith, QPointF(240, 190), 98);
        break;
    case 1:
        drawNecklace(smith, QPointF(240, 15), 330, 185);
        break;
    case 2:
        drawEarrings(smith, QPointF(240, 60), 190, 74);
        break;
    case 3:
        drawBangle(smith);
        break;
    case 4:
        drawBracelet(smith);
        break;
    case 5:
        drawWeddingRings(smith);
        break;
    case 6:
        drawSet(smith);
        break;
    default:
        drawBrooch(smith);
    }
    drawCode(p, code);
    return picture;
}

QImage drawMold(const QString &code)
{
    QImage picture = blank();
    QPainter p(&picture);
    p.setRenderHint(QPainter::Antialiasing);
    drawBackground(p, QColor(0xf4f6f7), QColor(0xc9d0d4));
    Goldsmith smith(p, code);

    const std::array<QColor, 3> rubbers = {QColor(0x9c4a3a), QColor(0x3f6c8f), QColor(0x5d7d4c)};
    const QColor rubber = smith.dice.oneOf(rubbers);
    p.setPen(QPen(rubber.darker(150), 3));
    p.setBrush(rubber);
    p.drawRoundedRect(QRectF(70, 25, 340, 270), 22, 22);
    p.setBrush(rubber.lighter(125));
    for (const QPointF key :
         {QPointF(100, 55), QPointF(380, 55), QPointF(100, 265), QPointF(380, 265)})
        p.drawEllipse(key, 12, 12);

    // The channel by which the wax comes in, and the piece it fills.
    QPainterPath channel(QPointF(240, 30));
    channel.lineTo(240, 146);
    smith.wire(channel, 12);
    switch (smith.dice.below(4)) {
    case 0:
        smith.wire(ellipse(QPointF(240, 175), 62, 72), 16);
        break;
    case 1:
        smith.drop(QPointF(240, 95), 80, 160);
        break;
    case 2:
        for (int i = 0; i < 4; ++i)
            smith.wire(ellipse(QPointF(150 + 60 * i, 180), 26, 34), 9);
        break;
    default:
        for (int i = 0; i < 6; ++i) {
            QTransform place;
            place.translate(240, 180);
            place.rotate(60.0 * i);
            smith.plate(place.map(ellipse(QPointF(0, -46), 20, 36)));
        }
    }
    drawCode(p, code);
    return picture;
}

} // namespace kuyum
