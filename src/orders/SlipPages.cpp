#include "SlipPages.h"

#include "Dates.h"
#include "Ean13.h"
#include "FixedPitchText.h"
#include "Numbers.h"
#include "OrderCode.h"

using namespace Qt::StringLiterals;

namespace kuyum {

using namespace SlipMeasures;

namespace {

constexpr double titlePoints = 12;
constexpr double footerPoints = 6;

constexpr PagePoint titleAt{500_tw, 500_tw};
constexpr PagePoint footerAt{5400_tw, 16100_tw};

// The header: the title in a cell of its own, beside it the order's data,
// below them the column heading, and over the list the customer.
constexpr Twips dataX = 2740_tw;
constexpr Twips rightX = 8000_tw; ///< karat and hallmark
constexpr Twips datesY = 350_tw;
constexpr Twips noteY = 650_tw;
constexpr Twips noteContinuedY = 850_tw;
constexpr Twips headingY = 1150_tw;
constexpr Twips headingAdvance = 200_tw;
constexpr Twips customerY = 1900_tw; ///< lower under a heading of many lines
constexpr Twips frameTop = 270_tw;
constexpr Twips frameBottom = listAt.y - 70_tw;
constexpr Twips numberY = 800_tw;
/// The thinnest module that every reader takes: 0.26 mm, and of whole dots at
/// 203, 300 and 600 to the inch.
constexpr Twips barsModule = 15_tw;
constexpr Twips barsX = 9750_tw;
constexpr Twips barsHeight = 850_tw;
constexpr Twips leastBarsHeight = 280_tw;
constexpr Twips barsGap = 60_tw;
constexpr QStringView noteLabel = u"AÇIKLAMA       : ";
constexpr QStringView customerLabel = u"MÜŞTERİ        : ";

/// How many characters of the list's size stand between two places.
constexpr int charsBetween(Twips left, Twips right)
{
    return int((right - left).count() / charWidth.count());
}

QString documentTitle(const Siparis &siparis)
{
    return siparis.Sipnum == 0 ? u"Sipariş Fişi"_s : u"Sipariş Fişi %1"_s.arg(siparis.Sipnum);
}

/// A text shortened to so many characters, with a mark that it was.
QString shortened(const QString &text, int width)
{
    return text.size() <= width ? text : text.left(width - 1) + u'…';
}

} // namespace

SlipPages::SlipPages(const Siparis &siparis, const SlipHeader &header)
    : m_siparis(siparis), m_header(header), m_document(documentTitle(siparis))
{
    splitNote();
}

/// The header has two lines for the note; what goes on ends in a dash.
void SlipPages::splitNote()
{
    const int width = charsBetween(dataX, frameRight) - int(noteLabel.size());
    QString rest = onOneLine(m_siparis.Aciklama).trimmed();
    while (m_note.size() < 2 && !rest.isEmpty()) {
        if (rest.size() <= width)
            m_note.append(std::exchange(rest, QString()));
        else
            m_note.append(takeLine(rest, width - 1, width - 1) + u'-');
    }
    m_noteOverrun = rest;
}

void SlipPages::useFont(double points, bool bold)
{
    m_document.setFont({u"Courier New Tur"_s, points, bold});
}

void SlipPages::Baslikyaz()
{
    m_document.newPage();
    useFont(titlePoints, true);
    YaziYaz(titleAt.x, titleAt.y, u"SİPARİŞ LİSTESİ"_s);
    useFont(listPoints, true);
    orderNumber();
    YaziYaz(dataX, datesY,
            u"SİPARİŞ TARİHİ : "_s + formatDate(m_siparis.SipTrh) + u" TESLİM TARİHİ : "_s +
                formatDate(m_siparis.TesTrh));
    const int rightWidth = charsBetween(rightX, frameRight);
    YaziYaz(rightX, datesY, shortened(u"DAMGA : "_s + onOneLine(m_siparis.Patent), rightWidth));
    YaziYaz(dataX, noteY, noteLabel.toString() + m_note.value(0));
    if (m_note.size() > 1)
        YaziYaz(dataX + charWidth * double(noteLabel.size()), noteContinuedY, m_note[1]);
    Twips y = headingY;
    for (const QString &line : m_header.heading) {
        YaziYaz(listAt.x, y, line);
        y += headingAdvance;
    }
    customerLine();
    frame();
}

/// The number below the title, and as bars beside the karat. Under a heading of
/// very many lines there is no room for bars that a scanner would find.
void SlipPages::orderNumber()
{
    if (m_siparis.Sipnum <= 0)
        return;
    YaziYaz(titleAt.x, numberY, u"SİPARİŞ NO: "_s + QString::number(m_siparis.Sipnum));
    const Twips band = frameBottom - headingBottom();
    const Twips height = std::min(barsHeight, band - barsGap - barsGap);
    const Twips top = headingBottom() + (band - height) * 0.5;
    const QString rightQuietZone(7, u'O');
    if (height >= leastBarsHeight)
        m_document.bars({barsX, top}, {ean13Modules(orderCode(m_siparis.Sipnum)) + rightQuietZone,
                                       barsModule, height, frameRight - barsGap - barsX});
}

QString SlipPages::customer() const
{
    switch (m_header.kimlik) {
    case MusteriKimligi::Kod:
        return QString::number(m_siparis.Firkod);
    case MusteriKimligi::Ad:
        return m_siparis.FirAdi;
    case MusteriKimligi::Kisa:
        break;
    }
    return m_siparis.KisaAD;
}

/// Customer and total, and the karat beside them; a long name goes on below.
void SlipPages::customerLine()
{
    QString label = m_header.totalLabel;
    if (label.isEmpty())
        label = m_header.kimlik == MusteriKimligi::Kisa ? u"Toplam GRAM   : "_s : u"Top.GR: "_s;
    const QString total = QString(8, u' ') + label + m_header.total;
    const int room = charsBetween(listAt.x, rightX) - 1 - int(customerLabel.size() + total.size());
    const QStringList lines = wrappedLines(onOneLine(customer()).trimmed(), room, room);
    QString line = customerLabel.toString();
    Twips firstY = std::max(customerY, headingBottom() + 60_tw);
    Twips advance = headingAdvance;
    if (firstY + advance * double(lines.size()) > frameBottom) {
        firstY = headingBottom() + 15_tw;
        advance = lineHeight;
    }
    Twips y = firstY;
    for (const QString &piece : lines.first(lines.size() - 1)) {
        YaziYaz(listAt.x, y, line + piece);
        line = QString(customerLabel.size(), u' ');
        y += advance;
    }
    YaziYaz(listAt.x, y, line + lines.last() + total);
    YaziYaz(rightX, firstY, u"AYAR  : "_s + plainNumber(m_siparis.Ayar));
}

Twips SlipPages::headingBottom() const
{
    return headingY + headingAdvance * double(m_header.heading.size()) + 40_tw;
}

void SlipPages::frame()
{
    const Twips headingTop = headingY - 60_tw;
    const Twips dataLeft = dataX - 40_tw;
    const Twips rightLeft = rightX - 40_tw;
    const Twips datesBottom = noteY - 60_tw;
    const auto across = [&](Twips y, Twips from) { m_document.line({from, y}, {frameRight, y}); };
    const auto down = [&](Twips x, Twips from, Twips to) { m_document.line({x, from}, {x, to}); };

    for (const Twips y : {frameTop, headingTop, headingBottom(), frameBottom})
        across(y, frameLeft);
    across(datesBottom, dataLeft);
    for (const Twips x : {frameLeft, frameRight})
        down(x, frameTop, frameBottom);
    down(dataLeft, frameTop, headingTop);
    down(rightLeft, frameTop, datesBottom);
    down(rightLeft, headingBottom(), frameBottom);
    for (const int column : m_header.ruleColumns)
        columnRule(column);
}

/// From line to line of the heading, with a gap where a name reaches across.
void SlipPages::columnRule(int column)
{
    const Twips x = columnX(column - 0.6);
    Twips top = headingY - 60_tw;
    for (qsizetype i = 0; i < m_header.heading.size(); ++i) {
        const bool last = i + 1 == m_header.heading.size();
        const Twips next = headingY + headingAdvance * double(i + 1) - 10_tw;
        const QString &line = m_header.heading[i];
        if (line.size() < column || line[column - 1] == u' ')
            m_document.line({x, top}, {x, last ? headingBottom() : next});
        top = next;
    }
}

void SlipPages::closePage()
{
    useFont(footerPoints, false);
    YaziYaz(footerAt.x, footerAt.y, u"Sayfa "_s + QString::number(m_document.pages().size()));
}

} // namespace kuyum
