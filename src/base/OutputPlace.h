#pragma once

#include <QString>

namespace kuyum {

/// Where a file may be written, for every output of every command and screen.
/// A slip in a file's name must never cost a company.

/// A path as somebody wrote it. One that begins with ":" would be taken for a
/// place within the program itself.
QString writtenPath(const QString &path);

/// The file of that name in the folder, also where the name begins with ":".
QString inFolder(const QString &folder, const QString &name);

/// The file that the path leads to: every link on the way is followed, also one
/// to a file that is not there yet.
QString resolvedPlace(const QString &path);

/// Whether the bytes are those of a company, a registry, a legacy file or what
/// an engine keeps beside one, whatever the name. False for what cannot be read.
bool holdsDatabase(const QString &path);

/// Why no file can be there, in Turkish: it is a folder, a device, or in no
/// folder. Empty where one can.
QString placeRefusal(const QString &path);

/// Why no report, picture or sheet may be written there, in Turkish: all of
/// placeRefusal(), and a database or a name that databases bear. Empty where
/// one may.
QString outputRefusal(const QString &path);

} // namespace kuyum
