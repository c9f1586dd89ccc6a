#pragma once

#include <QDate>
#include <QString>

namespace kuyum {

/// The only ways by which a value gets into SQL text.

/// 'text', with every apostrophe doubled.
QString sqlText(QStringView text);

/// DateValue('dd.MM.yyyy').
QString sqlDate(QDate date);

// Numbers: sqlNumber() of Numbers.h.

} // namespace kuyum
