#pragma once

#include <QFile>
#include <QImage>

namespace kuyum {

/// Pictures of one colour, and files of them.

inline QImage plainPicture(const QColor &color, QSize size = {40, 30})
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

/// Whether the file is a JPEG of about that colour.
inline bool isJpegOf(const QString &path, const QColor &color)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray bytes = file.readAll();
    const QColor middle = QImage::fromData(bytes, "JPEG").pixelColor(5, 5);
    return bytes.startsWith("\xff\xd8\xff") && std::abs(middle.red() - color.red()) < 9 &&
           std::abs(middle.green() - color.green()) < 9 &&
           std::abs(middle.blue() - color.blue()) < 9;
}

} // namespace kuyum
