#pragma once

#include <QString>

namespace kuyum {

/// A colour.
struct Renk
{
    QString RenkNo;
    double Renksira = 0; ///< place in the lists
};

} // namespace kuyum
