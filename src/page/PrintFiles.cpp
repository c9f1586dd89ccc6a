#include "PrintDocument.h"
#include "WholeFile.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

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

} // namespace kuyum
