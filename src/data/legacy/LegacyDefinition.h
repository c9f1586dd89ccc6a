#pragma once

#include "LegacyLibrary.h"
#include "TableDef.h"

namespace kuyum {

/// Reads a table's definition (its columns and indexes too) and refuses one
/// that no legacy engine can have written: the library would follow it blindly.
MdbTablePointer readDefinition(MdbCatalogEntry &entry);

/// The definition in the terms of this program. Only for tables of the user.
TableDef translateDefinition(MdbTableDef *table);

} // namespace kuyum
