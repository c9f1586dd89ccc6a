#pragma once

#include <QString>

namespace kuyum {

/// A stone.
struct Tas
{
    QString Taskodu;
    double TasFiyati = 0;  ///< price of one unit
    QString TasBirimi;     ///< the price's currency
    double TasKatsayi = 0; ///< grams of one stone
};

} // namespace kuyum
