#pragma once

#include "TableDef.h"

#include <optional>
#include <QHash>

namespace kuyum {

class Database;

/// A counter numbers a table's rows: a table of the description without it is
/// never written, since rows without a number of their own cannot be told
/// apart. See docs/decisions/take-over.md.

/// The tables of the description that stand in the file without their counter,
/// as "SiparisD.Dotosayi".
QStringList missingCounters(const Database &db, const QList<TableDef> &description);

/// Gives every such table its counter. A row without a number, or with one that
/// an earlier row has, gets a new one, as long as no row refers to the number;
/// each is told in a note (see OpeningNotes) and can be looked up in
/// numbersBefore(). Runs within the caller's transaction. Throws DatabaseError
/// when a number that others refer to stands for several rows: then only the
/// user knows which is which.
void completeCounters(Database &db, const QList<TableDef> &description);

/// For the rows of a table that were given a new number: the number they had
/// before, by the one they have; nothing where they had none.
QHash<qint64, std::optional<qint64>> numbersBefore(const Database &db, const QString &table);

} // namespace kuyum
