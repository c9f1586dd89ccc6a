#include "PictureFiles.h"

#include "TurkishText.h"
#include "WholeFile.h"

#include <QBuffer>
#include <QDirIterator>
#include <QFileInfo>
#include <QImageReader>
#include <QImageWriter>
#include <QPainter>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

/// More than the best cameras give; a larger one would take seconds and
/// gigabytes to decode.
constexpr qint64 mostPixels = 64'000'000;
/// Other files than JPEG are decoded at their full size, which must stay below
/// the reader's limit of 128 MB.
constexpr qint64 mostPixelsDecodedWhole = 32'000'000;

QString moldFolder()
{
    return u"KLP"_s;
}

bool isPlainName(const QString &name)
{
    static const QString forbidden = u"/\\:*?\"<>|"_s;
    bool onlyPoints = true;
    for (const QChar c : name) {
        if (c < u' ' || forbidden.contains(c))
            return false;
        onlyPoints = onlyPoints && (c == u'.' || c == u' ');
    }
    return !onlyPoints;
}

/// The entry of that name without regard to case; empty when there is none.
QString entryIn(const QString &folder, const QString &name, QDir::Filter kind)
{
    QString exact = folder + u'/' + name;
    const QFileInfo info(exact);
    if (kind == QDir::Dirs ? info.isDir() : info.isFile())
        return exact;
    QDirIterator entries(folder, kind | QDir::NoDotAndDotDot);
    while (entries.hasNext()) {
        entries.next();
        if (sameText(entries.fileName(), name))
            return entries.filePath();
    }
    return {};
}

QString pictureIn(const QString &folder, const QString &code)
{
    const QString name = code.trimmed();
    return isPlainName(name) ? entryIn(folder, name + u".jpg"_s, QDir::Files) : QString();
}

QString pictureBelow(const QString &folder, const QString &subfolder, const QString &code)
{
    const QString name = subfolder.trimmed();
    if (!isPlainName(name) || !isPlainName(code.trimmed()))
        return {};
    const QString found = entryIn(folder, name, QDir::Dirs);
    return found.isEmpty() ? QString() : pictureIn(found, code);
}

[[noreturn]] void refuse(const QString &what, const QString &about)
{
    throw std::runtime_error((what + u'\n' + about).toStdString());
}

QString nameOfFile(const QString &folder, const QString &code)
{
    const QString name = code.trimmed();
    if (folder.isEmpty())
        refuse(u"Resim kaydedilemedi."_s, u"Şirketin resim klasörü tanımlı değil."_s);
    if (!QFileInfo(folder).isDir())
        refuse(u"Resim kaydedilemedi, resim klasörü bulunamadı:"_s,
               QDir::toNativeSeparators(folder));
    if (!isPlainName(name))
        refuse(u"Resim kaydedilemedi, bu kod dosya adı olamaz:"_s, name);
    return name + u".jpg"_s;
}

QString targetIn(const QString &folder, const QString &fileName)
{
    const QString there = entryIn(folder, fileName, QDir::Files);
    return there.isEmpty() ? folder + u'/' + fileName : there;
}

quint16 bigEndian(const QByteArray &bytes)
{
    return bytes.size() < 2 ? 0 : quint16((quint8(bytes[0]) << 8) | quint8(bytes[1]));
}

/// Goes past a scan's data to the mark that follows it; inside the data ff is
/// followed by 00 or a restart mark. Returns 0 at the end of the file.
quint8 nextMark(QIODevice &file)
{
    constexpr qint64 block = 65536;
    bool afterFf = false;
    for (;;) {
        const qint64 start = file.pos();
        const QByteArray bytes = file.read(block);
        if (bytes.isEmpty())
            return 0;
        for (qsizetype i = 0; i < bytes.size(); ++i) {
            const quint8 byte = quint8(bytes[i]);
            const bool restart = byte >= 0xd0 && byte <= 0xd7;
            if (afterFf && byte != 0 && byte != 0xff && !restart) {
                file.seek(start + i + 1);
                return byte;
            }
            afterFf = byte == 0xff;
        }
    }
}

/// Whether a JPEG file reaches its end mark. The decoder fills what is missing
/// with grey and calls that a success.
bool isCompleteJpeg(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    constexpr quint8 endOfImage = 0xd9;
    if (bigEndian(file.read(2)) != 0xffd8)
        return false;
    for (quint8 mark = nextMark(file); mark != 0; mark = nextMark(file)) {
        if (mark == endOfImage)
            return true;
        const quint16 length = bigEndian(file.read(2));
        if (length < 2 || !file.seek(file.pos() + length - 2) || file.atEnd())
            return false;
    }
    return false;
}

QSize fitted(QSize size, QSize box)
{
    const bool fits = size.width() <= box.width() && size.height() <= box.height();
    return fits ? size : size.scaled(box, Qt::KeepAspectRatio).expandedTo({1, 1});
}

