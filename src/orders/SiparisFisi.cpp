#include "SiparisFisi.h"

#include "FixedPitchText.h"
#include "Numbers.h"

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

constexpr Twips lineAdvance = 300_tw;
constexpr int linesPerPage = 44;

SlipHeader plainHeader(const Siparis &siparis, MusteriKimligi kimlik, double toplamGram)
{
    SlipHeader header;
    header.kimlik = kimlik;
    header.total = formatNumber(toplamGram, u"##0.00");
    header.heading = SlipLines::heading(u"MODEL              RENK"_s, siparis.tipler);
    header.ruleColumns = SlipLines::ruleColumns(siparis.tipler.size());
    return header;
}

class PlainSlip
{
public:
    PlainSlip(const Siparis &siparis, const SlipHeader &header)
        : m_siparis(siparis), m_pages(siparis, header)
    {
    }

    PrintDocument write();

private:
    void beginPage();
    void writeLines(const QStringList &lines);

    const Siparis &m_siparis;
    SlipPages m_pages;
    int m_lineCount = 0; ///< on the current page
    Twips m_y;
};

void PlainSlip::beginPage()
{
    m_pages.Baslikyaz();
    m_lineCount = 0;
    m_y = SlipMeasures::listAt.y;
}

/// Puts lines that belong together on the page, after closing it when they
/// do not fit below what is there.
void PlainSlip::writeLines(const QStringList &lines)
{
    if (lines.size() > linesPerPage) {
        for (const QString &line : lines)
            writeLines({line});
        return;
    }
    if (m_lineCount + lines.size() > linesPerPage) {
        m_pages.closePage();
        beginPage();
    }
    m_lineCount += int(lines.size());
    for (const QString &line : lines) {
        m_pages.YaziYaz(SlipMeasures::listAt.x, m_y, line);
        m_y += lineAdvance;
    }
}

PrintDocument PlainSlip::write()
{
    beginPage();
    for (const SiparisSatiri &row : m_siparis.satirlar) {
        if (!row.model.trimmed().isEmpty())
            writeLines(SlipLines::rowLines(row));
    }
    if (!m_pages.noteOverrun().isEmpty()) {
        writeLines({QString(), u"AÇIKLAMA (DEVAM):"_s});
        for (const QString &line :
             wrappedLines(m_pages.noteOverrun(), SlipLines::lineWidth, SlipLines::lineWidth))
            writeLines({line});
    }
    m_pages.closePage();
    return m_pages.document();
}

} // namespace

PrintDocument siparisFisi(const Siparis &siparis, MusteriKimligi kimlik, double toplamGram)
{
    return PlainSlip(siparis, plainHeader(siparis, kimlik, toplamGram)).write();
}

} // namespace kuyum
