#pragma once

#include <optional>
#include <QString>

namespace kuyum {

/// Whether buying rates are entered besides the selling rates.
enum class AlisKurlari { Yok, Tutulur };

/// One currency's rates on a date, in the home currency. What was never set is
/// empty.
struct KurSatiri
{
    QString Dovcinsi;
    std::optional<double> Kur;     ///< selling rate
    std::optional<double> aliskur; ///< buying rate
    friend bool operator==(const KurSatiri &, const KurSatiri &) = default;
};

} // namespace kuyum
