#pragma once

#include <QDateTime>
#include <QString>

namespace kuyum {

/// Dates are typed and shown day.month.year and stored as ISO text.

/// 01.01.2000, which in stored rows stands for "no date".
QDate noDate();

/// The date a person typed (day.month.year; a year of two digits lies between
/// 1930 and 2029), or an invalid date.
QDate parseDate(QStringView text);

/// The same for what stands in a box, where it may be half typed: the year has
/// two or four digits. The separators may be left out where all digits stand.
QDate typedDate(QStringView text);

/// dd.MM.yyyy; nothing for an invalid date.
QString formatDate(QDate date);

/// dd.MM.yyyy, followed by HH:mm:ss when it is not midnight.
QString formatDateTime(const QDateTime &moment);

/// The stored form: yyyy-MM-dd, followed by THH:mm:ss when it is not midnight.
QString isoText(QDate date);
QString isoText(const QDateTime &moment);

/// Reads the stored form back (a wall clock reading; held as UTC so that no zone can shift it).
QDateTime parseIso(QStringView text);

} // namespace kuyum
