#include "BarkodKutusu.h"

#include <QPainter>

namespace kuyum {

namespace {

constexpr int pixelsPerUnit = 2;
constexpr int margin = 8; ///< of white around it, in pixels

} // namespace

BarkodKutusu::BarkodKutusu(QWidget *parent)
    : QWidget(parent), m_surface(symbolUnits, qRound(pixelsPerUnit * devicePixelRatioF()))
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

QSize BarkodKutusu::sizeHint() const
{
    return symbolUnits * pixelsPerUnit + QSize(2 * margin, 2 * margin);
}

void BarkodKutusu::draw(const QString &number)
{
    update();
    m_isDrawn = !number.isEmpty();
    if (m_isDrawn)
        BarkodCiz(m_surface, number);
}

void BarkodKutusu::paintEvent(QPaintEvent *)
{
    if (!m_isDrawn)
        return;
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    const QSize size = symbolUnits * pixelsPerUnit;
    const QPoint corner((width() - size.width()) / 2, (height() - size.height()) / 2);
    painter.drawImage(QRect(corner, size), m_surface.image());
}

} // namespace kuyum
