#pragma once

namespace kuyum {

class Database;

/// Everything between construction and commit() is on disk wholly or not at
/// all; without a commit it is rolled back. Transactions do not nest.
class Transaction
{
public:
    explicit Transaction(Database &database);
    ~Transaction();
    Transaction(const Transaction &) = delete;
    Transaction &operator=(const Transaction &) = delete;

    void commit();

private:
    Database *m_database;
};

} // namespace kuyum
