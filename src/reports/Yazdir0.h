#pragma once

#include "UretimListesi.h"

#include <functional>
#include <QImage>
#include <QSize>

namespace kuyum {

/// The pictures of a sheet's rows and of molds by their codes; null where there
/// is none that can be shown.
struct UretimResimleri
{
    std::function<QImage(const UretimSatiri &satir)> model;
    std::function<QImage(const QString &kod)> kalip;
};

/// The production sheet with pictures.
PrintDocument Yazdir0_1(const UretimListesi &liste, const UretimResimleri &resimler);
/// The production sheet in lines of text.
PrintDocument Yazdir0_2(const UretimListesi &liste);

/// How many dots of a model's and of a mold's picture the paper shows.
QSize modelDots();
QSize moldDots();

} // namespace kuyum
