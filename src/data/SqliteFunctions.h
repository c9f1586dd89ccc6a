#pragma once

struct sqlite3;

namespace kuyum {

/// Gives a connection the text order TURKCE and the functions of the product's
/// SQL that SQLite lacks.
void registerSqliteFunctions(sqlite3 *connection);

} // namespace kuyum
