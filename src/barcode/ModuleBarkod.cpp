#include "ModuleBarkod.h"

#include <QFontMetricsF>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

constexpr int captionPoints = 10;
/// A unit is drawn two pixels wide on a screen of 96 pixels to the inch.
constexpr double unitsPerPoint = 96.0 / 72 / 2;

/// Where a caption stands, against the right edge of its bars.
constexpr int captionX(int moduleWidth)
{
    return -8 * moduleWidth + 3;
}

} // namespace

BarkodYuzeyi::BarkodYuzeyi(QSize units, int dotsPerUnit)
    : m_image(units * dotsPerUnit, QImage::Format_RGB32), m_dotsPerUnit(dotsPerUnit)
{
    clear();
}

void BarkodYuzeyi::clear()
{
    m_image.fill(Qt::white);
    m_x = 0;
}

void BarkodYuzeyi::DesenCiz(const BarPart &part, qint16 height, qint16 moduleWidth)
{
    const int dots = m_dotsPerUnit;
    QPainter painter(&m_image);
    for (const QChar module : part.modules) {
        const QColor colour = module == u'X' ? Qt::black : Qt::white;
        // The lines stand right of the cursor and reach their end point.
        painter.fillRect((m_x + 1) * dots, 0, moduleWidth * dots, (height + 1) * dots, colour);
        m_x = qint16(m_x + moduleWidth);
    }
    if (part.caption.isEmpty())
        return;
    QFont font(QStringList{u"Verdana"_s, u"DejaVu Sans"_s});
    font.setPixelSize(qRound(captionPoints * moduleWidth * unitsPerPoint * dots));
    painter.setFont(font);
    painter.setPen(Qt::black);
    const QPoint at((m_x + captionX(moduleWidth)) * dots, (height + 1) * dots);
    painter.drawText(QPointF(at.x(), at.y() + QFontMetricsF(font).ascent()), part.caption);
}

void BarkodCiz(BarkodYuzeyi &pBarkod, const QString &code, const BarkodOlculeri &sizes)
{
    pBarkod.clear();
    encodeEan13(code, [&](const BarPart &part) {
        pBarkod.DesenCiz(part, part.guard ? sizes.guardHeight : sizes.digitHeight,
                         sizes.moduleWidth);
    });
}

} // namespace kuyum
