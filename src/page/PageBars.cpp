#include "PageBars.h"

#include <QPainter>

namespace kuyum {

namespace {

/// How many of the device's dots a module is wide.
int dotsPerModule(const PageBars &bars, double dotsPerTwip)
{
    constexpr int readable = 2;
    const int nearest = qMax(1, qRound(bars.moduleWidth.count() * dotsPerTwip));
    const double widened = readable * double(bars.modules.size());
    return nearest < readable && widened <= bars.room.count() * dotsPerTwip ? readable : nearest;
}

} // namespace

void paintBars(QPainter &painter, const PageBars &bars)
{
    const QTransform toDots = painter.combinedTransform();
    const int module = dotsPerModule(bars, toDots.m11());
    const QPoint corner = toDots.map(QPointF(0, 0)).toPoint();
    const int height = qMax(1, qRound(bars.height.count() * toDots.m22()));
    const auto fill = [&](qsizetype from, qsizetype count, const QColor &color) {
        painter.fillRect(corner.x() + int(from) * module, corner.y(), int(count) * module, height,
                         color);
    };

    painter.save();
    // In the device's own dots: whole numbers stay whole.
    painter.resetTransform();
    painter.setRenderHint(QPainter::Antialiasing, false);
    fill(0, bars.modules.size(), Qt::white);
    // A bar of several modules in one piece, so that no seam can show in it.
    for (qsizetype i = 0; i < bars.modules.size();) {
        const qsizetype start = i;
        while (i < bars.modules.size() && bars.modules[i] == u'X')
            ++i;
        if (i > start)
            fill(start, i - start, Qt::black);
        else
            ++i;
    }
    painter.restore();
}

} // namespace kuyum
