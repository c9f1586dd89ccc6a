#include "SqlText.h"

#include "Dates.h"

namespace kuyum {

QString sqlText(QStringView text)
{
    QString doubled = text.toString();
    doubled.replace(u'\'', QStringLiteral("''"));
    return u'\'' + doubled + u'\'';
}

QString sqlDate(QDate date)
{
    return QStringLiteral("DateValue('%1')").arg(formatDate(date));
}

} // namespace kuyum
