#include "FrameView.h"

#include <QPainter>

using namespace Qt::StringLiterals;

namespace kuyum {

void FrameView::showFrame(const QImage &frame)
{
    m_frame = frame;
    update();
}

void FrameView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), Qt::black);
    if (m_frame.isNull()) {
        painter.setPen(Qt::lightGray);
        painter.drawText(rect(), Qt::AlignCenter, u"Kamera bekleniyor..."_s);
        return;
    }
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    QRect place(QPoint(), m_frame.size().scaled(size(), Qt::KeepAspectRatio));
    place.moveCenter(rect().center());
    painter.drawImage(place, m_frame);
}

} // namespace kuyum
