#include "ProductLabel.h"

#include <algorithm>

std::optional<ProductLabel> readLabel(QStringView text)
{
    const auto isDigit = [](QChar c) { return c >= u'0' && c <= u'9'; };
    if (text.size() != labelLength || !text.startsWith(u"16") ||
        !std::all_of(text.begin(), text.end(), isDigit))
        return std::nullopt;
    return ProductLabel{text.sliced(2, 3).toInt(), text.sliced(5, 7).toInt()};
}
