#pragma once

#include "TableDef.h"

namespace kuyum {

/// What the screens call a field's type: "Boolean", "Long", "Text" and so on.
QString typeName(FieldType type);

/// What stands in such a field where nothing was entered, as it is stored: 0
/// for whole and floating numbers, False for a Boolean, 01.01.2000 for a Date,
/// a single blank for every other type, a Currency and a Time among them.
QVariant neutralValue(FieldType type);

/// The size that the field's type is told with: the characters of a Text, the
/// bytes of a Binary and of numbers; 0 where lengths differ.
int shownSize(const FieldDef &field);

} // namespace kuyum
