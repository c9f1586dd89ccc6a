#pragma once

#include "OrderLookups.h"
#include "PictureFiles.h"
#include "Siparis.h"

#include <QHash>
#include <QImage>
#include <QSize>

/// The pictures of an order's models, each read once and no larger than needed.
/// The image that is handed out is always the same, so that a document with it
/// in many places holds it once.
class ModelPictures
{
public:
    ModelPictures(const OrderLookups &lookups, QSize mostPixels)
        : m_lookups(lookups), m_mostPixels(mostPixels)
    {
    }

    /// Reads the pictures of all rows; false when it was stopped.
    bool read(const Siparis &siparis, const PictureProgress &progress);
    /// Null for a model whose picture is missing or broken, or was not read.
    QImage resim(const QString &model) const;

private:
    OrderLookups m_lookups;
    QSize m_mostPixels;
    QHash<QString, QImage> m_pictures; ///< by folded model code
};
