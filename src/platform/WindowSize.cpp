#include "WindowSize.h"

#include <QScreen>
#include <QWidget>

void fitToScreen(QWidget &window, QSize wanted)
{
    constexpr QSize windowFrame(10, 60);
    window.resize(wanted.boundedTo(window.screen()->availableSize() - windowFrame));
}
