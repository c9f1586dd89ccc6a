#pragma once

#include <QColor>

class QApplication;
class QPalette;

namespace kuyum {

/// The look of the program: Fusion in light or dark, with gold as its one
/// accent. KUYUM_TEMA=acik or koyu in the environment overrides what the
/// system says.
void applyTheme(QApplication &application);

/// Colours with a meaning, readable in the palette's theme.
struct ThemeColors
{
    bool dark = false;
    QColor accent;     ///< gold: focus, selection, the default button
    QColor accentText; ///< on gold
    QColor muted;      ///< text of second rank
    QColor mark;       ///< red: what is forbidden, missing or wrong
    QColor yellowCell; ///< a quantity that can be entered
    QColor whiteCell;  ///< a quantity that cannot
    QColor cellText;   ///< on both
    QColor header;     ///< the band at the top of a window
};

ThemeColors themeColors(const QPalette &palette);

} // namespace kuyum
