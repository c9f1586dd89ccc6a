#include "PrintDocument.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

/// A file that comes into its place whole or not at all.
class WholeFile
{
public:
    WholeFile(const QString &kind, const QString &path) : m_kind(kind), m_path(path)
    {
        const QFileInfo place(path);
        if (place.isDir())
            refuse(u"Bu bir klasör."_s);
        if (!place.dir().exists())
            refuse(u"Klasör bulunamadı."_s);
    }

    void write(const QByteArray &bytes) const
    {
        QSaveFile file(m_path);
        if (!file.open(QIODevice::WriteOnly))
            refuse(u"Buraya yazılamıyor; dosya korunuyor olabilir."_s);
        // commit() does not notice when its last block finds no room; flush() does.
        if (file.write(bytes) != bytes.size() || !file.flush() || !file.commit())
            refuse(u"Diske yazılamadı; disk dolu olabilir."_s);
    }

    [[noreturn]] void refuse(const QString &reason) const
    {
        throw std::runtime_error(
            u"%1 dosyası yazılamadı: %2\n%3"_s.arg(m_kind, QDir::toNativeSeparators(m_path), reason)
                .toStdString());
    }

private:
    QString m_kind;
    QString m_path;
};

/// In memory: the PDF writer does not tell when its device fails.
QByteArray paintPdf(const PrintDocument &document, int dotsPerInch)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(dotsPerInch);
    writer.setTitle(document.title());
    writer.setCreator(u"Kuyum"_s);
    const QSizeF paper(document.width().points(), document.height().points());
    writer.setPageLayout(QPageLayout(QPageSize(paper, QPageSize::Point, {}, QPageSize::FuzzyMatch),
                                     QPageLayout::Portrait, QMarginsF(), QPageLayout::Point));
    QPageLayout layout = writer.pageLayout();
    layout.setMode(QPageLayout::FullPageMode);
    writer.setPageLayout(layout);

    QPainter painter(&writer);
    bool first = true;
    for (const PrintPage &page : document.pages()) {
        if (!first)
            writer.newPage();
        first = false;
        paintPage(painter, page, dotsPerInch);
    }
    painter.end();
    return bytes;
}

} // namespace

void writePdf(const PrintDocument &document, const QString &path, int dotsPerInch)
{
    const WholeFile file(u"PDF"_s, path);
    file.write(paintPdf(document, dotsPerInch));
}

void writePdf(const PrintDocument &document, const QString &path)
{
    writePdf(document, path, usualDotsPerInch(document));
}

QImage pageDots(const PrintDocument &document, const PrintPage &page, int dotsPerInch)
{
    const QSizeF paper(document.width().pixels(dotsPerInch), document.height().pixels(dotsPerInch));
    QImage dots(paper.toSize(), QImage::Format_Grayscale8);
    dots.fill(Qt::white);
    QPainter painter(&dots);
    paintPage(painter, page, dotsPerInch, PageInk::Dots);
    painter.end();
    dots = dots.convertToFormat(QImage::Format_Mono, Qt::ThresholdDither | Qt::AvoidDither);
    constexpr double inchesPerMetre = 1 / 0.0254;
    dots.setDotsPerMeterX(qRound(dotsPerInch * inchesPerMetre));
    dots.setDotsPerMeterY(qRound(dotsPerInch * inchesPerMetre));
    return dots;
}

void writePng(const PrintDocument &document, const QString &path, int dotsPerInch)
{
    const WholeFile file(u"PNG"_s, path);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!pageDots(document, document.pages().first(), dotsPerInch).save(&buffer, "PNG"))
        file.refuse(u"Resim bu büyüklükte oluşturulamadı."_s);
    file.write(bytes);
}
