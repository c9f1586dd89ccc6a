#pragma once

#include "DatabaseError.h"

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>
#include <QStringList>
#include <QVariant>

struct sqlite3;
struct sqlite3_stmt;

namespace kuyum {

/// The engine behind a Database: one SQLite file through Qt SQL, set up so
/// that it compares text, computes and keeps data safe as this product needs.
/// Takes SQLite's own SQL. Nothing outside data/ sees it.
class SqliteEngine
{
public:
    enum class Mode { ReadWrite, ReadOnly, Create };

    SqliteEngine(const QString &path, Mode mode);
    ~SqliteEngine();
    SqliteEngine(const SqliteEngine &) = delete;
    SqliteEngine &operator=(const SqliteEngine &) = delete;

    /// A prepared statement, forward only.
    QSqlQuery prepare(const QString &sql) const;
    /// Runs a prepared statement with these values.
    void run(QSqlQuery &query, const QVariantList &values = {}) const;
    /// Goes to the next row of a statement that was run.
    bool next(QSqlQuery &query) const;
    /// Prepares and runs at once.
    QSqlQuery run(const QString &sql, const QVariantList &values = {}) const;

    /// What a column of a running query was declared as, and in which table.
    struct Column
    {
        QString name;
        QString table;
        QString declaration;
    };
    static QList<Column> columns(const QSqlQuery &query);

    /// Throws the failure that the engine reported, with its own text and, for
    /// the causes a user can mend, a Turkish sentence before it.
    [[noreturn]] static void fail(const QSqlError &error);
    /// The same for what the engine's own functions returned.
    [[noreturn]] void fail() const;

    /// The engine's own connection, for what moves rows by the million.
    sqlite3 *handle() const;

private:
    QString m_connection;
    QSqlDatabase m_database;
};

} // namespace kuyum
