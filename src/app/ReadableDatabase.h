#pragma once

#include "Database.h"

#include <memory>
#include <QTemporaryDir>

namespace kuyum {

/// A database that a word of the command line only reads. A legacy .mdb is
/// taken over into a temporary file first, which goes with this object.
struct ReadableDatabase
{
    std::unique_ptr<QTemporaryDir> folder; ///< null unless the source was a legacy file
    std::unique_ptr<Database> db;

    Database *operator->() const { return db.get(); }
    Database &operator*() const { return *db; }
};

/// Opens a .kuyum or an .mdb for reading; refuses a file of a newer layout.
/// Throws DatabaseError. Needs a QCoreApplication.
ReadableDatabase openForReading(const QString &path);

} // namespace kuyum
