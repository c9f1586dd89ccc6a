#include "ColumnLines.h"

namespace kuyum {

void ColumnLines::put(int column, const QString &text)
{
    if (text.isEmpty())
        return;
    if (!fits(m_lines.last(), column))
        newLine();
    append(m_lines.last(), column, text);
}

void ColumnLines::putHighest(int column, const QString &text)
{
    if (text.isEmpty())
        return;
    for (QString &line : m_lines) {
        if (fits(line, column))
            return append(line, column, text);
    }
    newLine();
    append(m_lines.last(), column, text);
}

bool ColumnLines::fits(const QString &line, int column)
{
    return line.isEmpty() || line.size() < column;
}

void ColumnLines::append(QString &line, int column, const QString &text)
{
    line = line.leftJustified(column) + text;
}

} // namespace kuyum
