#pragma once

namespace kuyum {

class Database;

/// A part of a running transaction that can be undone alone. What lies between
/// construction and keep() stays with the transaction; without a keep() it is
/// undone. Savepoints do not nest.
class Savepoint
{
public:
    explicit Savepoint(Database &database);
    ~Savepoint();
    Savepoint(const Savepoint &) = delete;
    Savepoint &operator=(const Savepoint &) = delete;

    void keep();
    /// Throws DatabaseError when the engine has given up the whole transaction,
    /// as after a full disk.
    void undo();

private:
    Database *m_database;
};

} // namespace kuyum
