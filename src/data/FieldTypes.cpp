#include "FieldTypes.h"

#include "Dates.h"

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

/// False is stored as a 0.
enum class Neutral { Zero, NoDate, Blank };

struct TypeEntry
{
    FieldType type;
    QLatin1StringView name;
    Neutral neutral;
    int bytes; ///< 0 where lengths differ
};

constexpr TypeEntry entries[] = {
    {FieldType::Boolean, "Boolean"_L1, Neutral::Zero, 1},
    {FieldType::Byte, "Byte"_L1, Neutral::Zero, 1},
    {FieldType::Integer, "Integer"_L1, Neutral::Zero, 2},
    {FieldType::Long, "Long"_L1, Neutral::Zero, 4},
    {FieldType::Currency, "Currency"_L1, Neutral::Blank, 8},
    {FieldType::Single, "Single"_L1, Neutral::Zero, 4},
    {FieldType::Double, "Double"_L1, Neutral::Zero, 8},
    {FieldType::Date, "Date"_L1, Neutral::NoDate, 8},
    {FieldType::Time, "Time"_L1, Neutral::Blank, 8},
    {FieldType::Text, "Text"_L1, Neutral::Blank, 0},
    {FieldType::Binary, "Binary"_L1, Neutral::Blank, 0},
    {FieldType::LongBinary, "LongBinary"_L1, Neutral::Blank, 0},
    {FieldType::Memo, "Memo"_L1, Neutral::Blank, 0},
    {FieldType::Guid, "GUID"_L1, Neutral::Blank, 16},
    {FieldType::Decimal, "Decimal"_L1, Neutral::Blank, 16},
};

const TypeEntry &entryOf(FieldType type)
{
    for (const TypeEntry &entry : entries) {
        if (entry.type == type)
            return entry;
    }
    Q_UNREACHABLE();
}

} // namespace

QString typeName(FieldType type)
{
    return entryOf(type).name;
}

QVariant neutralValue(FieldType type)
{
    switch (entryOf(type).neutral) {
    case Neutral::Zero:
        return 0;
    case Neutral::NoDate:
        return isoText(noDate());
    case Neutral::Blank:
        break;
    }
    return u" "_s;
}

int shownSize(const FieldDef &field)
{
    return field.size > 0 ? field.size : entryOf(field.type).bytes;
}

} // namespace kuyum
