#pragma once

#include <QString>
#include <QStringList>

namespace kuyum {

/// Text set in a fixed-pitch face, counted in characters.

/// Takes from the front of `rest` what fits into `width` characters, broken
/// between words. A word that would not fit into `lineWidth` either is cut;
/// a shorter one is left for the next line, so the result may be empty.
QString takeLine(QString &rest, qsizetype width, qsizetype lineWidth);

/// The whole text as lines: the first of at most `firstWidth` characters
/// (empty when no word fits), each further one of at most `width`.
QStringList wrappedLines(const QString &text, qsizetype firstWidth, qsizetype width);

/// One line: line breaks, tabs and other control characters become blanks.
QString onOneLine(QString text);

} // namespace kuyum
