#include "MissingPicture.h"

#include "FixedPitchText.h"

namespace kuyum {

namespace {

constexpr Twips hairline = 5_tw;
constexpr Twips margin = 60_tw;
constexpr double lineSpacing = 1.25; ///< of the font's size

void frame(PrintDocument &document, const PictureRoom &box)
{
    const Twips right = box.at.x + box.width;
    const Twips bottom = box.at.y + box.height;
    document.line(box.at, {right, box.at.y}, hairline);
    document.line({right, box.at.y}, {right, bottom}, hairline);
    document.line({right, bottom}, {box.at.x, bottom}, hairline);
    document.line({box.at.x, bottom}, box.at, hairline);
}

} // namespace

void missingPicture(PrintDocument &document, const PictureRoom &box, const QString &code)
{
    frame(document, box);
    const Twips charWidth = Twips::fromPoints(document.font().points * 0.6);
    const Twips advance = Twips::fromPoints(document.font().points * lineSpacing);
    const int width = int((box.width - margin * 2).count() / charWidth.count());
    const int height = int((box.height - margin * 2).count() / advance.count());
    QStringList lines = wrappedLines(code, width, width);
    if (lines.size() > height) { // the whole code stands beside the box
        lines = lines.first(height);
        lines.last().back() = u'…';
    }
    Twips y = box.at.y + (box.height - advance * double(lines.size())) * 0.5;
    for (const QString &line : lines) {
        document.text({box.at.x + (box.width - charWidth * double(line.size())) * 0.5, y}, line);
        y += advance;
    }
}

} // namespace kuyum
