#include "Savepoint.h"

#include "Database.h"
#include "SqliteEngine.h"

#include <QDebug>

using namespace Qt::StringLiterals;

namespace kuyum {

Savepoint::Savepoint(Database &database) : m_database(&database)
{
    database.engine().run(u"SAVEPOINT kuyum"_s);
}

Savepoint::~Savepoint()
{
    if (m_database == nullptr)
        return;
    try {
        undo();
    } catch (const DatabaseError &error) {
        qWarning() << "rollback to savepoint:" << error.text();
    }
}

void Savepoint::keep()
{
    m_database->engine().run(u"RELEASE kuyum"_s);
    m_database = nullptr;
}

void Savepoint::undo()
{
    const SqliteEngine &engine = std::exchange(m_database, nullptr)->engine();
    engine.run(u"ROLLBACK TO kuyum"_s);
    engine.run(u"RELEASE kuyum"_s);
}

} // namespace kuyum
