#include "Transaction.h"

#include "Database.h"
#include "SqliteEngine.h"

#include <QDebug>
#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace kuyum {

Transaction::Transaction(Database &database) : m_database(&database)
{
    // Takes the write lock at once: a transaction that could not be written is
    // refused before anything was read for it.
    database.engine().run(u"BEGIN IMMEDIATE"_s);
}

Transaction::~Transaction()
{
    if (m_database == nullptr)
        return;
    // The engine rolls back by itself after a full disk or an I/O error.
    if (sqlite3_get_autocommit(m_database->engine().handle()) != 0)
        return;
    try {
        m_database->engine().run(u"ROLLBACK"_s);
    } catch (const DatabaseError &error) {
        qWarning() << "rollback:" << error.text();
    }
}

void Transaction::commit()
{
    m_database->engine().run(u"COMMIT"_s);
    m_database = nullptr;
}

} // namespace kuyum
