#include "UretimSayfalari.h"

#include "Dates.h"
#include "FixedPitchText.h"
#include "Numbers.h"

#include <numeric>

using namespace Qt::StringLiterals;

namespace kuyum {

using namespace UretimOlculeri;

namespace {

constexpr double titlePoints = 14;
constexpr double karatPoints = 12;
constexpr double footerPoints = 8;

constexpr PagePoint titleAt{left, 450_tw};
constexpr PagePoint karatAt{4600_tw, 480_tw};
constexpr PagePoint datesAt{7800_tw, 510_tw};
constexpr Twips numbersY = 900_tw;
constexpr PagePoint footerAt{5400_tw, 16100_tw};
constexpr Twips bottom = 15950_tw;
constexpr Twips blockGap = 160_tw;
constexpr Twips hairline = 5_tw;
constexpr QStringView numbersLabel = u"SİPARİŞ NOLARI : ";
/// A header with more lines would leave the page to the numbers; the whole
/// list then stands behind the last row.
constexpr qsizetype mostNumberLines = 6;

const QChar noBreak(QChar::Nbsp);

Twips heightOf(const SayfaBlogu &blok)
{
    return std::accumulate(blok.seritler.begin(), blok.seritler.end(), Twips(),
                           [](Twips sum, const SayfaSeridi &serit) { return sum + serit.height; });
}

/// The numbers divided by commas, in lines that end behind one.
QStringList numberLines(const QList<qint32> &siparisler)
{
    QStringList words;
    for (const qint32 Sipnum : siparisler)
        words.append(QString::number(Sipnum));
    const int width = charsFrom(left) - int(numbersLabel.size());
    QStringList lines = wrappedLines(words.join(u", "_s), width, width);
    for (QString &line : lines)
        line.remove(u' ');
    return lines;
}

} // namespace

UretimSayfalari::UretimSayfalari(const UretimListesi &liste)
    : m_liste(liste), m_document(u"Üretim Raporu"_s), m_orderNumbers(numberLines(liste.siparisler))
{
    newPage();
}

void UretimSayfalari::useFont(PrintDocument &document, double points, bool bold)
{
    document.setFont({u"Courier New Tur"_s, points, bold});
}

/// BaslikYaz0 and BaslikYaz02: the same header on both sheets.
void UretimSayfalari::BaslikYaz()
{
    const UretimFiltre &filtre = m_liste.filtre;
    useFont(m_document, titlePoints, true);
    m_document.text(titleAt, u"URETIM RAPORU"_s);
    useFont(m_document, karatPoints, true);
    m_document.text(karatAt, u"AYAR : "_s + plainNumber(m_liste.Ayar));
    useFont(m_document, textPoints, true);
    m_document.text(datesAt, u"TARIH :"_s + formatDate(filtre.bas) + u'-' + formatDate(filtre.bit));
    Twips y = numbersY;
    QString label = numbersLabel.toString();
    for (const QString &line :
         m_orderNumbers.first(std::min(mostNumberLines, m_orderNumbers.size()))) {
        m_document.text({left, y}, label + line);
        label.fill(u' ');
        y += lineAdvance;
    }
    if (m_orderNumbers.size() > mostNumberLines) {
        m_document.text({left, y}, label + u"(tamamı raporun sonunda)"_s);
        y += lineAdvance;
    }
    QStringList statuses;
    if (filtre.sipDur)
        statuses.append(u"SİP.DUR : "_s + *filtre.sipDur);
    if (filtre.uretDur)
        statuses.append(u"URT.DUR : "_s + *filtre.uretDur);
    for (const QString &line :
         wrappedLines(statuses.join(u"    "_s), charsFrom(left), charsFrom(left))) {
        if (line.isEmpty())
            continue;
        m_document.text({left, y}, line);
        y += lineAdvance;
    }
    m_document.line({left, y + 60_tw}, {right, y + 60_tw});
    m_top = y + 60_tw + blockGap;
}

void UretimSayfalari::newPage()
{
    m_document.newPage();
    BaslikYaz();
    m_y = m_top;
}

void UretimSayfalari::closePage()
{
    useFont(m_document, footerPoints);
    m_document.text(footerAt, u"Syf:"_s + QString::number(m_document.pages().size()));
}

Twips UretimSayfalari::room() const
{
    return bottom - m_y;
}

/// A hairline stands between two blocks.
void UretimSayfalari::put(const SayfaBlogu &blok)
{
    const Twips height = heightOf(blok);
    const bool first = m_y == m_top;
    const Twips gap = first ? 0_tw : blockGap * 2;
    if (!first && height + gap > room() && height <= bottom - m_top) {
        closePage();
        newPage();
    } else if (!first) {
        m_document.line({left, m_y + blockGap}, {right, m_y + blockGap}, hairline);
        m_y += gap;
    }
    putAcrossPages(blok);
}

void UretimSayfalari::putAcrossPages(const SayfaBlogu &blok)
{
    for (const SayfaSeridi &serit : blok.seritler) {
        if (serit.height > room()) {
            closePage();
            newPage();
            const SayfaSeridi caption = metinSeridi(left, blok.devam);
            caption.draw(m_document, m_y);
            m_y += caption.height;
        }
        serit.draw(m_document, m_y);
        m_y += serit.height;
    }
}

void UretimSayfalari::putOrderNumbers()
{
    const QString label = u"SİPARİŞ NOLARI (DEVAM)"_s;
    SayfaBlogu blok{{metinSeridi(left, numbersLabel.toString().trimmed())}, label};
    for (const QString &line : m_orderNumbers)
        blok.seritler.append(metinSeridi(left, line));
    put(blok);
}

PrintDocument UretimSayfalari::finish()
{
    if (m_orderNumbers.size() > mostNumberLines)
        putOrderNumbers();
    closePage();
    return m_document;
}

SayfaSeridi metinSeridi(Twips x, const QString &text)
{
    return {lineAdvance, [x, text](PrintDocument &document, Twips y) {
                UretimSayfalari::useFont(document, textPoints);
                document.text({x, y}, text);
            }};
}

QList<SayfaSeridi> etiketliSeritler(Twips x, const QString &label, const QString &text)
{
    if (text.trimmed().isEmpty())
        return {};
    const int width = charsFrom(x) - int(label.size());
    QList<SayfaSeridi> seritler;
    QString before = label;
    for (QString line : wrappedLines(text, width, width)) {
        line.replace(noBreak, u' ');
        seritler.append(metinSeridi(x, before + line));
        before.fill(u' ');
    }
    return seritler;
}

QList<SayfaSeridi> etiketliSeritler(Twips x, const QString &label, QStringList entries)
{
    for (QString &entry : entries)
        entry = onOneLine(entry).trimmed().replace(u' ', noBreak);
    return etiketliSeritler(x, label, entries.join(u", "_s));
}

} // namespace kuyum
