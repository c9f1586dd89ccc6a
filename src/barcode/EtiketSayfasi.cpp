#include "EtiketSayfasi.h"

#include "Ean13.h"
#include "FixedPitchText.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

/// 13 dots at 203 dpi. The longest model code of 30 characters just fits.
constexpr double smallestPoints = 4.5;
constexpr double step = 0.5;

} // namespace

PageBars labelSymbol(const QString &number, Twips room)
{
    const QString rightQuietZone(7, u'O');
    return {ean13Modules(number) + rightQuietZone, etiketBirimi, symbolHeight, room};
}

void fittedText(PrintDocument &document, PagePoint at, const QString &text, Twips end)
{
    QString line = onOneLine(text).trimmed();
    if (line.isEmpty())
        return;
    const PageFont wanted = document.font();
    PageFont font = wanted;
    const Twips room = end - at.x;
    const auto width = [&] { return printedWidth(font, line); };
    if (const Twips full = width(); full > room && font.points > smallestPoints) {
        const double fitting = font.points * room.count() / full.count();
        font.points = qMax(smallestPoints, std::floor(fitting / step) * step);
    }
    while (line.size() > 1 && width() > room) {
        if (line.endsWith(u'…'))
            line.chop(1);
        line = line.chopped(1).trimmed() + u'…';
    }
    document.setFont(font);
    document.text(at, line);
    document.setFont(wanted);
}

} // namespace kuyum
