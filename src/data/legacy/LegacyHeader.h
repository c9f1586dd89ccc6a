#pragma once

#include "LegacyLibrary.h"

namespace kuyum {

/// Refuses, in Turkish, what is no legacy database, was cut off or is locked.
/// To be called right after opening: the first page must still be in the
/// library's hands.
void checkHeader(MdbHandle *handle, qint64 fileSize);

} // namespace kuyum
