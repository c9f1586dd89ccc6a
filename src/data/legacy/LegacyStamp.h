#pragma once

#include <optional>
#include <QByteArray>
#include <QString>

namespace kuyum {

class Database;

/// What tells a legacy file's state: kept in the database that was made from
/// it, so that a later change of the legacy file is noticed.
struct LegacyStamp
{
    qint64 size = 0;
    qint64 modified = 0; ///< milliseconds since 1970, UTC
    QByteArray hash;     ///< over all bytes
};

/// Reads the whole file. Throws DatabaseError when it cannot be read.
LegacyStamp stampOf(const QString &path);

/// Whether the file is still what the stamp says. Reads it wholly only when its
/// date has changed and its size has not.
bool matchesStamp(const QString &path, const LegacyStamp &stamp);

void writeStamp(Database &db, const LegacyStamp &stamp);
/// Nothing for a database that was not taken over.
std::optional<LegacyStamp> readStamp(Database &db);

} // namespace kuyum
