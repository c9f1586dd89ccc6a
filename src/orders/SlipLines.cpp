#include "SlipLines.h"

#include "ColumnLines.h"
#include "FixedPitchText.h"

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

/// Quantities stand flush right in columns that follow the colour's.
int firstTypeEnd(const SlipColumns &columns)
{
    return columns.renk + 4 + SlipLines::typeWidth;
}

void putQuantities(ColumnLines &lines, const QList<qint32> &quantities, const SlipColumns &columns)
{
    int typeLine = 0;
    for (int i = 0; i < quantities.size(); ++i) {
        if (quantities[i] == 0)
            continue;
        if (i / columns.typesPerLine != typeLine)
            lines.newLine();
        typeLine = i / columns.typesPerLine;
        lines.putBefore(firstTypeEnd(columns) + SlipLines::typeWidth * (i % columns.typesPerLine),
                        QString::number(quantities[i]));
    }
}

} // namespace

int SlipLines::noteColumn(qsizetype typeCount, const SlipColumns &columns)
{
    return firstTypeHeading(columns) +
           typeWidth * int(qMin<qsizetype>(typeCount, columns.typesPerLine));
}

QStringList SlipLines::heading(const QString &beforeTypes, const QList<UrunTipi> &types,
                               const SlipColumns &columns)
{
    ColumnLines lines;
    lines.put(0, beforeTypes.trimmed());
    for (int i = 0; i < types.size(); ++i)
        lines.putHighest(firstTypeHeading(columns) + typeWidth * (i % columns.typesPerLine),
                         onOneLine(types[i].KisaAD).trimmed());
    lines.putHighest(noteColumn(types.size(), columns), u"AÇIKLAMA"_s);
    return lines.lines();
}

QList<int> SlipLines::ruleColumns(qsizetype typeCount, const SlipColumns &columns)
{
    QList<int> rules{columns.renk};
    for (int i = 0; i < qMin<qsizetype>(typeCount, columns.typesPerLine); ++i)
        rules.append(firstTypeHeading(columns) + typeWidth * i);
    rules.append(noteColumn(typeCount, columns));
    return rules;
}

QStringList SlipLines::rowLines(const SiparisSatiri &row, const SlipColumns &columns)
{
    ColumnLines lines;
    const int modelWidth = lineWidth - columns.model;
    for (const QString &piece : wrappedLines(row.model.trimmed(), modelWidth, modelWidth))
        lines.put(columns.model, piece);
    if (columns.modelAlone)
        lines.newLine();
    lines.put(columns.renk, onOneLine(row.renk).trimmed());
    putQuantities(lines, row.adetler, columns);

    const int column = noteColumn(row.adetler.size(), columns);
    const int limit = column < columns.noteLimit ? columns.noteLimit : lineWidth;
    const int width = lineWidth - columns.noteIndent;
    const QStringList note = wrappedLines(row.aciklama, limit - column, width);
    lines.put(column, note.first());
    for (const QString &piece : note.mid(1)) {
        lines.newLine();
        lines.put(columns.noteIndent, piece);
    }
    return lines.lines();
}

} // namespace kuyum
