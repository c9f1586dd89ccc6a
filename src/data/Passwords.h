#pragma once

#include <QString>

/// Stored passwords: each character moved up by its place (the first by 1),
/// as Windows-1254 codes. Only hides them from a passing glance.

/// Throws std::out_of_range when a code leaves the range of the code page.
QString Sifrele(const QString &text);
QString SifreCoz(const QString &scrambled);
