#pragma once

#include "PrintDocument.h"

namespace kuyum {

/// What all labels have in common: their units, their paper, their symbol.

/// The unit of the labels' positions: half a point. A row of 20 units then
/// holds a text of 8 points, and 104 mm are 589 units.
constexpr Twips etiketBirimi = 10_tw;

constexpr Twips labelUnits(double count)
{
    return etiketBirimi * count;
}

/// As wide as a 4-inch label printer prints, as high as the fixed layout.
constexpr Twips labelWidth = Twips::fromMillimetres(104);
constexpr Twips labelHeight = Twips::fromMillimetres(12);

constexpr QStringView labelFont = u"Courier New Tur";

/// Where the fixed layout has its symbol.
constexpr PagePoint symbolPlace{labelUnits(260), labelUnits(10)};
constexpr Twips symbolHeight = labelUnits(35);
/// Of a symbol without its right quiet zone, as it is laid out.
constexpr Twips symbolWidth = labelUnits(102);
/// With its right quiet zone, where a module of two dots is widest: at 203 dpi.
constexpr Twips widestSymbol = Twips(109 * 2 * 1440.0 / 203 + 1);

/// The symbol of a product's number with its right quiet zone. It may reach
/// as far to the right as there is room.
PageBars labelSymbol(const QString &number, Twips room);

/// Puts a text on the label that ends before a place: set smaller, down to
/// 4.5 points, where it is too long, and cut with "…" where that does not do.
void fittedText(PrintDocument &document, PagePoint at, const QString &text, Twips end);

} // namespace kuyum
