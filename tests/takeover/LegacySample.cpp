#include "LegacySample.h"

#include "TakeOver.h"

#include <QDir>
#include <QFile>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

QByteArray utf16(const QString &text)
{
    return {reinterpret_cast<const char *>(text.utf16()), text.size() * 2};
}

// Places in a table's definition and on a data page of Jet 4.
constexpr qsizetype columnCount = 45;
constexpr qsizetype indexCount = 51;
constexpr qsizetype firstColumn = 63;
constexpr qsizetype columnSize = 25;
constexpr qsizetype rowCount = 12;
constexpr quint16 placeMask = 0x1fff;

} // namespace

LegacySample::LegacySample(const QString &name)
{
    QFile file(qEnvironmentVariable("KUYUM_ORNEK") + u'/' + name);
    if (file.open(QFile::ReadOnly))
        bytes = file.readAll();
}

QStringList LegacySample::leftBehind() const
{
    QStringList names = QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden);
    names.removeAll(u"kaynak.mdb"_s);
    return names;
}

std::unique_ptr<Database> LegacySample::takenOver() const
{
    QFile file(source());
    if (!file.open(QFile::WriteOnly) || file.write(bytes) != bytes.size())
        throw std::runtime_error("the sample cannot be written");
    file.close();
    QFile::remove(target());
    TakeOver(source(), target()).run();
    return Database::open(target());
}

QString LegacySample::refusal() const
{
    try {
        takenOver();
        return {};
    } catch (const DatabaseError &error) {
        return error.text();
    }
}

quint32 LegacySample::number(qsizetype at, int size) const
{
    quint32 value = 0;
    for (int i = size - 1; i >= 0; --i)
        value = value << 8 | quint8(bytes.at(at + i));
    return value;
}

void LegacySample::setNumber(qsizetype at, int size, quint32 value)
{
    for (int i = 0; i < size; ++i, value >>= 8)
        bytes[at + i] = char(value & 0xff);
}

qsizetype LegacySample::definitionOf(const QStringList &fields) const
{
    for (qsizetype page = 0; page < bytes.size(); page += pageSize) {
        const QByteArray content = bytes.mid(page, pageSize);
        bool hasAll = content.startsWith("\x02");
        for (const QString &field : fields)
            hasAll = hasAll && content.contains(utf16(field));
        if (hasAll)
            return page;
    }
    throw std::runtime_error("no such table in the sample");
}

qsizetype LegacySample::columnOf(qsizetype definition, const QString &field) const
{
    const qsizetype columns = definition + firstColumn + 12 * number(definition + indexCount, 4);
    const int count = int(number(definition + columnCount, 2));
    qsizetype name = columns + columnSize * count;
    for (int column = 0; column < count; ++column) {
        const auto length = qsizetype(number(name, 2));
        if (bytes.mid(name + 2, length) == utf16(field))
            return columns + columnSize * column;
        name += 2 + length;
    }
    throw std::runtime_error("no such field in the sample");
}

void LegacySample::retype(qsizetype definition, const QString &field, int type, int size)
{
    const qsizetype column = columnOf(definition, field);
    bytes[column] = char(type);
    if (size >= 0)
        setNumber(column + 23, 2, quint32(size));
}

QList<LegacySample::Row> LegacySample::places(qsizetype definition) const
{
    QList<Row> rows;
    for (qsizetype page = 0; page < bytes.size(); page += pageSize) {
        if (bytes[page] != 1 || qsizetype(number(page + 4, 4)) * pageSize != definition)
            continue;
        for (int row = 0; row < int(number(page + rowCount, 2)); ++row) {
            const qsizetype mark = page + rowCount + 2 + 2 * row;
            rows.append({mark, page + qsizetype(number(mark, 2) & placeMask)});
        }
    }
    return rows;
}

qsizetype LegacySample::endOf(const Row &row) const
{
    const qsizetype page = row.mark - row.mark % pageSize;
    // Rows fill a page from its end: the one before begins where this one ends.
    if (row.mark == page + rowCount + 2)
        return page + pageSize;
    return page + qsizetype(number(row.mark - 2, 2) & placeMask);
}

quint16 LegacySample::marksOf(const Row &row) const
{
    return quint16(number(row.mark, 2)) & ~placeMask;
}

void LegacySample::setMarks(const Row &row, quint16 marks)
{
    setNumber(row.mark, 2, (number(row.mark, 2) & placeMask) | marks);
}

qsizetype LegacySample::fixedField(const Row &row, qsizetype definition, const QString &field) const
{
    return row.start + 2 + qsizetype(number(columnOf(definition, field) + 21, 2));
}

} // namespace kuyum
