#include "Dates.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kuyum {

QDate noDate()
{
    return {2000, 1, 1};
}

QDate parseDate(QStringView text)
{
    text = text.trimmed();
    QString separated = text.toString();
    separated.replace(u'/', u'.').replace(u'-', u'.');
    const QStringList parts = separated.split(u'.');
    if (parts.size() != 3)
        return {};
    int numbers[3];
    for (int i = 0; i < 3; ++i) {
        for (const QChar c : parts[i]) {
            if (c < u'0' || c > u'9')
                return {};
        }
        bool ok = false;
        numbers[i] = parts[i].toInt(&ok);
        if (!ok || parts[i].size() > (i == 2 ? 4 : 2))
            return {};
    }
    int year = numbers[2];
    if (parts[2].size() <= 2)
        year += year < 30 ? 2000 : 1900;
    return year < 100 ? QDate() : QDate(year, numbers[1], numbers[0]);
}

QDate typedDate(QStringView text)
{
    constexpr int firstWholeYear = 1000;
    QString typed = text.trimmed().toString();
    const bool bare =
        std::all_of(typed.begin(), typed.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
    if (bare && (typed.size() == 6 || typed.size() == 8))
        typed.insert(4, u'.').insert(2, u'.');
    const auto lastSeparator =
        std::find_if(typed.rbegin(), typed.rend(), [](QChar c) { return c < u'0' || c > u'9'; });
    const auto yearDigits = std::distance(typed.rbegin(), lastSeparator);
    const QDate date = parseDate(typed);
    return (yearDigits == 2 || yearDigits == 4) && date.year() >= firstWholeYear ? date : QDate();
}

QString formatDate(QDate date)
{
    return date.isValid() ? date.toString(u"dd.MM.yyyy") : QString();
}

QString formatDateTime(const QDateTime &moment)
{
    if (!moment.isValid())
        return {};
    return moment.time() == QTime(0, 0) ? formatDate(moment.date())
                                        : moment.toString(u"dd.MM.yyyy HH:mm:ss");
}

QString isoText(QDate date)
{
    return date.toString(u"yyyy-MM-dd");
}

QString isoText(const QDateTime &moment)
{
    return moment.time() == QTime(0, 0) ? isoText(moment.date())
                                        : moment.toString(u"yyyy-MM-ddTHH:mm:ss");
}

QDateTime parseIso(QStringView text)
{
    const QDate date =
        QDate::fromString(text.first(qMin<qsizetype>(10, text.size())).toString(), Qt::ISODate);
    if (!date.isValid())
        return {};
    if (text.size() <= 10)
        return {date, QTime(0, 0), Qt::UTC};
    const QTime time = QTime::fromString(text.sliced(11).toString(), Qt::ISODate);
    return time.isValid() ? QDateTime(date, time, Qt::UTC) : QDateTime();
}

} // namespace kuyum
