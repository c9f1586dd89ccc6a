#include "CounterFields.h"

#include "Database.h"

using namespace Qt::StringLiterals;

namespace kuyum {

void requireCounter(const Database &db, const QString &table)
{
    if (db.tableDef(table).counter() == nullptr)
        throw DatabaseError(u"%1 tablosunun sayacı yok, yeni kayıt eklenemez."_s.arg(table));
}

} // namespace kuyum
