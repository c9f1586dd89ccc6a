#pragma once

#include <functional>
#include <QtGlobal>

namespace kuyum {

class Database;
struct TableDef;

/// Gives a table another definition: the same fields, some of them with another
/// type or size, and possibly a counter that it lacked, which takes the rows'
/// own numbers. The rows keep their values, their order and the counter's next
/// number, which is proved value by value; a value that the new type does not
/// hold gives a DatabaseError, and so does a table with rules of another program
/// that would be lost. The table's indexes are gone afterwards.
///
/// Runs within the caller's transaction, which is undone after a failure.
/// rowsDone is told now and then; what it throws ends the work.
void rebuildTable(Database &db, const TableDef &wanted,
                  const std::function<void(qint64 rows)> &rowsDone);

} // namespace kuyum
