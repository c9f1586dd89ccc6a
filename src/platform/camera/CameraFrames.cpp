#include "CameraFrames.h"

#include "PictureFrames.h"

#include <algorithm>
#include <QCamera>
#include <QCameraDevice>
#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonObject>
#include <QMediaCaptureSession>
#include <QMediaDevices>
#include <QPluginLoader>
#include <QVideoFrame>
#include <QVideoSink>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

constexpr int millisecondsPerFrame = 50;

/// Without one the multimedia library ends the whole program when it is asked
/// for its cameras.
bool hasBackend()
{
    const QString wanted = qEnvironmentVariable("QT_MEDIA_BACKEND");
    for (const QString &path : QCoreApplication::libraryPaths()) {
        const QDir folder(path + u"/multimedia"_s);
        for (const QString &file : folder.entryList(QDir::Files)) {
            QPluginLoader plugin(folder.filePath(file));
            const QJsonArray keys =
                plugin.metaData()[u"MetaData"_s].toObject()[u"Keys"_s].toArray();
            if ((wanted.isEmpty() || keys.contains(wanted)) && plugin.load())
                return true;
        }
    }
    return false;
}

QString formatText(const QCameraFormat &format)
{
    return u"%1 x %2, %3 kare/sn, %4"_s.arg(format.resolution().width())
        .arg(format.resolution().height())
        .arg(qRound(format.maxFrameRate()))
        .arg(QVideoFrameFormat::pixelFormatToString(format.pixelFormat()));
}

class CameraFrames : public FrameSource
{
public:
    explicit CameraFrames(const QCameraDevice &device) : m_device(device), m_camera(device)
    {
        m_session.setCamera(&m_camera);
        m_session.setVideoSink(&m_sink);
        connect(&m_sink, &QVideoSink::videoFrameChanged, this, &CameraFrames::take);
        connect(&m_camera, &QCamera::errorOccurred, this, [this] { Q_EMIT lost(); });
        connect(&m_devices, &QMediaDevices::videoInputsChanged, this, [this] {
            const auto isOurs = [this](const QCameraDevice &device) {
                return device.id() == m_device.id();
            };
            if (std::ranges::none_of(QMediaDevices::videoInputs(), isOurs))
                Q_EMIT lost();
        });
    }

    bool start() override
    {
        if (!m_camera.isAvailable())
            return false;
        m_camera.start();
        return true;
    }

    QStringList formats() const override
    {
        QStringList texts;
        for (const QCameraFormat &format : m_device.videoFormats())
            texts.append(formatText(format));
        return texts;
    }
    int format() const override
    {
        return int(m_device.videoFormats().indexOf(m_camera.cameraFormat()));
    }
    void setFormat(int format) override
    {
        m_camera.stop();
        m_camera.setCameraFormat(m_device.videoFormats().value(format));
        m_camera.start();
    }

private:
    /// A frame is dear to turn into an image; the eye needs few.
    void take(const QVideoFrame &frame)
    {
        if (m_sinceLast.isValid() && m_sinceLast.elapsed() < millisecondsPerFrame)
            return;
        m_sinceLast.start();
        if (const QImage image = frame.toImage(); !image.isNull())
            Q_EMIT frameCame(image);
    }

    QCameraDevice m_device;
    QMediaDevices m_devices;
    QCamera m_camera;
    QVideoSink m_sink;
    QMediaCaptureSession m_session;
    QElapsedTimer m_sinceLast;
};

} // namespace

std::unique_ptr<FrameSource> openCamera(int index)
{
    if (const QString file = qEnvironmentVariable("KUYUM_KAMERA"); !file.isEmpty())
        return std::make_unique<PictureFrames>(file);
    if (!hasBackend())
        return nullptr;
    const QList<QCameraDevice> devices = QMediaDevices::videoInputs();
    if (index < 0 || index >= devices.size())
        return nullptr;
    return std::make_unique<CameraFrames>(devices[index]);
}

} // namespace kuyum
