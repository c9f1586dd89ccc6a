#pragma once

#include <QString>

namespace kuyum {

/// The product's SQL, as the legacy engine understands it, translated for
/// SQLite. This is the one place that knows the differences:
/// Top n, IIf, IsNull, Left, Format, DateValue, [brackets], "double quoted"
/// texts, #month/day/year#, joins in brackets, / that never divides as whole numbers,
/// & that joins texts, Delete * From.

struct TranslatedSql
{
    QString text;
    bool isSelect = false;
    /// The table whose rows a single-table Select shows as they are: its rows
    /// can be edited, and the last column of the result is the row's number.
    QString editableTable;
};

/// Throws DatabaseError when the text is not one complete statement.
TranslatedSql translateSql(QStringView sql);

/// A name as SQLite takes it literally.
QString quotedName(QStringView name);

} // namespace kuyum
