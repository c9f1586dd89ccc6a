#pragma once

#include <QString>

/// A colour.
struct Renk
{
    QString RenkNo;
    double Renksira = 0; ///< place in the lists
};
