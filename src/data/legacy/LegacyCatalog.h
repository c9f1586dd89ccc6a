#pragma once

#include "LegacyLibrary.h"

#include <QList>

namespace kuyum {

/// A table as the legacy file's own list has it.
struct LegacyCatalogEntry
{
    QByteArray name; ///< UTF-8
    quint32 page = 0;
    /// The library's reading of its properties (defaults, formats); can be null.
    std::shared_ptr<GPtrArray> properties;
};

/// The tables that are not the legacy engine's own. Refuses a list that
/// contradicts the file: a table that is missing from it would be lost without
/// a word.
QList<LegacyCatalogEntry> readCatalog(MdbHandle *handle, qint64 fileSize);

/// The entry as the library wants it.
MdbCatalogEntry mdbEntry(MdbHandle *handle, const QByteArray &name, quint32 page,
                         GPtrArray *properties = nullptr);

} // namespace kuyum
