#pragma once

#include "SlipPages.h"

namespace kuyum {

/// One layout of the picture slips: so many cells to a page, each with a
/// model's picture and beside it the text of its row.
struct PictureLayout
{
    int adet;           ///< cells on a page
    int modelPadding;   ///< characters of the model's column
    Twips pictureWidth; ///< it is as high as the cell allows
    Twips advance;      ///< from cell to cell
    int noteIndent;     ///< of a note's further lines, from where the cell's line begins
    /// The column heading, up to the product types where the layout has them.
    const char16_t *heading;
    bool weights; ///< columns of pieces and weights in place of the product types'

    /// The picture's corner, left of and above the cell's text position.
    static constexpr Twips pictureOffset = 20_tw;
    static constexpr Twips lineAdvance = 200_tw;

    constexpr Twips pictureHeight() const { return advance - 50_tw; }
    /// Lines of text that stand in a cell and leave the next one free.
    int linesPerCell() const;
    /// The columns of its lines. The text begins where the picture ends.
    SlipColumns columns() const;
    QStringList headingLines(const QList<UrunTipi> &tipler) const;
    QList<int> ruleColumns(qsizetype typeCount) const;
};

/// The layout of so many cells: 15 or 7; any other number stands for 12.
const PictureLayout &pictureLayout(int adet);

/// What the layout of 12 says of a row's gold.
struct RowWeights
{
    double UrGram = 0; ///< of one piece, as the model has it
    double total = 0;  ///< of the row, as it is in the order's total
};

/// The lines of a row's text, from the list's left edge. Nothing is cut off;
/// there may be more lines than a cell holds.
QStringList cellLines(const PictureLayout &layout, const SiparisSatiri &row,
                      const QList<UrunTipi> &tipler, const RowWeights &rowWeights);

} // namespace kuyum
