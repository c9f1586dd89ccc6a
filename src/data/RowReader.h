#pragma once

#include "RawValue.h"

#include <memory>
#include <optional>
#include <QString>
#include <vector>

namespace kuyum {

class BulkStatement;
class Database;

/// The rows of a SELECT, read once from the first to the last, without the cost
/// of a Recordset: for reports that walk over a million of them. Columns count
/// from 0. Everything throws DatabaseError.
class RowReader
{
public:
    /// The text is in the product's dialect.
    RowReader(const Database &db, const QString &sql);
    ~RowReader();
    RowReader(const RowReader &) = delete;
    RowReader &operator=(const RowReader &) = delete;

    /// Goes to the next row (at first to the first); false past the last.
    bool next();

    /// Nothing for a null, and for what is no number.
    std::optional<double> number(int column);
    std::optional<qint64> integer(int column);
    /// The text as UTF-8, good until the next row; nothing for a null.
    std::optional<std::string_view> utf8(int column);
    /// Null for a null.
    QString text(int column);

private:
    const RawValue &value(int column);

    std::unique_ptr<BulkStatement> m_rows;
    std::vector<RawValue> m_values; ///< their memory is used from row to row
};

} // namespace kuyum
