#include "EtiketSablonu.h"

#include "Ean13.h"
#include "EtiketSayfasi.h"
#include "Numbers.h"
#include "ProductLabel.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

constexpr Twips edge = labelUnits(5); ///< kept free at the paper's edge

bool sideBySide(const BarkodAlani &alan, const BarkodTipi &tip)
{
    const Twips bottom = alan.at.y + Twips::fromPoints(alan.font.points);
    return bottom > tip.pBarkod.y && alan.at.y < tip.pBarkod.y + symbolHeight;
}

/// On the coarsest printers the symbol is wider than it was laid out; what
/// stands right of it makes way.
bool makesWay(const BarkodAlani &alan, const BarkodTipi &tip)
{
    return sideBySide(alan, tip) && alan.at.x >= tip.pBarkod.x + symbolWidth &&
           alan.at.x < tip.pBarkod.x + widestSymbol;
}

/// Where a field stands beside the symbol. A column that makes way moves whole,
/// with its lines above and below the symbol, and columns keep their distances.
PagePoint printedAt(const BarkodAlani &alan, const BarkodTipi &tip)
{
    bool moves = false;
    Twips leftmost = tip.pBarkod.x + widestSymbol;
    for (const BarkodAlani &other : tip.alanlar) {
        if (makesWay(other, tip)) {
            leftmost = std::min(leftmost, other.at.x);
            moves = moves || other.at.x == alan.at.x;
        }
    }
    const Twips way = tip.pBarkod.x + widestSymbol - leftmost;
    return moves ? PagePoint{alan.at.x + way, alan.at.y} : alan.at;
}

bool isCovered(const BarkodAlani &alan, const BarkodTipi &tip)
{
    return sideBySide(alan, tip) && alan.at.x >= tip.pBarkod.x &&
           alan.at.x < tip.pBarkod.x + symbolWidth;
}

bool isPlaceholder(const QString &text)
{
    static const QStringList filledIn = {u"%KOD%"_s, u"%BKOD%"_s, u"%FRM%"_s, u"%AYAR%"_s,
                                         u"%MIKTAR%"_s};
    const QList<SorulanAlan> &asked = sorulanAlanlar();
    return filledIn.contains(text) ||
           std::any_of(asked.begin(), asked.end(),
                       [&](const SorulanAlan &alan) { return alan.alan == text; });
}

class Sablon
{
public:
    Sablon(const Etiket &etiket, const BarkodTipi &tip, const SablonVerileri &veriler)
        : m_tip(tip),
          m_number(barcodeNumber({etiket.TipID, etiket.Model_ID})),
          m_height(labelBottom()),
          m_corner{labelWidth * (tip.BasSutunu - 1), m_height * (tip.BasSatiri - 1)}
    {
        m_values = veriler.sorulan;
        m_values[u"%KOD%"_s] = code(etiket, veriler.ozelUrun);
        m_values[u"%BKOD%"_s] = ean13Digits(m_number);
        m_values[u"%FRM%"_s] = veriler.firma;
        m_values[u"%AYAR%"_s] = etiket.Ayar;
        m_values[u"%MIKTAR%"_s] = formatNumber(etiket.Miktar, u"##0.00");
    }

    PrintDocument write(const QString &title, const QImage &resim) const;

private:
    static QString code(const Etiket &etiket, const std::optional<OzelUrun> &ozelUrun);
    Twips labelBottom() const;
    QString filled(QString text) const;
    PagePoint onSheet(PagePoint at) const { return {m_corner.x + at.x, m_corner.y + at.y}; }

    const BarkodTipi &m_tip;
    QString m_number;
    Twips m_height;
    PagePoint m_corner; ///< of the label on its sheet
    QMap<QString, QString> m_values;
};

QString Sablon::code(const Etiket &etiket, const std::optional<OzelUrun> &ozelUrun)
{
    return ozelUrun ? (ozelUrun->kod + u' ' + ozelUrun->isim).trimmed() : etiket.Model;
}

