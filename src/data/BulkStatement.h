#pragma once

#include "RawValue.h"

#include <QString>

struct sqlite3_stmt;

namespace kuyum {

class SqliteEngine;

/// One prepared statement for very many rows, without a QVariant per value.
/// Takes the engine's own SQL. Failures are DatabaseErrors.
class BulkStatement
{
public:
    BulkStatement(const SqliteEngine &engine, const QString &sql);
    ~BulkStatement();
    BulkStatement(const BulkStatement &) = delete;
    BulkStatement &operator=(const BulkStatement &) = delete;

    /// Places from 0. The value must live until the statement was stepped.
    void bind(int place, const RawValue &value);
    /// Runs up to the next row; false when there is none.
    bool step();
    /// Runs an INSERT; false when a row with that key is there already.
    bool insert();
    /// Ready to run again.
    void reset();

    int columnCount() const;
    void column(int place, RawValue &value) const;

private:
    const SqliteEngine &m_engine;
    sqlite3_stmt *m_statement = nullptr;
};

} // namespace kuyum
