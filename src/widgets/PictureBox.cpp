#include "PictureBox.h"

#include "PictureFiles.h"

#include <QResizeEvent>

namespace kuyum {

PictureBox::PictureBox(QWidget *parent) : QLabel(parent)
{
    setAlignment(Qt::AlignCenter);
    setWordWrap(true);
    setMinimumSize(120, 120);
    setFrameShape(QFrame::StyledPanel);
    // The box gives the picture its size, never the other way round.
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
}

void PictureBox::showFile(const QString &path)
{
    m_path = path;
    load();
}

void PictureBox::load()
{
    m_loadedFor = contentsRect().size();
    m_error.clear();
    if (m_path.isEmpty()) {
        clear();
        return;
    }
    const qreal ratio = devicePixelRatioF();
    const PictureResult result = loadPicture(m_path, m_loadedFor * ratio);
    if (result.image.isNull()) {
        m_error = result.error;
        setText(m_error);
        return;
    }
    QPixmap pixmap = QPixmap::fromImage(result.image);
    pixmap.setDevicePixelRatio(ratio);
    setPixmap(pixmap);
}

void PictureBox::resizeEvent(QResizeEvent *event)
{
    QLabel::resizeEvent(event);
    if (!m_path.isEmpty() && contentsRect().size() != m_loadedFor)
        load();
}

} // namespace kuyum
