#include "FileDigest.h"

#include "Backup.h"
#include "WholeFile.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace kuyum {

static constexpr auto digestEnding = ".sha256"_L1;

QString digestPath(const QString &file)
{
    return file + digestEnding;
}

QString digestedPath(const QString &digest)
{
    return digest.chopped(digestEnding.size());
}

QByteArray fileDigest(const QString &file, const WorkStage &stage)
{
    constexpr qint64 block = 1 << 20;
    QFile source(file);
    if (!source.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        throw DatabaseError(u"Dosya okunamıyor: "_s + QDir::toNativeSeparators(file));
    QCryptographicHash hash(QCryptographicHash::Sha256);
    QByteArray bytes(block, Qt::Uninitialized);
    const auto size = double(qMax<qint64>(1, source.size()));
    for (;;) {
        const qint64 count = source.read(bytes.data(), block);
        if (count < 0)
            throw DatabaseError(u"Dosya okunamıyor: "_s + QDir::toNativeSeparators(file));
        if (count == 0)
            break;
        hash.addData(QByteArrayView(bytes).first(count));
        if (!stage.tell(qMin(1.0, double(source.pos()) / size)))
            throw Cancelled();
    }
    return hash.result().toHex();
}

void writeDigest(const QByteArray &digest, const QString &file)
{
    try {
        const WholeFile target(u"Yedek özeti"_s, digestPath(file));
        target.write(digest + "  " + QFileInfo(file).fileName().toUtf8() + '\n');
    } catch (const DatabaseError &) {
        throw;
    } catch (const std::runtime_error &error) {
        throw DatabaseError(QString::fromUtf8(error.what()));
    }
}

QByteArray readDigest(const QString &file)
{
    constexpr qsizetype hexadecimalDigits = 64;
    QFile source(digestPath(file));
    if (!source.open(QIODevice::ReadOnly))
        throw DatabaseError(u"Yedeğin özet dosyası okunamıyor: "_s +
                            QDir::toNativeSeparators(source.fileName()));
    const QByteArray digest = source.readLine(1000).left(hexadecimalDigits).toLower();
    if (QByteArray::fromHex(digest).toHex() != digest || digest.size() != hexadecimalDigits)
        throw DatabaseError(u"Yedeğin özet dosyası bozuk: "_s +
                            QDir::toNativeSeparators(source.fileName()));
    return digest;
}

} // namespace kuyum
