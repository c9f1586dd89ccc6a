#include "FieldValues.h"

#include "DatabaseError.h"
#include "Dates.h"
#include "Numbers.h"

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

[[noreturn]] void refuse(const FieldDef &field, const QVariant &value)
{
    throw DatabaseError(u"\"%1\" alanına \"%2\" yazılamaz."_s.arg(field.name, value.toString()));
}

bool isText(const QVariant &value)
{
    return value.typeId() == QMetaType::QString;
}

double numberOf(const FieldDef &field, const QVariant &value)
{
    if (!isText(value)) {
        bool ok = false;
        const double number = value.toDouble(&ok);
        if (!ok)
            refuse(field, value);
        return number;
    }
    if (!isNumeric(value.toString()))
        refuse(field, value);
    return leadingNumber(value.toString());
}

template <typename Whole>
QVariant wholeNumber(const FieldDef &field, const QVariant &value)
{
    const double number = roundDecimal(numberOf(field, value), 0);
    if (!(number >= std::numeric_limits<Whole>::min() &&
          number <= std::numeric_limits<Whole>::max()))
        refuse(field, value);
    return qint64(number);
}

QVariant moment(const FieldDef &field, const QVariant &value)
{
    QDateTime result;
    if (value.typeId() == QMetaType::QDate)
        result = QDateTime(value.toDate(), QTime(0, 0), Qt::UTC);
    else if (value.typeId() == QMetaType::QDateTime)
        result = value.toDateTime();
    else if (isText(value))
        result = QDateTime(parseDate(value.toString()), QTime(0, 0), Qt::UTC);
    if (!result.isValid())
        refuse(field, value);
    return isoText(result);
}

QVariant text(const FieldDef &field, const QVariant &value)
{
    QString result;
    if (value.typeId() == QMetaType::Double || value.typeId() == QMetaType::Float)
        result = plainNumber(value.toDouble());
    else
        result = value.toString();
    if (field.type == FieldType::Text && field.size > 0 && result.size() > field.size) {
        throw DatabaseError(u"\"%1\" alanı en fazla %2 karakter alır: \"%3\""_s.arg(
            field.name, QString::number(field.size), result));
    }
    // An empty text is not a null; only a text that was never set is.
    return result.isNull() ? u""_s : result;
}

} // namespace

QVariant storedValue(const FieldDef &field, const QVariant &value)
{
    if (!value.isValid())
        return {};
    switch (field.type) {
    case FieldType::Boolean:
        return value.toBool() ? 1 : 0;
    case FieldType::Byte:
        return wholeNumber<quint8>(field, value);
    case FieldType::Integer:
        return wholeNumber<qint16>(field, value);
    case FieldType::Long:
        return wholeNumber<qint32>(field, value);
    case FieldType::Single:
        return double(float(numberOf(field, value)));
    case FieldType::Double:
        return numberOf(field, value);
    case FieldType::Currency:
        return roundDecimal(numberOf(field, value), 4);
    case FieldType::Date:
        return moment(field, value);
    case FieldType::Text:
    case FieldType::Memo:
        return text(field, value);
    case FieldType::Time:
    case FieldType::Binary:
    case FieldType::LongBinary:
    case FieldType::Guid:
    case FieldType::Decimal:
        break;
    }
    return value;
}

QVariant readValue(FieldType type, const QVariant &stored)
{
    if (stored.isNull())
        return {};
    if (type == FieldType::Date && isText(stored)) {
        const QDateTime moment = parseIso(stored.toString());
        return moment.isValid() ? QVariant(moment) : stored;
    }
    if (type == FieldType::Boolean)
        return stored.toInt() != 0;
    return stored;
}

} // namespace kuyum
