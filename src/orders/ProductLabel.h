#pragma once

#include <optional>
#include <QString>

/// What a product label's barcode says: "16", the product type in 3 digits,
/// the model record in 7 and the check digit.
struct ProductLabel
{
    qint32 TipID = 0;
    qint32 Model_ID = 0;
};

constexpr int labelLength = 13;

/// Reads a scanned label; nothing for a text that is none.
std::optional<ProductLabel> readLabel(QStringView text);
