#pragma once

#include "Ean13.h"

#include <QImage>

namespace kuyum {

/// What a symbol takes with its right quiet zone and the captions below, at the
/// sizes that are drawn unless others are given.
constexpr QSize symbolUnits(112, 46);

/// A surface that symbols are drawn on, measured in units of so many dots each.
class BarkodYuzeyi
{
public:
    BarkodYuzeyi(QSize units, int dotsPerUnit);

    /// White again, the cursor at the left edge.
    void clear();
    /// Draws a pattern at the cursor, light modules white, moves the cursor on
    /// and prints the caption below the bars.
    void DesenCiz(const BarPart &part, qint16 height, qint16 moduleWidth);

    const QImage &image() const { return m_image; }

private:
    QImage m_image;
    int m_dotsPerUnit;
    qint16 m_x = 0;
};

/// Heights and widths of a symbol in the surface's units.
struct BarkodOlculeri
{
    qint16 digitHeight = 35;
    qint16 guardHeight = 35;
    qint16 moduleWidth = 1;
};

/// Draws a code as EAN-13. Throws std::runtime_error at a character that is no
/// digit, but for the first, which then counts as 0; what was drawn before it
/// stays.
void BarkodCiz(BarkodYuzeyi &pBarkod, const QString &code, const BarkodOlculeri &sizes = {});

} // namespace kuyum
