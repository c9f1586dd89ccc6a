#pragma once

#include <QStringList>

namespace kuyum {

class Database;

/// What the user has to know about a company that was taken over or mended
/// while it was opened: kept in the file until it was told, and for the check
/// after that.

void addNote(Database &db, const QString &text);

/// All of them, in their order.
QStringList openingNotes(const Database &db);
/// Those that were not told yet.
QStringList untoldNotes(const Database &db);
void markNotesTold(Database &db);

/// The notes as one text for a message, the first ones of many.
QString notesText(const QStringList &notes);

} // namespace kuyum
