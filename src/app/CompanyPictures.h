#pragma once

#include <QString>

namespace kuyum {

/// Throws std::runtime_error with a Turkish text when there is no such folder.
void requirePictureFolder(const QString &folder);

/// The picture folder of the company that a database belongs to, where a
/// registry that knows it lies beside it, as in the programs' own folder; empty
/// where none does. Throws DatabaseError when the registry cannot be read.
QString pictureFolderOf(const QString &database);

} // namespace kuyum
