#include "NumberRange.h"

#include <cmath>
#include <limits>
#include <optional>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

struct WholeRange
{
    qint64 least;
    qint64 most;
};

template <typename Whole>
constexpr WholeRange rangeOf()
{
    return {std::numeric_limits<Whole>::min(), std::numeric_limits<Whole>::max()};
}

std::optional<WholeRange> wholeRange(FieldType type)
{
    switch (type) {
    case FieldType::Byte:
        return rangeOf<quint8>();
    case FieldType::Integer:
        return rangeOf<qint16>();
    case FieldType::Long:
        return rangeOf<qint32>();
    default:
        return std::nullopt;
    }
}

QString whyOutOfRange(const WholeRange &range, double number)
{
    if (number >= double(range.least) && number <= double(range.most) &&
        std::floor(number) == number)
        return {};
    return u"%1 ile %2 arasında bir tam sayı olmalıdır."_s.arg(QString::number(range.least),
                                                               QString::number(range.most));
}

} // namespace

QString whyKaratDoesNotFit(const FieldDef &field, double karat)
{
    WholeRange range = wholeRange(field.type).value_or(rangeOf<qint32>());
    range.least = 1;
    return whyOutOfRange(range, karat);
}

QString whyNumberDoesNotFit(const FieldDef &field, double number)
{
    if (const std::optional<WholeRange> range = wholeRange(field.type))
        return whyOutOfRange(*range, number);
    const double most = field.type == FieldType::Single ? double(std::numeric_limits<float>::max())
                                                        : std::numeric_limits<double>::max();
    return std::fabs(number) <= most ? QString() : u"bu kadar büyük bir sayı olamaz."_s;
}

} // namespace kuyum
