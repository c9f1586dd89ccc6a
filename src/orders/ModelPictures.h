#pragma once

#include "OrderLookups.h"
#include "PictureFiles.h"
#include "Siparis.h"

#include <QHash>
#include <QImage>
#include <QSize>

namespace kuyum {

/// What a picture is wanted of: a model as one or more product types, or a mold.
struct PictureWish
{
    QString kod;
    QStringList tipler = {}; ///< short names; none where the row does not say
    friend bool operator==(const PictureWish &, const PictureWish &) = default;
};

/// Where the picture is; empty where there is none.
using PicturePath = std::function<QString(const PictureWish &wish)>;

/// The pictures of models or molds, each file read once and no larger than
/// needed. The image that is handed out is always the same, so that a document
/// with it in many places holds it once.
class ModelPictures
{
public:
    ModelPictures(const OrderLookups &lookups, QSize mostPixels)
        : ModelPictures(
              [lookups](const PictureWish &wish) {
                  return lookups.picturePath(wish.kod, wish.tipler);
              },
              mostPixels)
    {
    }
    ModelPictures(PicturePath pathOf, QSize mostPixels)
        : m_pathOf(std::move(pathOf)), m_mostPixels(mostPixels)
    {
    }

    /// Reads the pictures; false when it was stopped.
    bool read(const QList<PictureWish> &wishes, const PictureProgress &progress);
    /// Null where the picture is missing or broken, or was not read.
    QImage resim(const PictureWish &wish) const;

private:
    PicturePath m_pathOf;
    QSize m_mostPixels;
    QHash<QString, QString> m_paths; ///< by wish
    QHash<QString, QImage> m_images; ///< by path
};

} // namespace kuyum
