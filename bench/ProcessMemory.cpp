#include "ProcessMemory.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

qint64 memoryOfTree(qint64 process)
{
    const QString folder = u"/proc/%1"_s.arg(process);
    qint64 kilobytes = 0;
    const QList<QByteArray> lines = contentOf(folder + u"/smaps_rollup"_s).split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith("Pss:"))
            kilobytes = line.mid(4).trimmed().split(' ').first().toLongLong();
    }
    const QByteArray children = contentOf(folder + u"/task/%1/children"_s.arg(process));
    for (const QByteArray &child : children.simplified().split(' ')) {
        if (!child.isEmpty())
            kilobytes += memoryOfTree(child.toLongLong());
    }
    return kilobytes;
}

} // namespace kuyum
