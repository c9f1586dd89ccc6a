#include "FixedPitchText.h"

using namespace Qt::StringLiterals;

namespace kuyum {

QString takeLine(QString &rest, qsizetype width, qsizetype lineWidth)
{
    rest = rest.trimmed();
    if (rest.size() <= width) {
        const QString line = rest;
        rest.clear();
        return line;
    }
    const qsizetype wordEnd = rest.indexOf(u' ');
    const qsizetype firstWord = wordEnd < 0 ? rest.size() : wordEnd;
    qsizetype cut = width;
    if (firstWord <= width)
        cut = rest.lastIndexOf(u' ', width);
    else if (firstWord <= lineWidth)
        cut = 0;
    const QString line = rest.left(cut).trimmed();
    rest = rest.mid(cut).trimmed();
    return line;
}

QStringList wrappedLines(const QString &text, qsizetype firstWidth, qsizetype width)
{
    QString rest = onOneLine(text);
    QStringList lines{takeLine(rest, firstWidth, width)};
    while (!rest.isEmpty())
        lines.append(takeLine(rest, width, width));
    return lines;
}

QString onOneLine(QString text)
{
    text.replace(u"\r\n"_s, u"\n"_s);
    for (QChar &character : text) {
        if (character.category() == QChar::Other_Control ||
            character.category() == QChar::Separator_Line ||
            character.category() == QChar::Separator_Paragraph)
            character = u' ';
    }
    return text;
}

} // namespace kuyum
