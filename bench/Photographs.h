#pragma once

#include <QImage>

namespace kuyum {

/// A picture of that size as hard to compress as a photograph: shapes in many
/// colours, and grain. The same seed gives the same picture.
QImage makePhotograph(int seed, QSize size);

} // namespace kuyum
