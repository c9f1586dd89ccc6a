#pragma once

#include "DatabaseError.h"

#include <memory>
#include <QString>

// The reading library's header wants glib's, whose casts are C casts.
#include <mdbtools.h>

namespace kuyum {

/// What the files that read legacy databases share around libmdb. Not for
/// others: the header brings a whole C world with it.

struct CloseMdb
{
    void operator()(MdbHandle *handle) const { mdb_close(handle); }
};
using MdbPointer = std::unique_ptr<MdbHandle, CloseMdb>;

struct FreeMdbTable
{
    void operator()(MdbTableDef *table) const { mdb_free_tabledef(table); }
};
using MdbTablePointer = std::unique_ptr<MdbTableDef, FreeMdbTable>;

inline MdbColumn *columnAt(const MdbTableDef *table, unsigned place)
{
    return static_cast<MdbColumn *>(g_ptr_array_index(table->columns, place));
}

/// Throws the DatabaseError for a file that is damaged, with what was found.
[[noreturn]] void refuseDamaged(const QString &what);

/// Whether the legacy engine allows a table or field to have this name. One
/// that it does not is a damaged one.
bool isLegacyName(const QString &name);

} // namespace kuyum
