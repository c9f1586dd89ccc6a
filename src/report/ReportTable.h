#pragma once

#include <QList>
#include <QStringList>
#include <QVariant>

namespace kuyum {

/// What a report's column holds, which settles how it stands and sorts.
enum class ReportColumnKind {
    Text,
    Model,     ///< a model's code: outputs that bear pictures show the model's beside it
    ModelType, ///< the short name of the product type as which the row's model stands
    Number,
    Date,
};

struct ReportColumn
{
    QString heading;
    ReportColumnKind kind = ReportColumnKind::Text;
    QString picture{};   ///< a number's picture ("##0.00"); empty: as it is
    bool hidden = false; ///< a working column that nobody sees or prints
};

enum class ReportRowKind {
    Line,
    Caption, ///< opens a group of lines
    Total,   ///< closes a group, or the report
};

/// One value for each column: a text, a number, a QDate, or an invalid variant
/// for an empty cell.
struct ReportRow
{
    QVariantList values;
    ReportRowKind kind = ReportRowKind::Line;
};

/// A report's figures as data, as every report hands them to its grid, to
/// paper, spreadsheet and CSV. Captions and totals keep their place: sorting
/// moves the lines between them.
struct ReportTable
{
    QString title;
    QList<ReportColumn> columns;
    QList<ReportRow> rows;
    QStringList notes{}; ///< what the figures must not be read without; told on every output

    /// A cell as it is shown: a number by its column's picture, dates as
    /// dd.MM.yyyy, an empty cell as nothing.
    QString cellText(qsizetype row, qsizetype column) const;
    /// Whether there is anything but captions and totals.
    bool hasLines() const;
};

} // namespace kuyum
