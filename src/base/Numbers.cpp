#include "Numbers.h"

#include <array>
#include <charconv>
#include <cmath>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

/// How many characters from the start of the text are a number.
qsizetype numberLength(QStringView text)
{
    qsizetype at = 0;
    if (at < text.size() && (text[at] == u'-' || text[at] == u'+'))
        ++at;
    bool digits = false;
    bool point = false;
    for (; at < text.size(); ++at) {
        if (isDecimalDigit(text[at]))
            digits = true;
        else if ((text[at] == u'.' || text[at] == u',') && !point)
            point = true;
        else
            break;
    }
    return digits ? at : 0;
}

/// The decimal digits of a magnitude, rounded half away from zero, as
/// integer digits without leading zeros and exactly `decimals` decimals.
struct DecimalDigits
{
    QByteArray integer;
    QByteArray decimals;
};

DecimalDigits decimalDigits(double magnitude, int decimals)
{
    // "d.dddde±xx" with 15 significant digits, the most a double always keeps.
    const QByteArray scientific = QByteArray::number(magnitude, 'e', 14);
    const qsizetype mark = scientific.indexOf('e');
    const int exponent = scientific.mid(mark + 1).toInt();
    QByteArray digits = scientific.left(1) + scientific.mid(2, mark - 2);

    qsizetype point = exponent + 1;
    if (point <= 0) {
        digits.prepend(QByteArray(1 - point, '0'));
        point = 1;
    }
    const qsizetype kept = point + decimals;
    if (digits.size() <= kept) {
        digits.append(QByteArray(kept - digits.size(), '0'));
    } else {
        const bool up = digits[kept] >= '5';
        digits.truncate(kept);
        qsizetype i = kept - 1;
        while (up && i >= 0 && digits[i] == '9')
            digits[i--] = '0';
        if (up && i >= 0)
            ++digits[i];
        if (up && i < 0) {
            digits.prepend('1');
            ++point;
        }
    }
    DecimalDigits result{digits.left(point), digits.mid(point)};
    while (result.integer.startsWith('0'))
        result.integer.remove(0, 1);
    return result;
}

bool isZero(const DecimalDigits &digits)
{
    return digits.integer.isEmpty() && digits.decimals.count('0') == digits.decimals.size();
}

} // namespace

double leadingNumber(QStringView text)
{
    text = text.trimmed();
    QString number = text.first(numberLength(text)).toString();
    number.replace(u',', u'.');
    return number.isEmpty() ? 0 : number.toDouble();
}

bool isNumeric(QStringView text)
{
    text = text.trimmed();
    return !text.isEmpty() && numberLength(text) == text.size();
}

QString plainNumber(double value)
{
    if (!std::isfinite(value))
        return QString::number(value);
    std::array<char, 400> text; // the smallest double has some 330 decimals
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed);
    return QString::fromLatin1(text.data(), end.ptr - text.data());
}

QString sqlNumber(double value)
{
    if (!std::isfinite(value))
        throw std::range_error("Sayı çok büyük.");
    const QString text = plainNumber(value);
    return text.startsWith(u'-') ? text : u' ' + text;
}

QString sqlNumber(qint64 value)
{
    const QString text = QString::number(value);
    return value < 0 ? text : u' ' + text;
}

double roundDecimal(double value, int decimals)
{
    if (!std::isfinite(value))
        return value;
    const DecimalDigits digits = decimalDigits(std::fabs(value), decimals);
    const double magnitude = ('0' + digits.integer + '.' + digits.decimals + '0').toDouble();
    return value < 0 && magnitude != 0 ? -magnitude : magnitude;
}

QString formatNumber(double value, QStringView picture)
{
    if (!std::isfinite(value))
        return plainNumber(value);
    const qsizetype pointAt = picture.indexOf(u'.');
    const QStringView integerPicture = pointAt < 0 ? picture : picture.first(pointAt);
    const QStringView decimalPicture = pointAt < 0 ? QStringView() : picture.sliced(pointAt + 1);
    const bool grouped = integerPicture.contains(u',');
    const qsizetype leastDigits = integerPicture.count(u'0');
    const qsizetype leastDecimals = decimalPicture.lastIndexOf(u'0') + 1;

    const DecimalDigits digits = decimalDigits(std::fabs(value), int(decimalPicture.size()));
    QString integer = QString::fromLatin1(digits.integer).rightJustified(leastDigits, u'0');
    if (grouped) {
        for (qsizetype at = integer.size() - 3; at > 0; at -= 3)
            integer.insert(at, u',');
    }
    QString decimals = QString::fromLatin1(digits.decimals);
    while (decimals.size() > leastDecimals && decimals.endsWith(u'0'))
        decimals.chop(1);

    QString result = value < 0 && !isZero(digits) ? u"-"_s : QString();
    result += integer;
    if (!decimalPicture.isEmpty())
        result += u'.' + decimals;
    return result;
}

} // namespace kuyum
