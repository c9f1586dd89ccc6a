#pragma once

#include "DatabaseError.h"
#include "Recordset.h"
#include "TableDef.h"
#include "Transaction.h"

#include <memory>
#include <QString>

namespace kuyum {

class CompanyLock;
class SqliteEngine;

/// An open database file: a company or the registry. All SQL is in the
/// product's dialect and is translated on its way to the engine.
class Database
{
public:
    enum class Access { ReadWrite, ReadOnly };

    /// Opens an existing file.
    static std::unique_ptr<Database> open(const QString &path, Access access = Access::ReadWrite);
    /// Makes a new, empty file; one that exists is refused.
    static std::unique_ptr<Database> create(const QString &path);
    ~Database();
    Database(const Database &) = delete;
    Database &operator=(const Database &) = delete;

    const QString &path() const { return m_path; }

    /// Opens the rows of a SELECT.
    Recordset query(const QString &sql);
    /// Opens a whole table for reading, adding and seeking.
    Recordset table(const QString &name);
    /// Runs a statement that gives no rows; returns how many rows it changed.
    qint64 execute(const QString &sql);
    /// How the engine would find the rows of a SELECT, a line per step.
    QString queryPlan(const QString &sql);

    QStringList tableNames() const;
    bool hasTable(const QString &name) const;
    TableDef tableDef(const QString &name) const;
    qint64 rowCount(const QString &table) const;
    void createTable(const TableDef &table);
    void addField(const QString &table, const FieldDef &field);
    void createIndex(const QString &table, const IndexDef &index);
    /// Removes the indexes that tableDef() tells in full; a counter stays its key.
    void dropIndexes(const QString &table);
    /// The counter's next number will be higher than this one.
    void raiseCounter(const QString &table, qint64 highest);

    /// The version of the table layout that the file was written for.
    int schemaVersion() const;
    void setSchemaVersion(int version);

    /// Holds the lock for as long as the file is open.
    void keep(std::unique_ptr<CompanyLock> lock);

    SqliteEngine &engine() const { return *m_engine; }

private:
    Database(const QString &path, std::unique_ptr<SqliteEngine> engine);

    QString m_path;
    std::unique_ptr<CompanyLock> m_lock; ///< let go of after the file
    std::unique_ptr<SqliteEngine> m_engine;
};

} // namespace kuyum
