#include "BulkStatement.h"

#include "SqliteEngine.h"

#include <sqlite3.h>

namespace kuyum {

BulkStatement::BulkStatement(const SqliteEngine &engine, const QString &sql) : m_engine(engine)
{
    const QByteArray utf8 = sql.toUtf8();
    if (sqlite3_prepare_v2(engine.handle(), utf8.constData(), int(utf8.size()), &m_statement,
                           nullptr) != SQLITE_OK)
        engine.fail();
}

BulkStatement::~BulkStatement()
{
    sqlite3_finalize(m_statement);
}

void BulkStatement::bind(int place, const RawValue &value)
{
    int result = SQLITE_OK;
    switch (value.kind) {
    case RawValue::Kind::Null:
        result = sqlite3_bind_null(m_statement, place + 1);
        break;
    case RawValue::Kind::Integer:
        result = sqlite3_bind_int64(m_statement, place + 1, value.integer);
        break;
    case RawValue::Kind::Real:
        result = sqlite3_bind_double(m_statement, place + 1, value.real);
        break;
    case RawValue::Kind::Text:
        result = sqlite3_bind_text64(m_statement, place + 1, value.bytes.data(), value.bytes.size(),
                                     SQLITE_STATIC, SQLITE_UTF8);
        break;
    case RawValue::Kind::Blob:
        result = sqlite3_bind_blob64(m_statement, place + 1, value.bytes.data(), value.bytes.size(),
                                     SQLITE_STATIC);
        break;
    }
    if (result != SQLITE_OK)
        m_engine.fail();
}

bool BulkStatement::step()
{
    const int result = sqlite3_step(m_statement);
    if (result != SQLITE_ROW && result != SQLITE_DONE)
        m_engine.fail();
    return result == SQLITE_ROW;
}

bool BulkStatement::insert()
{
    const int result = sqlite3_step(m_statement);
    constexpr int withoutDetail = 0xff;
    if (result != SQLITE_DONE && (result & withoutDetail) != SQLITE_CONSTRAINT)
        m_engine.fail();
    sqlite3_reset(m_statement);
    return result == SQLITE_DONE;
}

void BulkStatement::reset()
{
    // What failed was told by step().
    sqlite3_reset(m_statement);
}

int BulkStatement::columnCount() const
{
    return sqlite3_column_count(m_statement);
}

void BulkStatement::column(int place, RawValue &value) const
{
    // The engine knows the size only after it has made the bytes ready; those
    // of an empty blob are null.
    const auto setBytes = [&](RawValue::Kind kind, const void *bytes) {
        const int size = sqlite3_column_bytes(m_statement, place);
        value.setBytes(kind, size > 0 ? static_cast<const char *>(bytes) : "", size_t(size));
    };
    switch (sqlite3_column_type(m_statement, place)) {
    case SQLITE_INTEGER:
        value.setInteger(sqlite3_column_int64(m_statement, place));
        break;
    case SQLITE_FLOAT:
        value.setReal(sqlite3_column_double(m_statement, place));
        break;
    case SQLITE_TEXT:
        setBytes(RawValue::Kind::Text, sqlite3_column_text(m_statement, place));
        break;
    case SQLITE_BLOB:
        setBytes(RawValue::Kind::Blob, sqlite3_column_blob(m_statement, place));
        break;
    default:
        value.setNull();
    }
}

} // namespace kuyum
