#pragma once

class QPainter;
class QRect;
class QStyleOption;
class QStyleOptionHeader;
class QStyleOptionSlider;

namespace kuyum {

/// How the parts of KuyumStyle look. Each takes its state and palette from the
/// option: what has the focus is ringed with gold.

/// Whether this is the button that Enter presses, which is filled with gold.
bool isDefaultButton(const QStyleOption *option);

void drawButtonPanel(const QStyleOption *option, QPainter *painter);
/// The box of an entry line, also of one with arrows at its end.
void drawLinePanel(const QStyleOption *option, QPainter *painter);
/// Around a list, a grid or a text of several lines.
void drawViewFrame(const QStyleOption *option, QPainter *painter);
void drawFocusRing(const QStyleOption *option, QPainter *painter);
void drawCheckBox(const QStyleOption *option, QPainter *painter);
void drawRadioButton(const QStyleOption *option, QPainter *painter);
void drawHeaderSection(const QStyleOptionHeader *option, QPainter *painter);
void drawScrollBar(const QStyleOptionSlider *option, const QRect &handle, QPainter *painter);

} // namespace kuyum
