#include "PrintDocument.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

constexpr int twipsPerInch = 1440;

/// The layouts were drawn for faces of another system; each has free ones of
/// exactly the same widths.
struct Face
{
    const char16_t *name;
    QList<const char16_t *> stands;
};

const QList<Face> &faces()
{
    static const QList<Face> list = {
        {u"Courier New", {u"Liberation Mono", u"Courier New", u"Cousine"}},
        {u"Arial", {u"Liberation Sans", u"Arial", u"Arimo"}},
        {u"Times New Roman", {u"Liberation Serif", u"Times New Roman", u"Tinos"}},
    };
    return list;
}

/// In twips, and without hinting: a text is then as wide on the screen as on
/// paper, and its columns meet the lines drawn between them.
QFont paintedFont(const PageFont &font)
{
    QFont result(printedFamily(font.family));
    result.setPixelSize(qRound(Twips::fromPoints(font.points).count()));
    result.setBold(font.bold);
    result.setItalic(font.italic);
    result.setHintingPreference(QFont::PreferNoHinting);
    result.setKerning(false);
    return result;
}

class PagePainter
{
public:
    explicit PagePainter(QPainter &painter) : m_painter(painter) {}

    void operator()(const PageText &text)
    {
        useFont(text.font);
        m_painter.drawText(QPointF(text.at.x.count(), text.at.y.count() + m_ascent), text.text);
    }
    void operator()(const PageLine &line)
    {
        m_painter.setPen(QPen(Qt::black, line.width.count(), Qt::SolidLine, Qt::SquareCap));
        m_painter.drawLine(QPointF(line.from.x.count(), line.from.y.count()),
                           QPointF(line.to.x.count(), line.to.y.count()));
    }
    void operator()(const PagePicture &picture)
    {
        const QSizeF box(picture.width.count(), picture.height.count());
        const QSizeF size = QSizeF(picture.image.size()).scaled(box, Qt::KeepAspectRatio);
        m_painter.drawImage(QRectF(QPointF(picture.at.x.count(), picture.at.y.count()), size),
                            picture.image);
    }

private:
    /// Texts in one font follow each other, and a font is dear to set up.
    void useFont(const PageFont &font)
    {
        m_painter.setPen(Qt::black);
        if (m_fontSet && font == m_font)
            return;
        const QFont painted = paintedFont(font);
        m_painter.setFont(painted);
        m_ascent = QFontMetricsF(painted).ascent();
        m_font = font;
        m_fontSet = true;
    }

    QPainter &m_painter;
    PageFont m_font;
    bool m_fontSet = false;
    double m_ascent = 0;
};

[[noreturn]] void refusePdf(const QString &path, const QString &reason)
{
    throw std::runtime_error(
        u"PDF dosyası yazılamadı: %1\n%2"_s.arg(QDir::toNativeSeparators(path), reason)
            .toStdString());
}

/// In memory: the PDF writer does not tell when its device fails.
QByteArray paintPdf(const PrintDocument &document)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(twipsPerInch);
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
        paintPage(painter, page, twipsPerInch);
    }
    painter.end();
    return bytes;
}

} // namespace

PrintDocument::PrintDocument(const QString &title, Twips width, Twips height)
    : m_title(title), m_width(width), m_height(height)
{
}

void PrintDocument::newPage()
{
    m_pages.append(PrintPage());
}

void PrintDocument::add(const PageItem &item)
{
    if (m_pages.isEmpty())
        newPage();
    m_pages.last().items.append(item);
}

void PrintDocument::text(PagePoint at, const QString &text)
{
    add(PageText{at, text, m_font});
}

void PrintDocument::line(PagePoint from, PagePoint to, Twips width)
{
    add(PageLine{from, to, width});
}

void PrintDocument::frame(PagePoint at, Twips width, Twips height)
{
    const Twips right = at.x + width;
    const Twips bottom = at.y + height;
    line(at, {right, at.y});
    line({right, at.y}, {right, bottom});
    line({right, bottom}, {at.x, bottom});
    line({at.x, bottom}, at);
}

void PrintDocument::picture(PagePoint at, Twips width, Twips height, const QImage &image)
{
    add(PagePicture{at, width, height, image});
}

QString printedFamily(const QString &family)
{
    // The names carry the script of the old character sets, as in "Arial Tur".
    QString plain = family.trimmed();
    if (plain.endsWith(u" Tur"_s, Qt::CaseInsensitive))
        plain.chop(4);
    for (const Face &face : faces()) {
        if (plain.compare(QStringView(face.name), Qt::CaseInsensitive) != 0)
            continue;
        for (const char16_t *stand : face.stands) {
            const QString name = QString::fromUtf16(stand);
            if (QFontDatabase::hasFamily(name))
                return name;
        }
    }
    if (QFontDatabase::hasFamily(plain))
        return plain;
    return QFontDatabase::systemFont(QFontDatabase::FixedFont).family();
}

void paintPage(QPainter &painter, const PrintPage &page, double dotsPerInch)
{
    painter.save();
    painter.scale(dotsPerInch / twipsPerInch, dotsPerInch / twipsPerInch);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                           QPainter::SmoothPixmapTransform);
    PagePainter pagePainter(painter);
    for (const PageItem &item : page.items)
        std::visit(pagePainter, item);
    painter.restore();
}

void writePdf(const PrintDocument &document, const QString &path)
{
    const QFileInfo place(path);
    if (place.isDir())
        refusePdf(path, u"Bu bir klasör."_s);
    if (!place.dir().exists())
        refusePdf(path, u"Klasör bulunamadı."_s);
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        refusePdf(path, u"Buraya yazılamıyor; dosya korunuyor olabilir."_s);
    const QByteArray bytes = paintPdf(document);
    // commit() does not notice when its last block finds no room; flush() does.
    if (file.write(bytes) != bytes.size() || !file.flush() || !file.commit())
        refusePdf(path, u"Diske yazılamadı; disk dolu olabilir."_s);
}
