#pragma once

namespace kuyum {

/// A karat.
struct Ayar
{
    double Milyem = 0;   ///< fineness in thousandths
    double Yogunluk = 0; ///< density
};

} // namespace kuyum
