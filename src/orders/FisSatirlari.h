#pragma once

#include "Siparis.h"

#include <QStringList>

/// The lines of the slip's plain list, in characters of its fixed-pitch face.
namespace FisSatirlari {

/// Characters from the list's left edge to the right edge of the paper's frame.
constexpr int lineWidth = 113;
constexpr int colorColumn = 19;
constexpr int firstTypeHeading = 25;
constexpr int typeWidth = 5;
/// More product types than fit on the paper go on in another line.
constexpr int typesPerLine = 16;

/// Where the line notes begin.
int noteColumn(qsizetype typeCount);

/// The column heading; a second line where a short name is too long for its
/// column or there are more product types than fit side by side.
QStringList heading(const QList<UrunTipi> &types);

/// The printed lines of one row. Nothing is cut off: what would touch the
/// text before it goes into a line of its own, in its column.
QStringList rowLines(const SiparisSatiri &row);

} // namespace FisSatirlari
