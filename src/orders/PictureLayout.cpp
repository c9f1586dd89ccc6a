#include "PictureLayout.h"

#include "ColumnLines.h"
#include "FixedPitchText.h"
#include "Numbers.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace kuyum {

using namespace SlipMeasures;

namespace {

constexpr PictureLayout layouts[] = {
    {7, 31, 2300_tw, 1800_tw, 61, u"RESIM/MODEL                    RENK  ", false},
    {12, 15, 1340_tw, 1050_tw, 42,
     u"RESIM/MODEL                    RNK ADET T.AD GR    T.GR   AÇIKLAMA", true},
    {15, 18, 1130_tw, 900_tw, 48, u"RESIM        MODEL             RENK  ", false},
};

/// In all layouts; the padded model ends before it.
constexpr int colourColumn = 31;
/// What is left of the paper beside picture, model and colour.
constexpr int typesPerLine = 13;
constexpr Twips pictureGap = 40_tw;
constexpr Twips cellGap = 45_tw;

// The columns of the layout with weights.
constexpr int piecesColumn = 35;
constexpr int totalPiecesColumn = 40;
constexpr int gramsColumn = 45;
constexpr int totalGramsColumn = 51;
constexpr int weightsNoteColumn = 58;
// Where their numbers end, flush right, so that rows of 999 pieces, pieces of
// 99 grams and rows of 9999 grams leave a blank between them.
constexpr int piecesEnd = 39;
constexpr int totalPiecesEnd = 43;
constexpr int gramsEnd = 49;
constexpr int totalGramsEnd = 57;

QString gramsText(double value)
{
    return formatNumber(value, u"##0.00");
}

/// A row's quantities that are not 0, each with its product type's short name.
QList<std::pair<QString, QString>> quantities(const SiparisSatiri &row,
                                              const QList<UrunTipi> &tipler)
{
    QList<std::pair<QString, QString>> result;
    for (qsizetype i = 0; i < row.adetler.size(); ++i) {
        if (row.adetler[i] != 0)
            result.append({onOneLine(tipler[i].KisaAD).trimmed(), QString::number(row.adetler[i])});
    }
    return result;
}

void putTotals(ColumnLines &lines, const SiparisSatiri &row, const RowWeights &rowWeights)
{
    lines.putBefore(totalPiecesEnd, QString::number(row.totalCount()));
    lines.putBefore(gramsEnd, gramsText(rowWeights.UrGram));
    lines.putBefore(totalGramsEnd, gramsText(rowWeights.total));
}

/// A line for each product type, its short name before the colour's column.
QStringList weightLines(const SiparisSatiri &row, const QList<UrunTipi> &tipler,
                        const SlipColumns &columns, const RowWeights &rowWeights)
{
    const auto pieces = quantities(row, tipler);
    const int noteWidth = SlipLines::lineWidth - weightsNoteColumn;
    const QStringList note = wrappedLines(row.aciklama, noteWidth, noteWidth);
    const int modelWidth = SlipLines::lineWidth - columns.model;
    ColumnLines lines;
    for (const QString &piece : wrappedLines(row.model.trimmed(), modelWidth, modelWidth))
        lines.put(columns.model, piece);
    for (qsizetype i = 0; i < std::max(pieces.size(), qsizetype(1)); ++i) {
        if (i > 0)
            lines.newLine();
        const auto [type, adet] = pieces.value(i);
        lines.put(std::max(columns.model, columns.renk - 1 - int(type.size())), type);
        if (i == 0)
            lines.put(columns.renk, onOneLine(row.renk).trimmed());
        lines.putBefore(piecesEnd, adet);
        if (i == 0)
            putTotals(lines, row, rowWeights);
    }
    // Beside all of that, so that it needs no lines of its own.
    lines.putHighest(weightsNoteColumn, note.first());
    for (const QString &piece : note.mid(1))
        lines.putHighest(columns.noteIndent, piece);
    return lines.lines();
}

} // namespace

int PictureLayout::linesPerCell() const
{
    return 1 + int((advance - cellGap - lineHeight).count() / lineAdvance.count());
}

SlipColumns PictureLayout::columns() const
{
    const int lineColumn = colourColumn - modelPadding;
    const Twips textX = listAt.x - pictureOffset + pictureWidth + pictureGap;
    const int besidePicture = int(std::ceil((textX - listAt.x).count() / charWidth.count()));
    SlipColumns result;
    result.model = std::max(lineColumn, besidePicture);
    result.renk = colourColumn;
    result.typesPerLine = typesPerLine;
    result.noteLimit = SlipLines::lineWidth;
    result.noteIndent = lineColumn + noteIndent;
    // A picture that takes the model's column leaves it no room before the colour.
    result.modelAlone = besidePicture > lineColumn;
    return result;
}

QStringList PictureLayout::headingLines(const QList<UrunTipi> &tipler) const
{
    const QString text = QString::fromUtf16(heading);
    return weights ? QStringList{text} : SlipLines::heading(text, tipler, columns());
}

QList<int> PictureLayout::ruleColumns(qsizetype typeCount) const
{
    if (weights)
        return {colourColumn, piecesColumn,     totalPiecesColumn,
                gramsColumn,  totalGramsColumn, weightsNoteColumn};
    QList<int> rules = SlipLines::ruleColumns(typeCount, columns());
    if (!columns().modelAlone)
        rules.prepend(columns().model);
    return rules;
}

const PictureLayout &pictureLayout(int adet)
{
    const PictureLayout *ofTwelve = &layouts[1];
    for (const PictureLayout &layout : layouts) {
        if (layout.adet == adet)
            return layout;
    }
    return *ofTwelve;
}

QStringList cellLines(const PictureLayout &layout, const SiparisSatiri &row,
                      const QList<UrunTipi> &tipler, const RowWeights &rowWeights)
{
    SlipColumns columns = layout.columns();
    if (layout.weights)
        return weightLines(row, tipler, columns, rowWeights);
    const QStringList lines = SlipLines::rowLines(row, columns);
    if (lines.size() <= layout.linesPerCell())
        return lines;
    // A long note uses the whole width beside the picture.
    columns.noteIndent = columns.model;
    return SlipLines::rowLines(row, columns);
}

} // namespace kuyum
