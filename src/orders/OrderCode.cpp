#include "OrderCode.h"

#include "Ean13.h"
#include "Numbers.h"
#include "ProductLabel.h"

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

constexpr QStringView prefix = u"29";
constexpr qsizetype numberDigits = 10;
constexpr qsizetype codeLength = 13;

} // namespace

QString orderCode(qint32 Sipnum)
{
    return ean13Digits(prefix.toString() +
                       QString::number(Sipnum).rightJustified(numberDigits, u'0'));
}

std::optional<qint32> readOrderCode(QStringView text)
{
    if (text.size() != codeLength || !text.startsWith(prefix))
        return std::nullopt;
    bool isNumber = false;
    const qint32 Sipnum = text.sliced(prefix.size(), numberDigits).toInt(&isNumber);
    if (!isNumber || Sipnum <= 0 || orderCode(Sipnum) != text)
        return std::nullopt;
    return Sipnum;
}

OrderNumberEntry readOrderNumber(const QString &text)
{
    const QString entry = text.trimmed();
    if (const std::optional<qint32> scanned = readOrderCode(entry))
        return {double(*scanned), {}};
    if (readLabel(entry))
        return {0, u"BU BİR ÜRÜN ETİKETİ, SİPARİŞ NUMARASI DEĞİL:\n%1"_s.arg(entry)};
    if (entry.size() > numberDigits)
        return {0, u"BU BİR SİPARİŞ NUMARASI DEĞİL:\n%1"_s.arg(entry)};
    return {leadingNumber(entry), {}};
}

} // namespace kuyum
