#include "SqliteEngine.h"

#include "SqliteFunctions.h"

#include <QAtomicInt>
#include <QFileInfo>
#include <QSqlDriver>
#include <QSqlError>
#include <QSqlResult>
#include <QVariant>
#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

sqlite3 *handleOf(const QSqlDatabase &database)
{
    return *static_cast<sqlite3 *const *>(database.driver()->handle().constData());
}

/// The engine speaks English only.
QString turkishReason(int code)
{
    switch (code & 0xff) {
    case SQLITE_FULL:
        return u"Diskte yer kalmadı."_s;
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
        return u"Veri tabanı dosyası bozuk."_s;
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return u"Veri tabanı başka bir program tarafından kullanılıyor."_s;
    case SQLITE_READONLY:
        return u"Veri tabanına yazılamıyor."_s;
    case SQLITE_IOERR:
        return u"Diske erişilemiyor."_s;
    case SQLITE_CANTOPEN:
        return u"Dosya açılamıyor."_s;
    case SQLITE_CONSTRAINT:
        return u"Kayıt, tablonun anahtarlarına uymuyor."_s;
    case SQLITE_ERROR:
        return u"SQL ifadesi çalıştırılamadı."_s;
    default:
        return u"Veri tabanı hata verdi."_s;
    }
}

/// A save that was cut off leaves its journal beside the file, and only a
/// connection that may write can take the half-done save back.
void takeBackCutOffSave(const QString &path)
{
    if (!QFileInfo::exists(path + u"-journal"_s))
        return;
    try {
        const SqliteEngine writable(path, SqliteEngine::Mode::ReadWrite);
    } catch (const DatabaseError &) {
        // Reading will say what is wrong.
    }
}

/// The engine's numbers carry a detail above their last eight bits.
constexpr int withoutDetail = 0xff;

DatabaseError::Cause causeOf(int code)
{
    const int primary = code & withoutDetail;
    return primary == SQLITE_CORRUPT || primary == SQLITE_NOTADB ? DatabaseError::Cause::FileDamaged
                                                                 : DatabaseError::Cause::Other;
}

[[noreturn]] void throwFailure(int code, const QString &text)
{
    throw DatabaseError(turkishReason(code) + u" ("_s + text + u')', causeOf(code),
                        code & withoutDetail);
}

/// SQLite takes a file without a byte, or with a single one, for a new database,
/// and would fill the place of a lost company with empty tables.
void refuseWhatHoldsNothing(const QString &path)
{
    const QFileInfo file(path);
    if (!file.isFile()) {
        throw DatabaseError(u"Dosya bulunamadı: "_s + path, DatabaseError::Cause::FileMissing,
                            DatabaseError::cannotOpen);
    }
    constexpr qint64 smallestDatabase = 512;
    if (file.size() < smallestDatabase)
        throw DatabaseError(u"Veri tabanı dosyası boş ya da yarım: "_s + path,
                            DatabaseError::Cause::FileDamaged);
}

/// What the engine keeps beside a file later has the file's own permissions.
void makePrivateFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly, QFile::ReadOwner | QFile::WriteOwner))
        throw DatabaseError(u"Dosya açılamıyor: %1 (%2)"_s.arg(path, file.errorString()),
                            DatabaseError::Cause::Other, DatabaseError::cannotOpen);
}

/// Whether another program has given the file a write-ahead log. Read through
/// the engine's own handle: a second one, closed, would take the first one's
/// locks with it.
bool hasWriteAheadLog(sqlite3 *database)
{
    constexpr qint64 place = 18; // of the format's version in the header
    constexpr char logVersion = 2;
    sqlite3_file *file = nullptr;
    char version = 0;
    return sqlite3_file_control(database, "main", SQLITE_FCNTL_FILE_POINTER, &file) == SQLITE_OK &&
           file->pMethods != nullptr &&
           file->pMethods->xRead(file, &version, 1, place) == SQLITE_OK && version == logVersion;
}

