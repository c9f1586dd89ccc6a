#pragma once

#include "PrintDocument.h"

namespace kuyum {

/// What stands on a product's label.
struct Etiket
{
    qint32 TipID = 0;
    qint32 Model_ID = 0; ///< any record of the model
    QString Model;
    double Miktar = 0; ///< grams
    QString Ayar;      ///< as it is to be read, such as "585"
    QString UrunTipi;  ///< the product type's name
    QString Aciklama;  ///< stands in place of the product type when there is one
};

/// The label of the fixed layout: one page on label paper. Throws
/// std::runtime_error for a number that is no barcode.
PrintDocument etiketBelgesi(const Etiket &etiket);

} // namespace kuyum
