#pragma once

#include <QString>

namespace kuyum {

/// The company's working settings, the row of XXX.
struct Ayarlar
{
    double TeraziTip = 0;
    double ComportID = 0;
    QString comportST;
    QString YaziciAdi; ///< of the label printer
    double sabitayar = 0;

    bool operator==(const Ayarlar &) const = default;
};

} // namespace kuyum
