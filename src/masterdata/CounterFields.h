#pragma once

#include <QString>

namespace kuyum {

class Database;

/// Throws a DatabaseError when the table has no counter: a row added to it
/// would have no number for other tables to refer to.
void requireCounter(const Database &db, const QString &table);

} // namespace kuyum
