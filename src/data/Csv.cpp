#include "Csv.h"

#include "Dates.h"
#include "Numbers.h"
#include "Recordset.h"
#include "ReportTable.h"
#include "WholeFile.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

QString quoted(QString text)
{
    return u'"' + text.replace(u'"', u"\"\""_s) + u'"';
}

/// A spreadsheet takes a text that begins like this for a formula and runs it,
/// quotes or not. An apostrophe before it makes it a text again; a plain number
/// runs nothing.
QString harmless(const QString &text)
{
    static const QString begins = u"=+-@\t\r\n"_s;
    const bool runs = !text.isEmpty() && begins.contains(text.front()) && !isNumeric(text);
    return runs ? u'\'' + text : text;
}

/// A date that was computed (the latest of a group, say) comes without the
/// field's type; its stored form tells.
bool isStoredDate(const QString &text)
{
    static const QRegularExpression form(uR"(^\d{4}-\d{2}-\d{2}(T\d{2}:\d{2}:\d{2})?$)"_s);
    return form.match(text).hasMatch() && parseIso(text).isValid();
}

QString csvValue(const QVariant &value, bool computed)
{
    switch (value.typeId()) {
    case QMetaType::UnknownType:
        return {};
    case QMetaType::QDateTime:
        return formatDateTime(value.toDateTime());
    case QMetaType::QDate:
        return formatDate(value.toDate());
    case QMetaType::Double:
        return plainNumber(value.toDouble());
    case QMetaType::Bool:
        return value.toBool() ? u"1"_s : u"0"_s;
    case QMetaType::QByteArray:
        return QString::fromLatin1(value.toByteArray().toHex());
    case QMetaType::QString:
        break;
    default:
        return value.toString();
    }
    const QString text = value.toString();
    return computed && isStoredDate(text) ? formatDateTime(parseIso(text)) : quoted(text);
}

} // namespace

QString csvHeader(const Recordset &rows)
{
    QStringList names;
    for (int i = 0; i < rows.fieldCount(); ++i)
        names.append(quoted(rows.fieldName(i)));
    return names.join(u',');
}

QString csvRow(const Recordset &rows)
{
    QStringList values;
    for (int i = 0; i < rows.fieldCount(); ++i)
        values.append(csvValue(rows.value(i), !rows.isTableField(i)));
    return values.join(u',');
}

QString csvHeader(const ReportTable &table)
{
    QStringList names;
    for (const ReportColumn &column : table.columns) {
        if (!column.hidden)
            names.append(quoted(harmless(column.heading)));
    }
    return names.join(u',');
}

QString csvRow(const ReportTable &table, qsizetype row)
{
    QStringList values;
    for (qsizetype column = 0; column < table.columns.size(); ++column) {
        const QVariant &value = table.rows[row].values[column];
        if (!table.columns[column].hidden)
            values.append(value.typeId() == QMetaType::QString ? quoted(harmless(value.toString()))
                                                               : csvValue(value, false));
    }
    return values.join(u',');
}

void writeCsv(const QList<ReportTable> &tables, const QString &path)
{
    const WholeFile file(u"CSV"_s, path);
    QByteArray bytes;
    for (const ReportTable &table : tables) {
        if (!bytes.isEmpty())
            bytes += '\n';
        bytes += csvHeader(table).toUtf8() + '\n';
        for (qsizetype row = 0; row < table.rows.size(); ++row)
            bytes += csvRow(table, row).toUtf8() + '\n';
        if (!table.notes.isEmpty())
            bytes += '\n';
        for (const QString &note : table.notes)
            bytes += quoted(harmless(note)).toUtf8() + '\n';
    }
    file.write(bytes);
}
