#pragma once

#include <functional>
#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QStringList>

namespace kuyum {

/// The JPEG files of models and molds, named after their codes. Names are
/// found without regard to case on every system. A code that is no plain file
/// name (it holds a path separator, say) has no picture: nothing outside the
/// picture folder is ever reached.

/// folder/model.jpg, or else folder/shortName/model.jpg, shortName being the
/// product type's; empty when neither is there.
QString modelPicturePath(const QString &folder, const QString &model, const QString &shortName);

/// The same for several product types: the first that has one counts.
QString modelPicturePath(const QString &folder, const QString &model,
                         const QStringList &shortNames);

/// folder/KLP/code.jpg; empty when it is not there.
QString moldPicturePath(const QString &folder, const QString &code);

/// Where a new picture of the model is to be written: folder/shortName where
/// that folder is there, else the picture folder itself. A file of the name in
/// another spelling is the one to replace. Both throw std::runtime_error with a
/// Turkish text when the code cannot name a file or the folder is missing.
QString modelPictureTarget(const QString &folder, const QString &model, const QString &shortName);

/// The same for a mold's; makes the folder KLP where it is missing.
QString moldPictureTarget(const QString &folder, const QString &code);

/// Told how many pictures of how many are read; false stops the work.
using PictureProgress = std::function<bool(int done, int total)>;

struct PictureResult
{
    QImage image;  ///< null when the file cannot be shown
    QString error; ///< why not, in Turkish
};

/// Reads a picture, upright as its camera says, made smaller where it does not
/// fit into maxSize and never larger. Broken, cut-off and oversized files give
/// an error.
PictureResult loadPicture(const QString &path, QSize maxSize);

/// The same for a picture that another program handed over.
PictureResult fitPicture(const QImage &image, QSize maxSize);

/// The picture as JPEG; what is transparent becomes white. Throws
/// std::runtime_error with the encoder's text.
QByteArray jpegBytes(const QImage &image);

/// Writes the picture as JPEG, whatever it was read from; what is transparent
/// becomes white. The old file stays until the new one is wholly on disk.
/// Throws std::runtime_error with a Turkish text.
void savePicture(const QImage &image, const QString &path);

} // namespace kuyum
