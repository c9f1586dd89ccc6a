#pragma once

#include <QImage>
#include <QWidget>

namespace kuyum {

/// The capture window: the last frame, as large as the room allows.
class FrameView : public QWidget
{
public:
    using QWidget::QWidget;

    void showFrame(const QImage &frame);
    const QImage &frame() const { return m_frame; }
    QSize sizeHint() const override { return {640, 480}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QImage m_frame;
};

} // namespace kuyum
