#include "WholeFile.h"

#include "OutputPlace.h"

#include <QBuffer>
#include <QDir>
#include <QSaveFile>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace kuyum {

WholeFile::WholeFile(const QString &kind, const QString &path, Readers readers)
    : m_kind(kind), m_path(path), m_readers(readers)
{
    const QString refusal = outputRefusal(path);
    if (!refusal.isEmpty())
        refuse(refusal);
}

void WholeFile::write(const QByteArray &bytes) const
{
    QBuffer source;
    source.setData(bytes);
    source.open(QIODevice::ReadOnly);
    write(source);
}

void WholeFile::write(QIODevice &source, const std::function<void(qint64)> &written) const
{
    constexpr qint64 block = 1 << 20;
    // Laying out a large report takes its time.
    const QString refusal = outputRefusal(m_path);
    if (!refusal.isEmpty())
        refuse(refusal);
    QSaveFile file(resolvedPlace(m_path));
    if (!file.open(QIODevice::WriteOnly))
        refuse(u"Buraya yazılamıyor; dosya korunuyor olabilir."_s);
    if (m_readers == Readers::OwnerOnly)
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    while (!source.atEnd()) {
        const QByteArray bytes = source.read(block);
        if (bytes.isEmpty() || file.write(bytes) != bytes.size())
            refuseFullDisk();
        if (written)
            written(file.pos());
    }
    // commit() does not notice when its last block finds no room; flush() does.
    if (!file.flush() || !file.commit())
        refuseFullDisk();
}

void WholeFile::refuse(const QString &reason) const
{
    throw std::runtime_error(
        u"%1 dosyası yazılamadı: %2\n%3"_s.arg(m_kind, QDir::toNativeSeparators(m_path), reason)
            .toStdString());
}

void WholeFile::refuseFullDisk() const
{
    refuse(u"Diske yazılamadı; disk dolu olabilir."_s);
}

} // namespace kuyum
