#pragma once

#include <QString>

/// A mold.
struct Kalip
{
    QString KalipKodu;
    QString KalipAck;
    QString KalipDur; ///< "Icerde" or "Disarda"
};
