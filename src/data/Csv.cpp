#include "Csv.h"

#include "CsvValue.h"
#include "Dates.h"
#include "Recordset.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace kuyum {

/// A date that was computed (the latest of a group, say) comes without the
/// field's type; its stored form tells.
static bool isStoredDate(const QString &text)
{
    static const QRegularExpression form(uR"(^\d{4}-\d{2}-\d{2}(T\d{2}:\d{2}:\d{2})?$)"_s);
    return form.match(text).hasMatch() && parseIso(text).isValid();
}

QString csvHeader(const Recordset &rows)
{
    QStringList names;
    for (int i = 0; i < rows.fieldCount(); ++i)
        names.append(csvQuoted(rows.fieldName(i)));
    return names.join(u',');
}

QString csvRow(const Recordset &rows)
{
    QStringList values;
    for (int i = 0; i < rows.fieldCount(); ++i) {
        const QVariant value = rows.value(i);
        const bool computed = value.typeId() == QMetaType::QString && !rows.isTableField(i);
        values.append(computed && isStoredDate(value.toString())
                          ? formatDateTime(parseIso(value.toString()))
                          : csvValue(value));
    }
    return values.join(u',');
}

} // namespace kuyum
