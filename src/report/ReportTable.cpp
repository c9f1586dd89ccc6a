#include "ReportTable.h"

#include "Dates.h"
#include "Numbers.h"

#include <algorithm>
#include <QDate>

namespace kuyum {

QString ReportTable::cellText(qsizetype row, qsizetype column) const
{
    const QVariant &value = rows[row].values[column];
    if (!value.isValid())
        return {};
    const ReportColumn &about = columns[column];
    switch (about.kind) {
    case ReportColumnKind::Number:
        // A caption may stand in a column of figures.
        if (value.typeId() == QMetaType::QString)
            return value.toString();
        return about.picture.isEmpty() ? plainNumber(value.toDouble())
                                       : formatNumber(value.toDouble(), about.picture);
    case ReportColumnKind::Date:
        return value.typeId() == QMetaType::QDate ? formatDate(value.toDate()) : value.toString();
    case ReportColumnKind::Text:
    case ReportColumnKind::Model:
    case ReportColumnKind::ModelType:
        break;
    }
    return value.toString();
}

bool ReportTable::hasLines() const
{
    return std::ranges::any_of(
        rows, [](const ReportRow &row) { return row.kind == ReportRowKind::Line; });
}

} // namespace kuyum
