#include "RowSlices.h"

#include "Database.h"
#include "Dialect.h"
#include "SqliteEngine.h"

#include <limits>

using namespace Qt::StringLiterals;

namespace kuyum {

RowSlices::RowSlices(const Database &db, const QString &table)
    : m_db(db), m_table(quotedName(table)), m_last(std::numeric_limits<qint64>::min())
{
}

bool RowSlices::next()
{
    const SqliteEngine &engine = m_db.engine();
    QSqlQuery slice =
        engine.run(u"SELECT max(n), count(*) FROM (SELECT _rowid_ AS n FROM %1 WHERE _rowid_ > ? "
                   "ORDER BY _rowid_ LIMIT 20000)"_s.arg(m_table),
                   {m_last});
    if (!engine.next(slice) || slice.value(1).toInt() == 0)
        return false;
    m_after = m_last;
    m_last = slice.value(0).toLongLong();
    m_rowsDone += slice.value(1).toLongLong();
    return true;
}

QString RowSlices::condition()
{
    return u"_rowid_ > ? AND _rowid_ <= ?"_s;
}

} // namespace kuyum
