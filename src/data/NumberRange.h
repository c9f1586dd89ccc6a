#pragma once

#include "TableDef.h"

namespace kuyum {

/// Why a number cannot be stored in such a field, as the end of a sentence in
/// Turkish that begins with the field's name; empty when it can. A fraction
/// does not go into a whole-number field: it would be rounded unseen.
QString whyNumberDoesNotFit(const FieldDef &field, double number);
/// The same for a fineness, which is a whole number from 1 on in any field.
QString whyKaratDoesNotFit(const FieldDef &field, double karat);

} // namespace kuyum
