#include "SiparisFisi.h"

#include "Dates.h"
#include "FisSatirlari.h"
#include "FixedPitchText.h"
#include "Numbers.h"

using namespace Qt::StringLiterals;

namespace {

constexpr double titlePoints = 12;
constexpr double listPoints = 8;
constexpr double footerPoints = 6;
/// One character of the list: 0.6 of its size.
constexpr Twips charWidth = Twips::fromPoints(listPoints * 0.6);

constexpr PagePoint titleAt{500_tw, 500_tw};
constexpr PagePoint listAt{550_tw, 2650_tw};
constexpr PagePoint footerAt{5400_tw, 16100_tw};
constexpr Twips lineAdvance = 300_tw;
constexpr int linesPerPage = 44;

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
constexpr QStringView noteLabel = u"AÇIKLAMA       : ";
constexpr QStringView customerLabel = u"MÜŞTERİ        : ";
constexpr Twips frameLeft = 450_tw;
constexpr Twips frameTop = 270_tw;
constexpr Twips frameRight =
    Twips(listAt.x.count() + FisSatirlari::lineWidth * charWidth.count() + 50);

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

class PlainSlip
{
public:
    PlainSlip(const Siparis &siparis, MusteriKimligi kimlik, double toplamGram)
        : m_siparis(siparis),
          m_kimlik(kimlik),
          m_toplamGram(toplamGram),
          m_document(documentTitle(siparis))
    {
        m_heading = FisSatirlari::heading(siparis.tipler);
        splitNote();
    }

    PrintDocument write();

private:
    void splitNote();
    void Baslikyaz();
    void customerLine();
    Twips headingBottom() const;
    void frame();
    void YaziYaz(Twips x, Twips y, const QString &text) { m_document.text({x, y}, text); }
    void useFont(double points, bool bold);
    void writeLines(const QStringList &lines);
    void closePage();

