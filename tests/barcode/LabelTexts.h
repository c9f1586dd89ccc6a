#pragma once

#include "PrintDocument.h"

#include <QStringList>

namespace kuyum {

/// The texts of a label in the order in which they were put on it.
inline QList<PageText> labelTexts(const PrintDocument &document)
{
    QList<PageText> texts;
    for (const PageItem &item : document.pages().first().items) {
        if (const PageText *text = std::get_if<PageText>(&item))
            texts.append(*text);
    }
    return texts;
}

inline QStringList labelLines(const PrintDocument &document)
{
    QStringList lines;
    for (const PageText &text : labelTexts(document))
        lines.append(text.text);
    return lines;
}

} // namespace kuyum
