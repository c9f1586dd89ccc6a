#include "LegacyValues.h"

#include "Dates.h"

#include <cmath>
#include <cstring>
#include <QtEndian>
#include <QUuid>

using namespace Qt::StringLiterals;

namespace kuyum {

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
    value.setText(text.toStdString());
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
        value.setText(text.toStdString());
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
    value.setText(guid.toByteArray(QUuid::WithBraces).toUpper().toStdString());
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
    auto known = m_texts.find(bits);
    if (known == m_texts.end()) {
        constexpr size_t enough = 20000;
        if (m_texts.size() >= enough)
            m_texts.clear();
        const QDateTime moment = legacyMoment(days);
        known =
            m_texts.emplace(bits, moment.isValid() ? isoText(moment).toStdString() : std::string())
                .first;
    }
    if (known->second.empty())
        storeReal(days, value);
    else
        value.setText(known->second);
}

QVariant defaultValueOf(FieldType type, QString expression)
{
    expression = expression.trimmed();
    if (expression.startsWith(u'='))
        expression = expression.mid(1).trimmed();
    if (type == FieldType::Text || type == FieldType::Memo) {
        const bool quoted =
            expression.size() >= 2 && expression.startsWith(u'"') && expression.endsWith(u'"');
        if (!quoted)
            return {};
        return expression.mid(1, expression.size() - 2).replace(u"\"\""_s, u"\""_s);
    }
    if (type == FieldType::Boolean) {
        static const QStringList yes = {u"yes"_s, u"true"_s, u"on"_s, u"-1"_s, u"1"_s, u"evet"_s};
        static const QStringList no = {u"no"_s, u"false"_s, u"off"_s, u"0"_s, u"hayır"_s};
        const QString word = expression.toLower();
        return yes.contains(word) ? QVariant(1) : no.contains(word) ? QVariant(0) : QVariant();
    }
    bool isNumber = false;
    const double number = expression.toDouble(&isNumber);
    const bool takesNumber = type != FieldType::Date && type != FieldType::Guid &&
                             type != FieldType::Binary && type != FieldType::LongBinary;
    if (!isNumber || !takesNumber)
        return {};
    bool whole = false;
    const qlonglong integer = expression.toLongLong(&whole);
    return whole ? QVariant(integer) : QVariant(number);
}

} // namespace kuyum
