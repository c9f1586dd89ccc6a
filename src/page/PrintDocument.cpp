#include "PrintDocument.h"

#include <algorithm>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace kuyum {

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
QFont paintedFont(const PageFont &font, PageInk ink = PageInk::Smooth)
{
    QFont result(printedFamily(font.family));
    result.setPixelSize(qRound(Twips::fromPoints(font.points).count()));
    result.setBold(font.bold);
    result.setItalic(font.italic);
    result.setHintingPreference(QFont::PreferNoHinting);
    result.setKerning(false);
    if (ink == PageInk::Dots)
        result.setStyleStrategy(QFont::NoAntialias);
    return result;
}

class PagePainter
{
public:
    PagePainter(QPainter &painter, PageInk ink) : m_painter(painter), m_ink(ink) {}

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
        drawImage({QPointF(picture.at.x.count(), picture.at.y.count()), size}, picture.image);
    }
    void operator()(const PagePhoto &photo)
    {
        drawImage(
            {photo.at.x.count(), photo.at.y.count(), photo.width.count(), photo.height.count()},
            QImage::fromData(photo.jpeg, "JPEG"));
    }
    void operator()(const PageSymbol &symbol)
    {
        m_painter.save();
        m_painter.translate(symbol.at.x.count(), symbol.at.y.count());
        paintBars(m_painter, symbol.bars);
        m_painter.restore();
    }

private:
    /// Texts in one font follow each other, and a font is dear to set up.
    void useFont(const PageFont &font)
    {
        m_painter.setPen(Qt::black);
        if (m_fontSet && font == m_font)
            return;
        const QFont painted = paintedFont(font, m_ink);
        m_painter.setFont(painted);
        m_ascent = QFontMetricsF(painted).ascent();
        m_font = font;
        m_fontSet = true;
    }

    void drawImage(const QRectF &place, const QImage &image)
    {
        if (m_ink == PageInk::Smooth)
            m_painter.drawImage(place, image);
        else
            dotted(place, image);
    }

    /// In dots of its own, so that its greys become a pattern of black dots.
    void dotted(const QRectF &place, const QImage &image)
    {
        const QRect dots = m_painter.combinedTransform().mapRect(place).toRect();
        if (dots.isEmpty())
            return;
        const QImage scaled =
            image.scaled(dots.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        m_painter.save();
        m_painter.resetTransform();
        m_painter.drawImage(dots.topLeft(), scaled.convertToFormat(QImage::Format_Mono));
        m_painter.restore();
    }

    QPainter &m_painter;
    PageInk m_ink;
    PageFont m_font;
    bool m_fontSet = false;
    double m_ascent = 0;
};

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

void PrintDocument::frame(PagePoint at, Twips width, Twips height, Twips lineWidth)
{
    const Twips right = at.x + width;
    const Twips bottom = at.y + height;
    line(at, {right, at.y}, lineWidth);
    line({right, at.y}, {right, bottom}, lineWidth);
    line({right, bottom}, {at.x, bottom}, lineWidth);
    line({at.x, bottom}, at, lineWidth);
}

bool PrintDocument::hasBars() const
{
    const auto isBars = [](const PageItem &item) {
        return std::holds_alternative<PageSymbol>(item);
    };
    return std::any_of(m_pages.begin(), m_pages.end(), [&](const PrintPage &page) {
        return std::any_of(page.items.begin(), page.items.end(), isBars);
    });
}

int usualDotsPerInch(const PrintDocument &document)
{
    return document.hasBars() ? usualHead : twipsPerInch;
}

void PrintDocument::bars(PagePoint at, const PageBars &bars)
{
    add(PageSymbol{at, bars});
}

void PrintDocument::picture(PagePoint at, Twips width, Twips height, const QImage &image)
{
    add(PagePicture{at, width, height, image});
}

void PrintDocument::photo(PagePoint at, Twips width, Twips height, const QByteArray &jpeg)
{
    add(PagePhoto{at, width, height, jpeg});
}

/// Asked for at every text; the system takes a millisecond to answer.
static bool isInstalled(const QString &family)
{
    static const QStringList families = QFontDatabase::families();
    return families.contains(family, Qt::CaseInsensitive);
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
            if (isInstalled(name))
                return name;
        }
    }
    if (isInstalled(plain))
        return plain;
    return QFontDatabase::systemFont(QFontDatabase::FixedFont).family();
}

Twips printedWidth(const PageFont &font, const QString &text)
{
    return Twips(QFontMetricsF(paintedFont(font)).horizontalAdvance(text));
}

void paintPage(QPainter &painter, const PrintPage &page, double dotsPerInch, PageInk ink)
{
    painter.save();
    painter.scale(dotsPerInch / twipsPerInch, dotsPerInch / twipsPerInch);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                               QPainter::SmoothPixmapTransform,
                           ink == PageInk::Smooth);
    PagePainter pagePainter(painter, ink);
    for (const PageItem &item : page.items)
        std::visit(pagePainter, item);
    painter.restore();
}

} // namespace kuyum