    const Siparis &m_siparis;
    MusteriKimligi m_kimlik;
    double m_toplamGram;
    PrintDocument m_document;
    QStringList m_heading;
    QStringList m_note;    ///< the header's lines of the order note
    QString m_noteOverrun; ///< what they do not hold
    int m_lineCount = 0;   ///< on the current page
    Twips m_y;
};

/// The header has two lines for the note; what goes on ends in a dash.
void PlainSlip::splitNote()
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

void PlainSlip::useFont(double points, bool bold)
{
    m_document.setFont({u"Courier New Tur"_s, points, bold});
}

void PlainSlip::Baslikyaz()
{
    m_document.newPage();
    useFont(titlePoints, true);
    m_lineCount = 0;
    m_y = listAt.y;
    YaziYaz(titleAt.x, titleAt.y, u"SİPARİŞ LİSTESİ"_s);
    useFont(listPoints, true);
    YaziYaz(dataX, datesY,
            u"SİPARİŞ TARİHİ : "_s + formatDate(m_siparis.SipTrh) + u" TESLİM TARİHİ : "_s +
                formatDate(m_siparis.TesTrh));
    const int rightWidth = charsBetween(rightX, frameRight);
    YaziYaz(rightX, datesY, shortened(u"DAMGA : "_s + onOneLine(m_siparis.Patent), rightWidth));
    YaziYaz(dataX, noteY, noteLabel.toString() + m_note.value(0));
    if (m_note.size() > 1)
        YaziYaz(dataX + charWidth * double(noteLabel.size()), noteContinuedY, m_note[1]);
    Twips y = headingY;
    for (const QString &line : m_heading) {
        YaziYaz(listAt.x, y, line);
        y += headingAdvance;
    }
    customerLine();
    frame();
}

/// Customer and total, and the karat beside them; a long name goes on below.
void PlainSlip::customerLine()
{
    const bool byShortName = m_kimlik == MusteriKimligi::Kisa;
    QString customer = m_kimlik == MusteriKimligi::Kod ? QString::number(m_siparis.Firkod)
                       : byShortName                   ? m_siparis.KisaAD
                                                       : m_siparis.FirAdi;
    const QString total = QString(8, u' ') + (byShortName ? u"Toplam GRAM   : "_s : u"Top.GR: "_s) +
                          formatNumber(m_toplamGram, u"##0.00");
    const int room = charsBetween(listAt.x, rightX) - 1 - int(customerLabel.size() + total.size());
    customer = onOneLine(customer).trimmed();
    const QStringList lines = wrappedLines(customer, room, room);
    QString line = customerLabel.toString();
    const Twips firstY = std::max(customerY, headingBottom() + 60_tw);
    Twips y = firstY;
    for (const QString &piece : lines.first(lines.size() - 1)) {
        YaziYaz(listAt.x, y, line + piece);
        line = QString(customerLabel.size(), u' ');
        y += headingAdvance;
    }
    YaziYaz(listAt.x, y, line + lines.last() + total);
    YaziYaz(rightX, firstY, u"AYAR  : "_s + plainNumber(m_siparis.Ayar));
}

Twips PlainSlip::headingBottom() const
{
    return headingY + headingAdvance * double(m_heading.size()) + 40_tw;
}

void PlainSlip::frame()
{
    const Twips headingTop = headingY - 60_tw;
    const Twips bottom = listAt.y - 70_tw;
    const Twips dataLeft = dataX - 40_tw;
    const Twips rightLeft = rightX - 40_tw;
    const Twips datesBottom = noteY - 60_tw;
    const auto across = [&](Twips y, Twips from) { m_document.line({from, y}, {frameRight, y}); };
    const auto down = [&](Twips x, Twips from, Twips to) { m_document.line({x, from}, {x, to}); };

    for (const Twips y : {frameTop, headingTop, headingBottom(), bottom})
        across(y, frameLeft);
    across(datesBottom, dataLeft);
    for (const Twips x : {frameLeft, frameRight})
        down(x, frameTop, bottom);
    down(dataLeft, frameTop, headingTop);
    down(rightLeft, frameTop, datesBottom);
    down(rightLeft, headingBottom(), bottom);

    const auto columnRule = [&](int column) {
        down(listAt.x + charWidth * (column - 0.6), headingTop, headingBottom());
    };
    columnRule(FisSatirlari::colorColumn);
    for (int i = 0; i < qMin<int>(int(m_siparis.tipler.size()), FisSatirlari::typesPerLine); ++i)
        columnRule(FisSatirlari::firstTypeHeading + FisSatirlari::typeWidth * i);
    columnRule(FisSatirlari::noteColumn(m_siparis.tipler.size()));
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
    m_lineCount += int(lines.size());
    if (m_lineCount > linesPerPage) {
        closePage();
        Baslikyaz();
        m_lineCount = int(lines.size());
    }
    for (const QString &line : lines) {
        YaziYaz(listAt.x, m_y, line);
        m_y += lineAdvance;
    }
}

void PlainSlip::closePage()
{
    useFont(footerPoints, false);
    YaziYaz(footerAt.x, footerAt.y, u"Sayfa "_s + QString::number(m_document.pages().size()));
}

PrintDocument PlainSlip::write()
{
    Baslikyaz();
    for (const SiparisSatiri &row : m_siparis.satirlar) {
        if (!row.model.trimmed().isEmpty())
            writeLines(FisSatirlari::rowLines(row));
    }
    if (!m_noteOverrun.isEmpty()) {
        writeLines({QString(), u"AÇIKLAMA (DEVAM):"_s});
        for (const QString &line :
             wrappedLines(m_noteOverrun, FisSatirlari::lineWidth, FisSatirlari::lineWidth))
            writeLines({line});
    }
    closePage();
    return m_document;
}

} // namespace

PrintDocument siparisFisi(const Siparis &siparis, MusteriKimligi kimlik, double toplamGram)
{
    return PlainSlip(siparis, kimlik, toplamGram).write();
}