/// As high as labels are, or as its own fields ask for.
Twips Sablon::labelBottom() const
{
    Twips bottom = std::max(labelHeight, m_tip.pBarkod.y + symbolHeight + edge);
    for (const BarkodAlani &alan : m_tip.alanlar)
        bottom = std::max(bottom, alan.at.y + Twips::fromPoints(alan.font.points * 1.2));
    return bottom;
}

/// One placeholder after the other, so that a value which reads like one stays.
QString Sablon::filled(QString text) const
{
    for (qsizetype from = text.indexOf(u'%'); from >= 0; from = text.indexOf(u'%', from)) {
        const qsizetype to = text.indexOf(u'%', from + 1);
        const QString placeholder = to < 0 ? QString() : text.sliced(from, to - from + 1).toUpper();
        if (!isPlaceholder(placeholder)) {
            ++from;
            continue;
        }
        const QString value = m_values.value(placeholder);
        text.replace(from, placeholder.size(), value);
        from += value.size();
    }
    return text;
}

PrintDocument Sablon::write(const QString &title, const QImage &resim) const
{
    PrintDocument document(title, labelWidth * m_tip.BasSutunu, m_height * m_tip.BasSatiri);
    document.newPage();
    if (m_tip.resim && !resim.isNull()) {
        const PagePoint at = *m_tip.resim;
        constexpr Twips widest = labelUnits(100);
        document.picture(onSheet(at), std::min(widest, labelWidth - edge - at.x),
                         m_height - edge - at.y, resim);
    }
    for (const BarkodAlani &alan : m_tip.alanlar) {
        document.setFont(alan.font);
        fittedText(document, onSheet(printedAt(alan, m_tip)), filled(alan.alanadi),
                   m_corner.x + labelWidth - edge);
    }
    document.bars(onSheet(m_tip.pBarkod), labelSymbol(m_number, labelWidth - m_tip.pBarkod.x));
    return document;
}

} // namespace

const QList<SorulanAlan> &sorulanAlanlar()
{
    static const QList<SorulanAlan> list = {
        {u"%TFYT%"_s, u"TopFiyat"_s}, {u"%PFYT%"_s, u"PerFiyat"_s}, {u"%ALAN1%"_s, u"Alan1"_s},
        {u"%ALAN2%"_s, u"Alan2"_s},   {u"%ALAN3%"_s, u"Alan3"_s},   {u"%ALAN4%"_s, u"Alan4"_s},
        {u"%ALAN5%"_s, u"Alan5"_s},
    };
    return list;
}

bool uses(const BarkodTipi &tip, const QString &placeholder)
{
    return std::any_of(tip.alanlar.begin(), tip.alanlar.end(), [&](const BarkodAlani &alan) {
        return alan.alanadi.contains(placeholder, Qt::CaseInsensitive);
    });
}

QList<SorulanAlan> missingPrices(const BarkodTipi &tip, const QMap<QString, QString> &values)
{
    static const QStringList prices = {u"%TFYT%"_s, u"%PFYT%"_s};
    QList<SorulanAlan> missing = sorulanAlanlar();
    missing.removeIf([&](const SorulanAlan &alan) {
        return !prices.contains(alan.alan) || !uses(tip, alan.alan) ||
               !values.value(alan.alan).trimmed().isEmpty();
    });
    return missing;
}

PrintDocument sablonBelgesi(const Etiket &etiket, const BarkodTipi &tip,
                            const SablonVerileri &veriler)
{
    return Sablon(etiket, tip, veriler).write(u"Etiket "_s + etiket.Model, veriler.resim);
}

QStringList coveredFields(const BarkodTipi &tip)
{
    QStringList names;
    for (const BarkodAlani &alan : tip.alanlar) {
        if (isCovered(alan, tip))
            names.append(alan.alanadi);
    }
    return names;
}

} // namespace kuyum
