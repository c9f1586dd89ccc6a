#pragma once

#include "LegacyLibrary.h"
#include "TableDef.h"

/// Reads a table's definition (its columns and indexes too) and refuses one
/// that no legacy engine can have written: the library would follow it blindly.
MdbTablePointer readDefinition(MdbCatalogEntry &entry);

/// The definition in the terms of this program. Only for tables of the user.
TableDef translateDefinition(MdbTableDef *table);

/// The default value of a field that the legacy engine keeps as an expression.
/// Invalid for one that is more than a plain value (such as Date()).
QVariant defaultValueOf(FieldType type, QString expression);
