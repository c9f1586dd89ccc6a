#pragma once

#include <optional>
#include <QString>

namespace kuyum {

/// The bar code by which a printed slip names its order: an EAN-13 of "29", a
/// prefix that no article bears, and the order number in 10 digits. Scanners
/// that read product labels read it as they are set, and its check digit tells
/// a wrong reading.
QString orderCode(qint32 Sipnum);
/// The order of a scanned code; nothing for any other text.
std::optional<qint32> readOrderCode(QStringView text);

/// What was typed or scanned where an order number is asked for.
struct OrderNumberEntry
{
    double number = 0; ///< 0 for an empty text
    QString refusal;   ///< why the text is no order number, in Turkish; empty where it is one
};

OrderNumberEntry readOrderNumber(const QString &text);

/// How many characters its box takes: all of a scanned code, so that no part
/// of one is taken for a number.
constexpr int orderNumberLength = 20;

} // namespace kuyum
