#pragma once

#include "PageBars.h"
#include "Twips.h"

#include <QByteArray>
#include <QImage>
#include <QList>
#include <QString>
#include <variant>

class QPainter;

namespace kuyum {

/// A point on the page; a text's point is its top left corner.
struct PagePoint
{
    Twips x;
    Twips y;
    friend bool operator==(const PagePoint &, const PagePoint &) = default;
};

struct PageFont
{
    QString family;
    double points = 8;
    bool bold = false;
    bool italic = false;
    friend bool operator==(const PageFont &, const PageFont &) = default;
};

struct PageText
{
    PagePoint at;
    QString text;
    PageFont font;
};

struct PageLine
{
    PagePoint from;
    PagePoint to;
    Twips width;
};

struct PagePicture
{
    PagePoint at;
    Twips width;
    Twips height;
    QImage image;
};

/// A picture that stays compressed until it is painted: documents of a thousand
/// of them would not fit into memory otherwise. It fills its place.
struct PagePhoto
{
    PagePoint at;
    Twips width;
    Twips height;
    QByteArray jpeg;
};

struct PageSymbol
{
    PagePoint at;
    PageBars bars;
};

using PageItem = std::variant<PageText, PageLine, PagePicture, PagePhoto, PageSymbol>;

struct PrintPage
{
    QList<PageItem> items;
};

/// What is printed, as data: pages of texts, lines and pictures at positions
/// in twips from the paper's top left corner. Layout code fills it and knows
/// no printer; the preview, the printer and the PDF paint the same document.
class PrintDocument
{
public:
    /// The title names the print job and the PDF. The paper is A4, upright,
    /// unless told otherwise.
    explicit PrintDocument(const QString &title, Twips width = Twips::fromMillimetres(210),
                           Twips height = Twips::fromMillimetres(297));

    /// Begins a page. What is put on a document without one begins the first.
    void newPage();
    /// The font of the texts that follow, over page breaks too.
    void setFont(const PageFont &font) { m_font = font; }
    const PageFont &font() const { return m_font; }
    void text(PagePoint at, const QString &text);
    void line(PagePoint from, PagePoint to, Twips width = Twips(10));
    /// Four lines around a box.
    void frame(PagePoint at, Twips width, Twips height, Twips lineWidth = Twips(10));
    /// Fitted into the box with its proportions kept, from the top left.
    void picture(PagePoint at, Twips width, Twips height, const QImage &image);
    /// Exactly as large as told.
    void photo(PagePoint at, Twips width, Twips height, const QByteArray &jpeg);

    void bars(PagePoint at, const PageBars &bars);

    const QString &title() const { return m_title; }
    Twips width() const { return m_width; }
    Twips height() const { return m_height; }
    const QList<PrintPage> &pages() const { return m_pages; }
    /// Whether a bar code stands on it. Such a document goes to every device in
    /// the device's own dots: scaled ones would be no whole dots any more.
    bool hasBars() const;

private:
    void add(const PageItem &item);

    QString m_title;
    Twips m_width;
    Twips m_height;
    PageFont m_font;
    QList<PrintPage> m_pages;
};

/// The face that stands for a font name of the layouts: "Courier New Tur"
/// becomes a fixed-pitch face of the same widths that has the Turkish letters.
QString printedFamily(const QString &family);

/// How wide a text is printed.
Twips printedWidth(const PageFont &font, const QString &text);

/// How a page is painted: for the eye, or for a printer of black dots, which
/// knows no grey.
enum class PageInk { Smooth, Dots };

/// Paints a page with a painter whose (0,0) is the paper's corner.
void paintPage(QPainter &painter, const PrintPage &page, double dotsPerInch,
               PageInk ink = PageInk::Smooth);

/// The grid of dots on which a document is drawn when no printer says which:
/// bar codes on that of the usual label printer, all else in twips.
int usualDotsPerInch(const PrintDocument &document);

/// Writes all pages to a PDF file, on a grid of so many dots to the inch. Throws
/// std::runtime_error with a Turkish text when the file cannot be written; what
/// was at the path stays then.
void writePdf(const PrintDocument &document, const QString &path, int dotsPerInch);
/// The same on the document's usual grid.
void writePdf(const PrintDocument &document, const QString &path);

/// A page as a printer of that resolution sets its dots, black and white.
QImage pageDots(const PrintDocument &document, const PrintPage &page, int dotsPerInch);
/// Writes the first page's dots to a PNG file; throws as writePdf() does.
void writePng(const PrintDocument &document, const QString &path, int dotsPerInch);

} // namespace kuyum
