#pragma once

#include <QString>

namespace kuyum {

/// Numbers as the screens take, store and show them: with a decimal point; a
/// typed comma counts as one.

/// 0 to 9, and no other script's digits: those would be no number in SQL.
constexpr bool isDecimalDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

/// The number at the start of the text, 0 when there is none ("12 gr" is 12).
double leadingNumber(QStringView text);

/// Whether the whole text is a number: a sign, digits, one point or comma.
bool isNumeric(QStringView text);

/// A number as it is put into SQL text: a blank stands where a minus would.
/// Throws std::range_error for one that has no digits (too large, or none).
QString sqlNumber(double value);
QString sqlNumber(qint64 value);
inline QString sqlNumber(int value)
{
    return sqlNumber(qint64(value));
}

/// The shortest text that reads back as the same number, without exponent.
QString plainNumber(double value);

/// Rounds half away from zero on the decimal value (15 significant digits), so
/// that 2.675 gives 2.68 although its binary form lies a little below.
double roundDecimal(double value, int decimals);

/// Formats by a picture such as "##0.00", "#0.000000", "#,###" or "000":
/// 0 is a digit that always shows, # one that shows when it counts, and a
/// comma groups thousands.
QString formatNumber(double value, QStringView picture);

} // namespace kuyum
