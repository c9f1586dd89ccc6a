#pragma once

#include "SlipPages.h"
#include "ToplamGram.h"

#include <QSize>

namespace kuyum {

/// What a picture slip is written from.
struct PictureSlipSource
{
    const Siparis &siparis;
    MusteriKimligi kimlik = MusteriKimligi::Kisa;
    OrderGrams grams;
    /// The picture of a row's model; null when there is none that can be shown.
    std::function<QImage(const SiparisSatiri &row)> resim;
    /// Grams of one piece of a model.
    std::function<double(const QString &model)> UrGram;
};

/// The order slip with pictures of the models, so many to a page.
PrintDocument Yazdir_Resimli_7(const PictureSlipSource &source);
PrintDocument Yazdir_Resimli_12(const PictureSlipSource &source);
PrintDocument Yazdir_Resimli_15(const PictureSlipSource &source);

/// How many dots of a picture the paper shows on the slip of so many to a page.
QSize picturePixels(int adet);

} // namespace kuyum
