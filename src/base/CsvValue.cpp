#include "CsvValue.h"

#include "Dates.h"
#include "Numbers.h"

using namespace Qt::StringLiterals;

namespace kuyum {

QString csvQuoted(QString text)
{
    return u'"' + text.replace(u'"', u"\"\""_s) + u'"';
}

QString csvValue(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::UnknownType:
        return {};
    case QMetaType::QDateTime:
        return formatDateTime(value.toDateTime());
    case QMetaType::QDate:
        return formatDate(value.toDate());
    case QMetaType::Double:
        return plainNumber(value.toDouble());
    case QMetaType::Bool:
        return value.toBool() ? u"1"_s : u"0"_s;
    case QMetaType::QByteArray:
        return QString::fromLatin1(value.toByteArray().toHex());
    case QMetaType::QString:
        return csvQuoted(value.toString());
    default:
        return value.toString();
    }
}

} // namespace kuyum
