#pragma once

#include <QImage>
#include <QSize>
#include <QString>

/// The JPEG files of models and molds, named after their codes. Names are
/// found without regard to case on every system. A code that is no plain file
/// name (it holds a path separator, say) has no picture: nothing outside the
/// picture folder is ever reached.

/// folder/model.jpg, or else folder/shortName/model.jpg, shortName being the
/// product type's; empty when neither is there.
QString modelPicturePath(const QString &folder, const QString &model, const QString &shortName);

/// folder/KLP/code.jpg; empty when it is not there.
QString moldPicturePath(const QString &folder, const QString &code);

struct PictureResult
{
    QImage image;  ///< null when the file cannot be shown
    QString error; ///< why not, in Turkish
};

/// Reads a picture, upright as its camera says, made smaller where it does not
/// fit into maxSize and never larger. Broken, cut-off and oversized files give
/// an error.
PictureResult loadPicture(const QString &path, QSize maxSize);
