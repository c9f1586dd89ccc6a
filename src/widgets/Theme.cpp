#include "Theme.h"

#include "KuyumStyle.h"

#include <QApplication>
#include <QPalette>
#include <QSettings>
#include <QToolTip>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

bool isDark(const QPalette &palette)
{
    return palette.color(QPalette::Window).lightness() < 128;
}

bool systemIsDark(const QPalette &systemPalette)
{
    const QString wish = qEnvironmentVariable("KUYUM_TEMA");
    if (wish == "koyu"_L1 || wish == "acik"_L1)
        return wish == "koyu"_L1;
#ifdef Q_OS_WIN
    const QSettings personalize(
        u"HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize"_s,
        QSettings::NativeFormat);
    return personalize.value(u"AppsUseLightTheme"_s, 1).toInt() == 0;
#else
    return isDark(systemPalette);
#endif
}

/// Window, base, alternate base, button, text, muted text, lines, in this order.
struct Tones
{
    QRgb window, base, alternate, button, text, muted, line;
};

constexpr Tones lightTones{0xfff4f2ed, 0xffffffff, 0xfff9f7f2, 0xfffdfcfa,
                           0xff26221b, 0xff746d60, 0xffcfc8ba};
constexpr Tones darkTones{0xff211f1b, 0xff191815, 0xff23211d, 0xff322f29,
                          0xffeeeae0, 0xffa59d8e, 0xff4d483f};

QPalette themePalette(bool dark)
{
    const Tones &tones = dark ? darkTones : lightTones;
    QPalette palette(QColor(tones.button), QColor(tones.window));
    palette.setColor(QPalette::Window, tones.window);
    palette.setColor(QPalette::WindowText, tones.text);
    palette.setColor(QPalette::Base, tones.base);
    palette.setColor(QPalette::AlternateBase, tones.alternate);
    palette.setColor(QPalette::Text, tones.text);
    palette.setColor(QPalette::Button, tones.button);
    palette.setColor(QPalette::ButtonText, tones.text);
    palette.setColor(QPalette::BrightText, dark ? 0xffff8a80 : 0xffb3261e);
    palette.setColor(QPalette::PlaceholderText, tones.muted);
    palette.setColor(QPalette::ToolTipBase, tones.base);
    palette.setColor(QPalette::ToolTipText, tones.text);
    palette.setColor(QPalette::Mid, tones.line);
    palette.setColor(QPalette::Dark, QColor(tones.line).darker(125));
    palette.setColor(QPalette::Midlight, QColor(tones.line).lighter(dark ? 85 : 110));
    palette.setColor(QPalette::Light, QColor(tones.button).lighter(dark ? 120 : 103));
    palette.setColor(QPalette::Shadow, dark ? 0xff000000 : 0xff8d8678);
    palette.setColor(QPalette::Highlight, dark ? 0xffe0b13c : 0xffb8860b);
    palette.setColor(QPalette::HighlightedText, dark ? 0xff1e1a10 : 0xffffffff);
    palette.setColor(QPalette::Link, dark ? 0xffe8c468 : 0xff8a6508);
    palette.setColor(QPalette::LinkVisited, dark ? 0xffd0b070 : 0xff6d5210);
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText})
        palette.setColor(QPalette::Disabled, role, QColor(tones.muted));
    palette.setColor(QPalette::Disabled, QPalette::Base, tones.window);
    palette.setColor(QPalette::Disabled, QPalette::Button, tones.window);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, tones.line);
    return palette;
}

} // namespace

ThemeColors themeColors(const QPalette &palette)
{
    const bool dark = isDark(palette);
    ThemeColors colors;
    colors.dark = dark;
    colors.accent = palette.color(QPalette::Active, QPalette::Highlight);
    colors.accentText = palette.color(QPalette::Active, QPalette::HighlightedText);
    colors.muted = palette.color(QPalette::Active, QPalette::PlaceholderText);
    colors.mark = dark ? QColor(0xff, 0x8a, 0x80) : QColor(0xff, 0, 0);
    colors.yellowCell = dark ? QColor(0x57, 0x48, 0x12) : QColor(0xff, 0xf2, 0xa8);
    colors.whiteCell = palette.color(QPalette::Active, QPalette::Base);
    colors.cellText = palette.color(QPalette::Active, QPalette::Text);
    colors.header = dark ? QColor(0x2a, 0x27, 0x21) : QColor(0x2b, 0x26, 0x1c);
    return colors;
}

void applyTheme(QApplication &application)
{
    const QPalette palette = themePalette(systemIsDark(QApplication::palette()));
    QApplication::setStyle(new KuyumStyle);
    QApplication::setPalette(palette);
    QToolTip::setPalette(palette);

    QFont font = QApplication::font();
    constexpr double smallestReadable = 10.5;
    if (font.pointSizeF() < smallestReadable)
        font.setPointSizeF(smallestReadable);
    application.setFont(font);
}

} // namespace kuyum
