#pragma once

#include <QImage>

namespace kuyum {

/// Drawings of jewellery, with the code as text below; the same code always
/// looks the same. `type` is a product type as demoType() counts them.
QImage drawJewel(int type, const QString &code);
QImage drawMold(const QString &code);

} // namespace kuyum
