#include "FisSatirlari.h"

#include "FixedPitchText.h"

using namespace Qt::StringLiterals;

namespace {

/// A row with a note is broken when it gets longer than this.
constexpr int rowLimit = 60;
constexpr int noteIndent = 49;
/// Quantities stand flush right in columns that follow the colour's.
constexpr int firstTypeEnd = FisSatirlari::colorColumn + 4 + FisSatirlari::typeWidth;

/// Lines on which texts are put at columns.
class ColumnLines
{
public:
    /// Puts a text onto the last line, or onto a new one when it would touch
    /// or cover what stands there.
    void put(int column, const QString &text)
    {
        if (text.isEmpty())
            return;
        if (!fits(m_lines.last(), column))
            newLine();
        append(m_lines.last(), column, text);
    }
    /// Puts a text onto the first line that has room there.
    void putHighest(int column, const QString &text)
    {
        for (QString &line : m_lines) {
            if (fits(line, column))
                return append(line, column, text);
        }
        newLine();
        append(m_lines.last(), column, text);
    }
    void newLine() { m_lines.append(QString()); }
    const QStringList &lines() const { return m_lines; }

private:
    static bool fits(const QString &line, int column)
    {
        return line.isEmpty() || line.size() < column;
    }
    static void append(QString &line, int column, const QString &text)
    {
        line = line.leftJustified(column) + text;
    }

    QStringList m_lines{QString()};
};

} // namespace

int FisSatirlari::noteColumn(qsizetype typeCount)
{
    return firstTypeHeading + typeWidth * int(qMin<qsizetype>(typeCount, typesPerLine));
}

QStringList FisSatirlari::heading(const QList<UrunTipi> &types)
{
    ColumnLines lines;
    lines.put(0, u"MODEL"_s);
    lines.put(colorColumn, u"RENK"_s);
    for (int i = 0; i < types.size(); ++i)
        lines.putHighest(firstTypeHeading + typeWidth * (i % typesPerLine),
                         onOneLine(types[i].KisaAD).trimmed());
    lines.putHighest(noteColumn(types.size()), u"AÇIKLAMA"_s);
    return lines.lines();
}

QStringList FisSatirlari::rowLines(const SiparisSatiri &row)
{
    ColumnLines lines;
    lines.put(0, onOneLine(row.model).trimmed());
    lines.put(colorColumn, onOneLine(row.renk).trimmed());
    int typeLine = 0;
    for (int i = 0; i < row.adetler.size(); ++i) {
        if (row.adetler[i] == 0)
            continue;
        if (i / typesPerLine != typeLine)
            lines.newLine();
        typeLine = i / typesPerLine;
        const QString quantity = QString::number(row.adetler[i]);
        lines.put(firstTypeEnd + typeWidth * (i % typesPerLine) - int(quantity.size()), quantity);
    }

    const int column = noteColumn(row.adetler.size());
    const int limit = column < rowLimit ? rowLimit : lineWidth;
    const QStringList note = wrappedLines(row.aciklama, limit - column, lineWidth - noteIndent);
    lines.put(column, note.first());
    for (const QString &piece : note.mid(1)) {
        lines.newLine();
        lines.put(noteIndent, piece);
    }
    return lines.lines();
}
