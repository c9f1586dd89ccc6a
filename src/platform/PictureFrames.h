#pragma once

#include "FrameSource.h"

#include <QTimer>

namespace kuyum {

/// A camera that shows a picture file, in its own size or in half of it. While
/// the file is away the camera is unplugged.
class PictureFrames : public FrameSource
{
    Q_OBJECT

public:
    explicit PictureFrames(const QString &path);

    bool start() override;
    QStringList formats() const override;
    int format() const override { return m_format; }
    void setFormat(int format) override { m_format = format; }

private:
    void give();

    QString m_path;
    QImage m_picture;
    int m_format = 0;
    QTimer m_timer;
};

} // namespace kuyum
