#pragma once

namespace kuyum {

/// Whether windows can be opened at all, told before Qt would end the program
/// for want of a display.
bool hasDisplay();

} // namespace kuyum
