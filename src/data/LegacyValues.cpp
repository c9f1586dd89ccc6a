#include "LegacyValues.h"

#include "Dates.h"

#include <cmath>
#include <cstring>
#include <QtEndian>
#include <QUuid>

namespace {

/// Below this, a count of digits that a number keeps exactly.
constexpr qint64 fifteenDigits = 1'000'000'000'000'000;

} // namespace

void storeCurrency(qint64 tenThousandths, RawValue &value)
{
    if (tenThousandths > -fifteenDigits && tenThousandths < fifteenDigits) {
        value.setReal(double(tenThousandths) / 10000);
        return;
    }
    // Through the unsigned type: the smallest number has no positive twin.
    const quint64 count =
        tenThousandths < 0 ? 0 - quint64(tenThousandths) : quint64(tenThousandths);
    QByteArray text = QByteArray::number(count / 10000) + '.' +
                      QByteArray::number(count % 10000).rightJustified(4, '0');
    if (tenThousandths < 0)
        text.prepend('-');
    value.setText(text);
}

void storeDecimal(const QByteArray &text, RawValue &value)
{
    int digits = 0;
    for (const char c : text) {
        if (c >= '0' && c <= '9' && (digits > 0 || c != '0'))
            ++digits;
    }
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    if (isNumber && digits <= 15)
        storeReal(number, value);
    else
        value.setText(text);
}

void storeReal(double number, RawValue &value)
{
    value.setReal(number == 0 ? 0.0 : number);
}

void storeGuid(const char *bytes, RawValue &value)
{
    const auto *tail = reinterpret_cast<const uchar *>(bytes + 8);
    const QUuid guid(qFromLittleEndian<quint32>(bytes), qFromLittleEndian<quint16>(bytes + 4),
                     qFromLittleEndian<quint16>(bytes + 6), tail[0], tail[1], tail[2], tail[3],
                     tail[4], tail[5], tail[6], tail[7]);
    value.setText(guid.toByteArray(QUuid::WithBraces).toUpper());
}

QDateTime legacyMoment(double days)
{
    if (!(days > -700'000 && days < 3'000'000))
        return {};
    const double whole = std::trunc(days);
    const qint64 seconds = std::llround(std::abs(days - whole) * 86400);
    static const QDateTime origin(QDate(1899, 12, 30), QTime(0, 0), Qt::UTC);
    const QDateTime moment = origin.addDays(qint64(whole)).addSecs(seconds);
    const int year = moment.date().year();
    return year >= 100 && year <= 9999 ? moment : QDateTime();
}

void DateStorer::store(double days, RawValue &value)
{
    quint64 bits = 0;
    std::memcpy(&bits, &days, sizeof bits);
    auto text = m_texts.constFind(bits);
    if (text == m_texts.constEnd()) {
        constexpr qsizetype enough = 20000;
        if (m_texts.size() >= enough)
            m_texts.clear();
        const QDateTime moment = legacyMoment(days);
        text = m_texts.insert(bits, moment.isValid() ? isoText(moment).toLatin1() : QByteArray());
    }
    if (text->isEmpty())
        storeReal(days, value);
    else
        value.setText(*text);
}
