#pragma once

#include "TableDef.h"

#include <QVariant>

namespace kuyum {

/// A value as the engine keeps it in such a field: dates as ISO text, flags as
/// 1 and 0, numbers and texts within the field's bounds. Throws DatabaseError
/// for a value the field cannot hold.
QVariant storedValue(const FieldDef &field, const QVariant &value);

/// A value as the engine gave it, for the program: dates as QDateTime.
QVariant readValue(FieldType type, const QVariant &stored);

} // namespace kuyum
