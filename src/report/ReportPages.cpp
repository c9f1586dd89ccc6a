#include "ReportPages.h"

#include "FixedPitchText.h"
#include "ReportPageColumns.h"

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

constexpr double fontPoints = 9;
constexpr Twips character(fontPoints * 20 * 0.6);
constexpr Twips lineHeight(220);
constexpr Twips margin(720);
const Twips shortSide = Twips::fromMillimetres(210);
const Twips longSide = Twips::fromMillimetres(297);

int charactersOn(Twips paper)
{
    return int((paper - margin - margin).count() / character.count());
}

/// Puts a report on its pages, line after line.
class Pages
{
public:
    Pages(const QString &title, const QStringList &header, Twips width, Twips height)
        : m_document(title, width, height), m_header(header), m_width(charactersOn(width))
    {
    }

    void add(const ReportPart &part)
    {
        m_part = &part;
        for (const PageSlice &slice : placedColumns(part, m_width)) {
            m_slice = &slice;
            newPage();
            for (qsizetype row = 0; row < part.table.rows.size(); ++row)
                addRow(row);
        }
    }
    const PrintDocument &document() const { return m_document; }

private:
    void newPage();
    void addHeading();
    void addRow(qsizetype row);
    QStringList cellLines(qsizetype row, const PlacedColumn &column) const;
    void setBold(bool bold) { m_document.setFont({u"Courier New Tur"_s, fontPoints, bold}); }
    void put(int at, const QString &text)
    {
        if (!text.isEmpty())
            m_document.text({margin + character * at, m_y}, text);
    }
    void rule()
    {
        constexpr Twips above(20);
        if (m_slice->isEmpty())
            return;
        const ReportPageColumn &last = m_slice->last().place;
        m_document.line({margin, m_y - above},
                        {margin + character * (last.at + last.width), m_y - above});
    }
    /// A line stays free above the page number.
    Twips lastLine() const { return m_document.height() - margin - lineHeight * 3; }

    PrintDocument m_document;
    QStringList m_header;
    int m_width; ///< of a line, in characters
    const ReportPart *m_part = nullptr;
    const PageSlice *m_slice = nullptr;
    Twips m_y;
    int m_page = 0;
};

void Pages::newPage()
{
    m_document.newPage();
    ++m_page;
    setBold(false);
    m_y = m_document.height() - margin - lineHeight;
    put(0, u"Sayfa "_s + QString::number(m_page));
    m_y = margin;
    for (const QString &text : m_header) {
        for (const QString &line : wrappedLines(text, m_width, m_width)) {
            put(0, line);
            m_y += lineHeight;
        }
    }
    m_y += lineHeight;
    addHeading();
}

void Pages::addHeading()
{
    setBold(true);
    if (!m_part->headingLine.isEmpty() && usesOwnColumns(*m_part, m_width)) {
        put(0, m_part->headingLine);
    } else {
        for (const auto &[column, place] : *m_slice) {
            const ReportColumn &about = m_part->table.columns[column];
            const bool right = about.kind == ReportColumnKind::Number;
            put(place.at + (right ? place.width - int(about.heading.size()) : 0), about.heading);
        }
    }
    m_y += lineHeight * 1.5;
    rule();
    setBold(false);
}

QStringList Pages::cellLines(qsizetype row, const PlacedColumn &column) const
{
    const QString text = m_part->table.cellText(row, column.column);
    const int width =
        isLoneText(m_part->table.rows[row]) ? m_width - column.place.at : column.place.width;
    return wrappedLines(text, width, width);
}

void Pages::addRow(qsizetype row)
{
    const ReportRowKind kind = m_part->table.rows[row].kind;
    QList<QStringList> cells;
    qsizetype height = 1;
    for (const PlacedColumn &column : *m_slice) {
        cells.append(cellLines(row, column));
        height = qMax(height, cells.last().size());
    }
    if (m_y + lineHeight * double(height - 1) > lastLine())
        newPage();
    const bool apart = kind != ReportRowKind::Line;
    if (kind == ReportRowKind::Total)
        rule();
    setBold(apart);
    for (qsizetype line = 0; line < height; ++line) {
        for (qsizetype i = 0; i < cells.size(); ++i) {
            const auto &[column, place] = (*m_slice)[i];
            const QString text = cells[i].value(line);
            const bool right = m_part->table.columns[column].kind == ReportColumnKind::Number;
            put(place.at + (right ? qMax(0, place.width - int(text.size())) : 0), text);
        }
        m_y += lineHeight;
    }
    if (kind == ReportRowKind::Total)
        m_y += lineHeight * 0.5;
    setBold(false);
}

} // namespace

PrintDocument reportPages(const QString &title, const QStringList &header,
                          const QList<ReportPart> &parts)
{
    const int upright = charactersOn(shortSide);
    const bool lying = std::any_of(parts.begin(), parts.end(), [&](const ReportPart &part) {
        return !fitsOnPage(part, upright);
    });
    Pages pages(title, header, lying ? longSide : shortSide, lying ? shortSide : longSide);
    for (const ReportPart &part : parts)
        pages.add(part);
    return pages.document();
}

} // namespace kuyum
