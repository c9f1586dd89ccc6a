#pragma once

#include "Twips.h"

#include <QString>

class QPainter;

namespace kuyum {

/// A bar code on a page: its modules from left to right, "X" dark and "O"
/// light. A module is as many whole dots of the device as come nearest to its
/// width, for a reader measures the bars against each other.
struct PageBars
{
    QString modules;
    Twips moduleWidth;
    Twips height;
    /// How far the symbol may reach to the right. On coarse devices a module
    /// is two dots wide, more than its width, as long as there is room: single
    /// dots run into each other on paper.
    Twips room;
};

/// Dots to the inch of the usual label printer.
constexpr int usualHead = 203;

/// Paints the bars, in twips, from the point (0,0) of the painter's present
/// scale. Their left edge comes to lie on the nearest dot; light modules are
/// painted white.
void paintBars(QPainter &painter, const PageBars &bars);

} // namespace kuyum
