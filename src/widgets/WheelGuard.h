#pragma once

class QCoreApplication;

namespace kuyum {

/// Keeps the wheel from changing a list or a number box that does not have the
/// focus: it scrolls the page that the box stands on.
void guardBoxesFromWheel(QCoreApplication &application);

} // namespace kuyum
