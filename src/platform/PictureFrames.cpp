#include "PictureFrames.h"

#include "PictureFiles.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

constexpr int millisecondsPerFrame = 50;
constexpr QSize largest(4000, 4000);

QString sizeText(QSize size)
{
    return u"%1 x %2"_s.arg(size.width()).arg(size.height());
}

} // namespace

PictureFrames::PictureFrames(const QString &path) : m_path(path)
{
    m_timer.setInterval(millisecondsPerFrame);
    connect(&m_timer, &QTimer::timeout, this, &PictureFrames::give);
}

bool PictureFrames::start()
{
    m_picture = loadPicture(m_path, largest).image;
    if (m_picture.isNull())
        return false;
    m_timer.start();
    return true;
}

QStringList PictureFrames::formats() const
{
    return {sizeText(m_picture.size()), sizeText(m_picture.size() / 2)};
}

void PictureFrames::give()
{
    if (!QFileInfo::exists(m_path)) {
        m_timer.stop();
        Q_EMIT lost();
        return;
    }
    Q_EMIT frameCame(m_format == 0 ? m_picture : fitPicture(m_picture, m_picture.size() / 2).image);
}

} // namespace kuyum
