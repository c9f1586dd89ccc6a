#pragma once

#include "Siparis.h"

#include <QStringList>

namespace kuyum {

/// The columns of a slip's lines, in characters of its fixed-pitch face from
/// the list's left edge.
struct SlipColumns
{
    int model = 0; ///< where the model begins
    int renk = 19;
    int typesPerLine = 16;   ///< more product types go on in another line
    int noteLimit = 60;      ///< a row with a note is broken when it gets longer
    int noteIndent = 49;     ///< where the note's further lines begin
    bool modelAlone = false; ///< the model has the first line to itself
};

/// The lines of a slip: of its column heading and of the order's rows.
namespace SlipLines {

/// Characters from the list's left edge to the right edge of the paper's frame.
constexpr int lineWidth = 113;
constexpr int typeWidth = 5;

/// Where the first product type's short name stands in the heading.
constexpr int firstTypeHeading(const SlipColumns &columns)
{
    return columns.renk + 6;
}

/// Where the line notes begin.
int noteColumn(qsizetype typeCount, const SlipColumns &columns = {});

/// The column heading; a second line where a short name is too long for its
/// column or there are more product types than fit side by side.
QStringList heading(const QString &beforeTypes, const QList<UrunTipi> &types,
                    const SlipColumns &columns = {});

/// The heading's columns that a rule stands before.
QList<int> ruleColumns(qsizetype typeCount, const SlipColumns &columns = {});

/// The printed lines of one row. Nothing is cut off: what would touch the
/// text before it goes into a line of its own, in its column.
QStringList rowLines(const SiparisSatiri &row, const SlipColumns &columns = {});

} // namespace SlipLines

} // namespace kuyum