/// Only a connection that may write removes the log when it closes.
void openToRead(QSqlDatabase &database)
{
    database.setConnectOptions(u"QSQLITE_OPEN_READONLY"_s);
    if (!database.open() || !hasWriteAheadLog(handleOf(database)))
        return;
    database.close();
    database.setConnectOptions();
    if (database.open())
        sqlite3_exec(handleOf(database), "PRAGMA query_only = ON", nullptr, nullptr, nullptr);
}

QString uniqueConnectionName()
{
    static QAtomicInt count;
    return u"kuyum-%1"_s.arg(count.fetchAndAddRelaxed(1));
}

} // namespace

SqliteEngine::SqliteEngine(const QString &path, Mode mode)
    : m_connection(uniqueConnectionName()),
      m_database(QSqlDatabase::addDatabase(u"QSQLITE"_s, m_connection))
{
    // Absolute, since the engine takes ":memory:" and "file:..." for words of its own.
    m_database.setDatabaseName(QFileInfo(path).absoluteFilePath());
    try {
        if (mode == Mode::Create)
            makePrivateFile(path);
        else
            refuseWhatHoldsNothing(path);
        if (mode == Mode::ReadOnly) {
            takeBackCutOffSave(path);
            openToRead(m_database);
        } else {
            m_database.open();
        }
        if (!m_database.isOpen())
            fail(m_database.lastError());
        registerSqliteFunctions(handleOf(m_database));
        // A misspelt field must be an error, never a text of that spelling.
        sqlite3_db_config(handleOf(m_database), SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
        run(u"PRAGMA foreign_keys = OFF"_s);
        if (mode != Mode::ReadOnly) {
            // What the user saw saved survives a power cut, in one single file.
            run(u"PRAGMA journal_mode = DELETE"_s);
            run(u"PRAGMA synchronous = FULL"_s);
        }
        // Reading the schema tells at once whether this is a database at all.
        run(u"SELECT count(*) FROM sqlite_master"_s);
    } catch (...) {
        m_database = {};
        QSqlDatabase::removeDatabase(m_connection);
        throw;
    }
}

SqliteEngine::~SqliteEngine()
{
    m_database.close();
    m_database = {};
    QSqlDatabase::removeDatabase(m_connection);
}

void SqliteEngine::fail(const QSqlError &error)
{
    const QString text = error.databaseText().isEmpty() ? error.driverText() : error.databaseText();
    throwFailure(error.nativeErrorCode().toInt(), text);
}

void SqliteEngine::fail() const
{
    throwFailure(sqlite3_errcode(handle()), QString::fromUtf8(sqlite3_errmsg(handle())));
}

sqlite3 *SqliteEngine::handle() const
{
    return handleOf(m_database);
}

QSqlQuery SqliteEngine::prepare(const QString &sql) const
{
    QSqlQuery query(m_database);
    query.setForwardOnly(true);
    if (!query.prepare(sql))
        fail(query.lastError());
    return query;
}

void SqliteEngine::run(QSqlQuery &query, const QVariantList &values) const
{
    for (qsizetype i = 0; i < values.size(); ++i)
        query.bindValue(int(i), values[i]);
    if (!query.exec())
        fail(query.lastError());
}

bool SqliteEngine::next(QSqlQuery &query) const
{
    if (query.next())
        return true;
    if (query.lastError().isValid())
        fail(query.lastError());
    return false;
}

QSqlQuery SqliteEngine::run(const QString &sql, const QVariantList &values) const
{
    QSqlQuery query = prepare(sql);
    run(query, values);
    return query;
}

QList<SqliteEngine::Column> SqliteEngine::columns(const QSqlQuery &query)
{
    const QVariant handle = query.result()->handle();
    auto *statement = *static_cast<sqlite3_stmt *const *>(handle.constData());
    QList<Column> result;
    const int count = sqlite3_column_count(statement);
    for (int i = 0; i < count; ++i) {
        result.append({QString::fromUtf8(sqlite3_column_name(statement, i)),
                       QString::fromUtf8(sqlite3_column_table_name(statement, i)),
                       QString::fromUtf8(sqlite3_column_decltype(statement, i))});
    }
    return result;
}

} // namespace kuyum