bool isTooLarge(QSize size, qint64 most = mostPixels)
{
    return qint64(size.width()) * size.height() > most;
}

QString tooLargeText(QSize size)
{
    return u"Resim çok büyük (%1 x %2 nokta)."_s.arg(size.width()).arg(size.height());
}

/// JPEG knows no transparency and would make it black.
QImage onWhite(const QImage &image)
{
    if (!image.hasAlphaChannel())
        return image;
    QImage result(image.size(), QImage::Format_RGB32);
    result.fill(Qt::white);
    QPainter(&result).drawImage(QRect(QPoint(), image.size()), image);
    return result;
}

QString name(const QString &path)
{
    return QFileInfo(path).fileName();
}

PictureResult refused(const QString &path, const QString &why)
{
    return {{}, u"%1: %2"_s.arg(name(path), why)};
}

} // namespace

QString modelPicturePath(const QString &folder, const QString &model, const QString &shortName)
{
    return modelPicturePath(folder, model, QStringList{shortName});
}

QString modelPicturePath(const QString &folder, const QString &model, const QStringList &shortNames)
{
    if (folder.isEmpty())
        return {};
    QString path = pictureIn(folder, model);
    for (qsizetype i = 0; path.isEmpty() && i < shortNames.size(); ++i)
        path = pictureBelow(folder, shortNames[i], model);
    return path;
}

QString moldPicturePath(const QString &folder, const QString &code)
{
    return folder.isEmpty() ? QString() : pictureBelow(folder, moldFolder(), code);
}

QString modelPictureTarget(const QString &folder, const QString &model, const QString &shortName)
{
    const QString fileName = nameOfFile(folder, model);
    const QString type = shortName.trimmed();
    const QString typeFolder = isPlainName(type) ? entryIn(folder, type, QDir::Dirs) : QString();
    return targetIn(typeFolder.isEmpty() ? folder : typeFolder, fileName);
}

QString moldPictureTarget(const QString &folder, const QString &code)
{
    const QString fileName = nameOfFile(folder, code);
    if (entryIn(folder, moldFolder(), QDir::Dirs).isEmpty() && !QDir(folder).mkdir(moldFolder()))
        refuse(u"Kalıp resimlerinin klasörü açılamadı:"_s,
               QDir::toNativeSeparators(folder + u'/' + moldFolder()));
    return targetIn(entryIn(folder, moldFolder(), QDir::Dirs), fileName);
}

PictureResult loadPicture(const QString &path, QSize maxSize)
{
    // A pipe or a device by that name would never end.
    if (!QFileInfo(path).isFile())
        return refused(path, u"Resim dosyası bulunamadı."_s);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return refused(path, u"Resim dosyası açılamadı. "_s + file.errorString());

    QImageReader reader(&file);
    reader.setDecideFormatFromContent(true);
    static const QList<QByteArray> known = {"jpeg"_ba, "jpg"_ba, "png"_ba, "bmp"_ba, "gif"_ba};
    if (!known.contains(reader.format()))
        return refused(path, u"Dosya bir resim değil."_s);
    const QSize size = reader.size();
    if (!size.isValid() || size.isEmpty())
        return refused(path, u"Resim dosyası bozuk."_s);
    const bool isJpeg = reader.format().startsWith("jp");
    if (isTooLarge(size, isJpeg ? mostPixels : mostPixelsDecodedWhole))
        return refused(path, tooLargeText(size));
    if (isJpeg && !isCompleteJpeg(path))
        return refused(path, u"Resim dosyası eksik, sonu kesilmiş."_s);

    reader.setAutoTransform(true);
    const bool turned = reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
    const QSize target = fitted(size, turned ? maxSize.transposed() : maxSize);
    if (target != size)
        reader.setScaledSize(target);
    const QImage image = reader.read();
    return image.isNull() ? refused(path, u"Resim dosyası bozuk."_s) : PictureResult{image, {}};
}

PictureResult fitPicture(const QImage &image, QSize maxSize)
{
    if (image.isNull())
        return {{}, u"Panodaki ya da bırakılan veri bir resim değil."_s};
    if (isTooLarge(image.size()))
        return {{}, tooLargeText(image.size())};
    const QSize size = fitted(image.size(), maxSize);
    return {size == image.size()
                ? image
                : image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation),
            {}};
}

QByteArray jpegBytes(const QImage &image)
{
    constexpr int quality = 92; // no loss that shows in print
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QImageWriter writer(&buffer, "jpeg"_ba);
    writer.setQuality(quality);
    if (!writer.write(onWhite(image)))
        refuse(u"Resim JPEG yapılamadı."_s, writer.errorString());
    return bytes;
}

void savePicture(const QImage &image, const QString &path)
{
    // In memory first, so that what fails later is the disk and nothing else.
    const QByteArray bytes = jpegBytes(image);
    WholeFile(u"Resim"_s, path).write(bytes);
}

} // namespace kuyum
