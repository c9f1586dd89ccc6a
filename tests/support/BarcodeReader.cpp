#include "BarcodeReader.h"

#include <QPainter>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

QStringList runReader(const QStringList &arguments)
{
    QProcess reader;
    reader.start(u"zbarimg"_s, QStringList{u"-q"_s} + arguments);
    reader.waitForFinished(60'000);
    return QString::fromUtf8(reader.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
}

} // namespace

QStringList readBarcodes(const QImage &image, const QStringList &options)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"barkod.png"_s);
    image.save(path);
    return runReader(options + QStringList{path});
}

void BarcodeSheets::add(const QImage &image)
{
    constexpr qsizetype imagesOnSheet = 20;
    m_images.append(image);
    if (m_images.size() == imagesOnSheet)
        finishSheet();
}

void BarcodeSheets::finishSheet()
{
    if (m_images.isEmpty())
        return;
    const QSize size = m_images.first().size();
    QImage sheet(size.width(), size.height() * int(m_images.size()), QImage::Format_Mono);
    QPainter painter(&sheet);
    for (int i = 0; i < m_images.size(); ++i)
        painter.drawImage(0, i * size.height(), m_images[i]);
    painter.end();
    m_files.append(m_folder.filePath(u"%1.pbm"_s.arg(m_files.size())));
    sheet.save(m_files.last());
    m_images.clear();
}

QStringList BarcodeSheets::read()
{
    finishSheet();
    // Every eighth row will do, and none across: this is where the time goes.
    QStringList found = runReader(QStringList{u"-Sx-density=0"_s, u"-Sy-density=8"_s} + m_files);
    found.sort();
    return found;
}

QList<int> runsOfDots(const QImage &image, int row)
{
    QList<int> runs;
    bool dark = false;
    for (int x = 0; x < image.width(); ++x) {
        const bool here = qGray(image.pixel(x, row)) < 128;
        if (runs.isEmpty() && !here)
            continue;
        if (here != dark)
            runs.append(0);
        dark = here;
        ++runs.last();
    }
    if (!dark && !runs.isEmpty())
        runs.removeLast();
    return runs;
}

} // namespace kuyum
