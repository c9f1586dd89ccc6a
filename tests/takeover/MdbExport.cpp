#include "MdbExport.h"

#include <QDateTime>
#include <QProcess>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

// Characters that no text of the examples holds.
constexpr QChar endOfField(0x1f);
constexpr QChar endOfRow(0x1e);

QString output(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished() || process.exitCode() != 0)
        throw std::runtime_error("mdbtools cannot read the file");
    return QString::fromUtf8(process.readAllStandardOutput());
}

} // namespace

QStringList mdbTables(const QString &file)
{
    return output(u"mdb-tables"_s, {u"-1"_s, file}).split(u'\n', Qt::SkipEmptyParts);
}

QList<QStringList> mdbExport(const QString &file, const QString &table)
{
    const QString text =
        output(u"mdb-export"_s,
               {u"-Q"_s, u"-d"_s, QString(endOfField), u"-R"_s, QString(endOfRow), u"-T"_s,
                u"%Y-%m-%d %H:%M:%S"_s, u"-D"_s, u"%Y-%m-%d %H:%M:%S"_s, file, table});
    QList<QStringList> rows;
    for (const QString &row : text.split(endOfRow, Qt::SkipEmptyParts))
        rows.append(row.split(endOfField));
    return rows;
}

QString asExported(const QVariant &value)
{
    if (value.typeId() == QMetaType::QDateTime)
        return value.toDateTime().toString(u"yyyy-MM-dd HH:mm:ss");
    if (value.typeId() == QMetaType::Double)
        return QString::asprintf("%.16g", value.toDouble());
    if (value.typeId() == QMetaType::Bool)
        return value.toBool() ? u"1"_s : u"0"_s;
    return value.toString();
}

} // namespace kuyum
