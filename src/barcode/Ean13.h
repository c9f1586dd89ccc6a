#pragma once

#include <functional>
#include <QString>

namespace kuyum {

/// A stretch of a symbol that is drawn in one go.
struct BarPart
{
    QString modules;    ///< from left to right, "X" dark and "O" light
    QString caption;    ///< stands below it; mostly one digit or nothing
    bool guard = false; ///< it may reach deeper than the digits
};

/// Takes the parts of a symbol from left to right.
using TakeBarPart = std::function<void(const BarPart &)>;

/// Encodes a number as EAN-13: 102 modules, beginning with the quiet zone, and
/// none after the end guard. The code is filled with zeros from the left or
/// cut to its first 12 digits, and gets its check digit. A first character
/// that is no digit counts as 0. Throws std::runtime_error at any later one;
/// the parts before it have been handed over then.
void encodeEan13(const QString &code, const TakeBarPart &take);

/// The 13 digits that the symbol says.
QString ean13Digits(const QString &code);

/// All modules of the symbol.
QString ean13Modules(const QString &code);

} // namespace kuyum
