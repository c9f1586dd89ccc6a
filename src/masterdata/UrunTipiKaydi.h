#pragma once

#include <QString>

namespace kuyum {

/// A product type, as it is defined.
struct UrunTipiKaydi
{
    double TipID = 0;  ///< 0: a new one, which gets its number when it is saved
    QString UrunTipi;  ///< name
    QString KisaAD;    ///< short name: heads columns, names the picture folder
    double Sirano = 0; ///< place of its column
};

} // namespace kuyum
