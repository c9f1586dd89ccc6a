#pragma once

#include <QString>

namespace kuyum {

/// A mold.
struct Kalip
{
    QString KalipKodu;
    QString KalipAck;
    QString KalipDur; ///< "Icerde" or "Disarda"
};

} // namespace kuyum
