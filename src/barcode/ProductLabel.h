#pragma once

#include <optional>
#include <QString>

namespace kuyum {

/// What a product label's barcode says: "16", the product type in 3 digits,
/// the model record in 7 and the check digit.
struct ProductLabel
{
    qint32 TipID = 0;
    qint32 Model_ID = 0;
};

constexpr int labelLength = 13;

/// The number that a label's barcode is drawn from: 12 digits, without the
/// check digit. More than 12 where a type or a record number has more digits
/// than its place; such a label does not read back.
QString barcodeNumber(const ProductLabel &label);

/// Reads a scanned label; nothing for a text that is none.
std::optional<ProductLabel> readLabel(QStringView text);

} // namespace kuyum
