#pragma once

namespace kuyum {

/// From now on the process ends, successfully, as soon as a window has been
/// painted. Needs a QApplication.
void endAtFirstPaint();

} // namespace kuyum
