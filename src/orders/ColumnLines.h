#pragma once

#include <QStringList>

namespace kuyum {

/// Lines of fixed-pitch text on which texts are put at columns, from left to
/// right. Nothing covers or touches what stands there already: what would goes
/// into a line of its own, in its column.
class ColumnLines
{
public:
    /// Puts a text onto the last line, or onto a new one when it would touch
    /// or cover what stands there.
    void put(int column, const QString &text);
    /// The same with the column that the text ends before.
    void putBefore(int column, const QString &text) { put(column - int(text.size()), text); }
    /// Puts a text onto the first line that has room there.
    void putHighest(int column, const QString &text);
    void newLine() { m_lines.append(QString()); }
    const QStringList &lines() const { return m_lines; }

private:
    static bool fits(const QString &line, int column);
    static void append(QString &line, int column, const QString &text);

    QStringList m_lines{QString()};
};

} // namespace kuyum
