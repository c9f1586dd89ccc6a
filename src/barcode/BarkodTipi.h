#pragma once

#include "PrintDocument.h"

#include <optional>

namespace kuyum {

/// A field of a label type: a text, with placeholders in it, at its place.
struct BarkodAlani
{
    QString alanadi;
    PageFont font;
    PagePoint at; ///< from the label's corner
};

/// A special product, which takes the model's place on the label.
struct OzelUrun
{
    QString kod;
    QString isim;
};

/// A label type: a layout that the company has laid out itself.
struct BarkodTipi
{
    qint32 BarkodTip_ID = 0;
    QString BarkodTip_Ad;
    PagePoint pBarkod;              ///< where the symbol stands
    std::optional<PagePoint> resim; ///< where the picture stands, if there is one
    int BasSatiri = 1;              ///< of a sheet, the row of the label to print on
    int BasSutunu = 1;
    QList<BarkodAlani> alanlar;  ///< those that are printed
    QList<OzelUrun> ozelUrunler; ///< empty unless it is a label of special products
};

} // namespace kuyum
