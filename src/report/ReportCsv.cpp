#include "ReportCsv.h"

#include "CsvValue.h"
#include "Numbers.h"
#include "ReportTable.h"
#include "WholeFile.h"

using namespace Qt::StringLiterals;

namespace kuyum {

/// A spreadsheet takes a text that begins like this for a formula and runs it,
/// quotes or not. An apostrophe before it makes it a text again; a plain number
/// runs nothing.
static QString harmless(const QString &text)
{
    static const QString begins = u"=+-@\t\r\n"_s;
    const bool runs = !text.isEmpty() && begins.contains(text.front()) && !isNumeric(text);
    return runs ? u'\'' + text : text;
}

QString csvHeader(const ReportTable &table)
{
    QStringList names;
    for (const ReportColumn &column : table.columns) {
        if (!column.hidden)
            names.append(csvQuoted(harmless(column.heading)));
    }
    return names.join(u',');
}

QString csvRow(const ReportTable &table, qsizetype row)
{
    QStringList values;
    for (qsizetype column = 0; column < table.columns.size(); ++column) {
        const QVariant &value = table.rows[row].values[column];
        if (!table.columns[column].hidden)
            values.append(value.typeId() == QMetaType::QString
                              ? csvQuoted(harmless(value.toString()))
                              : csvValue(value));
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
            bytes += csvQuoted(harmless(note)).toUtf8() + '\n';
    }
    file.write(bytes);
}

} // namespace kuyum
