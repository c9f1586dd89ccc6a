#include "ProductLabel.h"

#include "Numbers.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

constexpr QStringView prefix = u"16"; ///< of every product's label
constexpr QStringView typeDigits = u"000";
constexpr QStringView recordDigits = u"0000000";

} // namespace

QString barcodeNumber(const ProductLabel &label)
{
    return prefix.toString() + formatNumber(label.TipID, typeDigits) +
           formatNumber(label.Model_ID, recordDigits);
}

std::optional<ProductLabel> readLabel(QStringView text)
{
    if (text.size() != labelLength || !text.startsWith(prefix) ||
        !std::all_of(text.begin(), text.end(), isDecimalDigit))
        return std::nullopt;
    const QStringView numbers = text.sliced(prefix.size());
    return ProductLabel{
        numbers.first(typeDigits.size()).toInt(),
        numbers.sliced(typeDigits.size(), recordDigits.size()).toInt(),
    };
}

} // namespace kuyum
