#include "TableDef.h"

#include "TurkishText.h"

#include <array>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

struct Declared
{
    FieldType type;
    QLatin1StringView word;
};

/// The words are chosen so that the engine keeps every value as it is: it
/// would read the text "007" as a number in a column declared MEMO, cut a
/// whole Single to an integer, and round a large Currency. REAL and BLOB in
/// these words keep it from doing so.
constexpr std::array<Declared, 15> declaredTypes = {{
    {FieldType::Boolean, "BIT"_L1},
    {FieldType::Byte, "BYTE"_L1},
    {FieldType::Integer, "INTEGER"_L1},
    {FieldType::Long, "LONG"_L1},
    {FieldType::Currency, "CURRENCY BLOB"_L1},
    {FieldType::Single, "REAL"_L1},
    {FieldType::Double, "DOUBLE"_L1},
    {FieldType::Date, "DATETIME"_L1},
    {FieldType::Time, "TIME"_L1},
    {FieldType::Text, "TEXT"_L1},
    {FieldType::Binary, "BINARY BLOB"_L1},
    {FieldType::LongBinary, "LONGBINARY BLOB"_L1},
    {FieldType::Memo, "LONGTEXT"_L1},
    {FieldType::Guid, "GUID BLOB"_L1},
    {FieldType::Decimal, "DECIMAL BLOB"_L1},
}};

} // namespace

QString FieldDef::declaration() const
{
    if (counter)
        return u"INTEGER PRIMARY KEY AUTOINCREMENT"_s;
    QString result;
    for (const Declared &declared : declaredTypes) {
        if (declared.type == type)
            result = declared.word;
    }
    if (size > 0)
        result += u"(%1)"_s.arg(size);
    return result;
}

FieldDef FieldDef::fromDeclaration(const QString &name, const QString &declaration)
{
    static const QRegularExpression pattern(uR"(^\s*([A-Za-z ]*?)\s*(?:\((\d+)[^)]*\))?\s*$)"_s);
    const QRegularExpressionMatch match = pattern.match(declaration);
    const QString word = match.captured(1).toUpper();
    FieldDef field;
    field.name = name;
    field.size = match.captured(2).toInt();
    for (const Declared &declared : declaredTypes) {
        if (word == declared.word) {
            field.type = declared.type;
            return field;
        }
    }
    field.type = word.contains(u"INT"_s)    ? FieldType::Long
                 : word.contains(u"BLOB"_s) ? FieldType::LongBinary
                 : word.isEmpty() || word.contains(u"CHAR"_s) || word.contains(u"TEXT"_s)
                     ? FieldType::Memo
                     : FieldType::Double;
    return field;
}

const FieldDef *TableDef::field(QStringView name) const
{
    for (const FieldDef &field : fields) {
        if (sameText(field.name, name))
            return &field;
    }
    return nullptr;
}

const FieldDef *TableDef::counter() const
{
    for (const FieldDef &field : fields) {
        if (field.counter)
            return &field;
    }
    return nullptr;
}

int TableDef::textLimit(QStringView name) const
{
    const FieldDef *def = field(name);
    return def != nullptr && def->type == FieldType::Text ? def->size : 0;
}

} // namespace kuyum
