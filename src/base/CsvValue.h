#pragma once

#include <QString>
#include <QVariant>

namespace kuyum {

/// Values as they stand in our CSV: texts always in quotes, so that a null
/// (nothing) and an empty text ("") differ; dates dd.MM.yyyy, with HH:mm:ss
/// when it is not midnight; decimals with a point, at full precision; binary
/// values as hexadecimal digits.
QString csvValue(const QVariant &value);
QString csvQuoted(QString text);

} // namespace kuyum
