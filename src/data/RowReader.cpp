#include "RowReader.h"

#include "BulkStatement.h"
#include "Database.h"
#include "Dialect.h"

namespace kuyum {

RowReader::RowReader(const Database &db, const QString &sql)
    : m_rows(std::make_unique<BulkStatement>(db.engine(), translateSql(sql).text)),
      m_values(size_t(m_rows->columnCount()))
{
}

RowReader::~RowReader() = default;

bool RowReader::next()
{
    return m_rows->step();
}

const RawValue &RowReader::value(int column)
{
    RawValue &value = m_values[size_t(column)];
    m_rows->column(column, value);
    return value;
}

std::optional<double> RowReader::number(int column)
{
    const RawValue &read = value(column);
    if (read.kind == RawValue::Kind::Integer)
        return double(read.integer);
    if (read.kind == RawValue::Kind::Real)
        return read.real;
    return std::nullopt;
}

std::optional<qint64> RowReader::integer(int column)
{
    const RawValue &read = value(column);
    if (read.kind == RawValue::Kind::Integer)
        return read.integer;
    if (read.kind == RawValue::Kind::Real)
        return qRound64(read.real);
    return std::nullopt;
}

std::optional<std::string_view> RowReader::utf8(int column)
{
    const RawValue &read = value(column);
    if (read.kind != RawValue::Kind::Text)
        return std::nullopt;
    return read.bytes;
}

QString RowReader::text(int column)
{
    const std::optional<std::string_view> bytes = utf8(column);
    return bytes ? QString::fromUtf8(bytes->data(), qsizetype(bytes->size())) : QString();
}

} // namespace kuyum
