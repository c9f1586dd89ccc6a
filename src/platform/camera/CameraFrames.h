#pragma once

#include "FrameSource.h"

namespace kuyum {

/// The camera of that index in the system's order; null where there is none or
/// the system has nothing to drive cameras with. KUYUM_KAMERA in the
/// environment names a picture file that stands for a camera, for tests and for
/// machines without one.
std::unique_ptr<FrameSource> openCamera(int index);

} // namespace kuyum
