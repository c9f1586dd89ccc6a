#pragma once

#include <functional>
#include <memory>
#include <QImage>
#include <QObject>
#include <QStringList>

namespace kuyum {

/// Where the webcam screen gets its frames from: a camera, or a picture file
/// where there is none.
class FrameSource : public QObject
{
    Q_OBJECT

public:
    /// Begins to give frames; false where there is nothing to give them.
    virtual bool start() = 0;

    /// The sizes and rates the device offers, as the user reads them.
    virtual QStringList formats() const = 0;
    /// The one in use; -1 when that is not known.
    virtual int format() const = 0;
    virtual void setFormat(int format) = 0;

Q_SIGNALS:
    void frameCame(const QImage &frame);
    /// The device is taken by another program, was unplugged or has failed.
    void lost();
};

/// Opens the device of that index, counted from 0; null where there is none.
using FrameSourceOpener = std::function<std::unique_ptr<FrameSource>(int index)>;

} // namespace kuyum
