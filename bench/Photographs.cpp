#include "Photographs.h"

#include <QPainter>
#include <QRandomGenerator>

namespace kuyum {

QImage makePhotograph(int seed, QSize size)
{
    QRandomGenerator dice{quint32(seed)};
    QImage image(size, QImage::Format_RGB32);
    image.fill(QColor::fromHsv(dice.bounded(360), 30, 230));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int i = 0; i < 60; ++i) {
        painter.setBrush(QColor::fromHsv(dice.bounded(360), 160, 120 + dice.bounded(120)));
        painter.drawEllipse(QPoint(dice.bounded(size.width()), dice.bounded(size.height())),
                            20 + dice.bounded(150), 20 + dice.bounded(150));
    }
    painter.end();
    for (int y = 0; y < image.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const int grain = dice.bounded(31) - 15;
            const auto shade = [grain](int value) { return qBound(0, value + grain, 255); };
            line[x] = qRgb(shade(qRed(line[x])), shade(qGreen(line[x])), shade(qBlue(line[x])));
        }
    }
    return image;
}

} // namespace kuyum
