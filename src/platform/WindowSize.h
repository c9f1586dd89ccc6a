#pragma once

#include <QSize>

class QWidget;

/// Gives a window its size, as far as the screen allows.
void fitToScreen(QWidget &window, QSize wanted);
