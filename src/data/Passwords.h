#pragma once

#include <optional>
#include <QString>

namespace kuyum {

/// Stored passwords: each character moved up by its place (the first by 1), as
/// Windows-1254 codes, and beyond the code page as Unicode's. Only hides them
/// from a passing glance.

/// Throws std::out_of_range when a code leaves the range of a 16-bit signed
/// number, or falls below 0.
QString Sifrele(const QString &text);
QString SifreCoz(const QString &scrambled);

/// The index of the first character that SifreCoz would not give back from
/// what Sifrele makes of it; nothing when the text can be a password.
std::optional<qsizetype> firstUnstorable(const QString &text);

} // namespace kuyum
