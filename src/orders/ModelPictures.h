#pragma once

#include "OrderLookups.h"
#include "PictureFiles.h"
#include "Siparis.h"

#include <QHash>
#include <QImage>
#include <QSize>

/// Where the picture of a code is; empty for one without.
using PicturePath = std::function<QString(const QString &code)>;

/// The pictures of models or molds, each read once and no larger than needed.
/// The image that is handed out is always the same, so that a document with it
/// in many places holds it once.
class ModelPictures
{
public:
    ModelPictures(const OrderLookups &lookups, QSize mostPixels)
        : ModelPictures([lookups](const QString &model) { return lookups.picturePath(model); },
                        mostPixels)
    {
    }
    ModelPictures(PicturePath pathOf, QSize mostPixels)
        : m_pathOf(std::move(pathOf)), m_mostPixels(mostPixels)
    {
    }

    /// Reads the pictures of all rows; false when it was stopped.
    bool read(const Siparis &siparis, const PictureProgress &progress);
    bool read(const QStringList &codes, const PictureProgress &progress);
    /// Null for a code whose picture is missing or broken, or was not read.
    QImage resim(const QString &code) const;

private:
    PicturePath m_pathOf;
    QSize m_mostPixels;
    QHash<QString, QImage> m_pictures; ///< by folded code
};
