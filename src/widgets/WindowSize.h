#pragma once

#include <QSize>

class QCoreApplication;
class QSettings;
class QWidget;

namespace kuyum {

/// Gives a window its size, as far as the screen allows.
void fitToScreen(QWidget &window, QSize wanted);

/// Moves a window so that it stands whole on its screen, its frame included.
void keepOnScreen(QWidget &window);

/// Each of the program's own windows, by the name of its class, opens as large
/// and where the user left it, and whole on the screen; where its content needs
/// more room than the screen has, it scrolls. A place that is on no screen today
/// is not used, and a window that has placed itself stays there. The settings
/// stay the caller's and outlive the windows.
void rememberWindows(QCoreApplication &application, QSettings &settings);

} // namespace kuyum
