#pragma once

#include "ModelPictures.h"
#include "SlipPages.h"

#include <optional>

namespace kuyum {

struct Oturum;

/// How the user wants the slip.
struct SlipChoice
{
    MusteriKimligi kimlik = MusteriKimligi::Kisa;
    bool resimli = false; ///< with pictures, else the plain list
    int adet = 12;        ///< models to a page with pictures: 7, 12 or 15
};

/// Writes an order's slip with weights and pictures from the company. Nothing
/// when it was stopped while it read the pictures.
std::optional<PrintDocument> orderSlip(Oturum &oturum, const Siparis &siparis,
                                       const SlipChoice &choice, const PictureProgress &progress);

} // namespace kuyum
