#include "PictureSlip.h"

#include "FixedPitchText.h"
#include "MissingPicture.h"
#include "Numbers.h"
#include "PictureLayout.h"

using namespace Qt::StringLiterals;

namespace kuyum {

using namespace SlipMeasures;

namespace {

constexpr double picturesPerInch = 200; ///< dots
constexpr Twips hairline = 5_tw;

qint64 totalPieces(const Siparis &siparis)
{
    qint64 pieces = 0;
    for (const SiparisSatiri &row : siparis.satirlar)
        pieces += row.totalCount();
    return pieces;
}

class PictureSlip
{
public:
    PictureSlip(const PictureLayout &layout, const PictureSlipSource &source)
        : m_layout(layout), m_source(source), m_pages(source.siparis, makeHeader())
    {
    }

    PrintDocument write();

private:
    SlipHeader makeHeader() const;
    enum class Cell { First, Continued };
    void beginCell(Cell kind);
    void writeRow(const SiparisSatiri &row, double grams);
    void writeBlock(const QStringList &lines);
    void writeNoteOverrun();
    void picture(const SiparisSatiri &row);

    const PictureLayout &m_layout;
    const PictureSlipSource &m_source;
    SlipPages m_pages;
    int m_cell = 0; ///< on the current page; 0 before the first page
    Twips m_y;      ///< of the cell's text
};

/// Baslikyaz_Resimli_7, _12 and _15: what the layout puts into the common header.
SlipHeader PictureSlip::makeHeader() const
{
    const Siparis &siparis = m_source.siparis;
    SlipHeader header;
    header.kimlik = m_source.kimlik;
    header.total = formatNumber(m_source.grams.total, u"##0.00");
    if (m_layout.weights) {
        header.totalLabel = u"Toplam GRAM/AD: "_s;
        header.total += u" / "_s + QString::number(totalPieces(siparis));
    }
    header.heading = m_layout.headingLines(siparis.tipler);
    header.ruleColumns = m_layout.ruleColumns(siparis.tipler.size());
    return header;
}

/// A hairline stands between two cells; one that goes on has none.
void PictureSlip::beginCell(Cell kind)
{
    if (m_cell == m_layout.adet) {
        m_pages.closePage();
        m_cell = 0;
    }
    if (m_cell == 0)
        m_pages.Baslikyaz();
    m_y = listAt.y + m_layout.advance * m_cell;
    if (m_cell > 0 && kind == Cell::First)
        m_pages.document().line({frameLeft, m_y - 45_tw}, {frameRight, m_y - 45_tw}, hairline);
    ++m_cell;
}

/// What a cell does not hold goes on in the next one.
void PictureSlip::writeRow(const SiparisSatiri &row, double grams)
{
    const RowWeights rowWeights{m_layout.weights ? m_source.UrGram(row.model) : 0, grams};
    QStringList lines = cellLines(m_layout, row, m_source.siparis.tipler, rowWeights);
    beginCell(Cell::First);
    picture(row);
    const int perCell = m_layout.linesPerCell();
    writeBlock(lines.mid(0, perCell));
    const int column = m_layout.columns().model;
    const QString model = onOneLine(row.model).trimmed().left(SlipLines::lineWidth - column - 8);
    for (lines = lines.mid(perCell); !lines.isEmpty(); lines = lines.mid(perCell - 1)) {
        beginCell(Cell::Continued);
        writeBlock(QStringList{QString(column, u' ') + model + u" (DEVAM)"_s} +
                   lines.mid(0, perCell - 1));
    }
}

/// A text item begins at its line's first letter: blanks over the picture are none.
void PictureSlip::writeBlock(const QStringList &lines)
{
    Twips y = m_y;
    for (const QString &line : lines) {
        const QString text = line.trimmed();
        const qsizetype column = line.indexOf(text);
        if (!text.isEmpty())
            m_pages.YaziYaz(columnX(double(column)), y, text);
        y += PictureLayout::lineAdvance;
    }
}

void PictureSlip::picture(const SiparisSatiri &row)
{
    const PictureRoom box{
        {listAt.x - PictureLayout::pictureOffset, m_y - PictureLayout::pictureOffset},
        m_layout.pictureWidth,
        m_layout.pictureHeight()};
    const QImage image = m_source.resim(row);
    if (image.isNull())
        missingPicture(m_pages.document(), box, row.model.trimmed());
    else
        m_pages.document().picture(box.at, box.width, box.height, image);
}

/// What the header does not hold of the order's note, in cells of its own.
void PictureSlip::writeNoteOverrun()
{
    if (m_pages.noteOverrun().isEmpty())
        return;
    QStringList lines{u"AÇIKLAMA (DEVAM):"_s};
    lines += wrappedLines(m_pages.noteOverrun(), SlipLines::lineWidth, SlipLines::lineWidth);
    const int perCell = m_layout.linesPerCell();
    for (Cell kind = Cell::First; !lines.isEmpty(); kind = Cell::Continued) {
        beginCell(kind);
        writeBlock(lines.mid(0, perCell));
        lines = lines.mid(perCell);
    }
}

PrintDocument PictureSlip::write()
{
    const QList<SiparisSatiri> &rows = m_source.siparis.satirlar;
    for (qsizetype i = 0; i < rows.size(); ++i) {
        if (!rows[i].model.trimmed().isEmpty())
            writeRow(rows[i], m_source.grams.rows[i]);
    }
    writeNoteOverrun();
    if (m_cell == 0)
        m_pages.Baslikyaz();
    m_pages.closePage();
    return m_pages.document();
}

} // namespace

PrintDocument Yazdir_Resimli_7(const PictureSlipSource &source)
{
    return PictureSlip(pictureLayout(7), source).write();
}

PrintDocument Yazdir_Resimli_12(const PictureSlipSource &source)
{
    return PictureSlip(pictureLayout(12), source).write();
}

PrintDocument Yazdir_Resimli_15(const PictureSlipSource &source)
{
    return PictureSlip(pictureLayout(15), source).write();
}

QSize picturePixels(int adet)
{
    const PictureLayout &layout = pictureLayout(adet);
    return QSizeF(layout.pictureWidth.pixels(picturesPerInch),
                  layout.pictureHeight().pixels(picturesPerInch))
        .toSize();
}

} // namespace kuyum
