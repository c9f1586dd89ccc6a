#pragma once

#include "PrintDocument.h"
#include "SlipLines.h"

namespace kuyum {

/// By which of its three identities the customer is printed.
enum class MusteriKimligi { Kisa, Ad, Kod };

/// What is measured alike on the slips of every layout.
namespace SlipMeasures {

constexpr double listPoints = 8;
/// One character of the list: 0.6 of its size.
constexpr Twips charWidth = Twips::fromPoints(listPoints * 0.6);
/// From the top of a line to where its letters end below.
constexpr Twips lineHeight = 182_tw;
constexpr PagePoint listAt{550_tw, 2650_tw};

/// Where a column of the list stands.
constexpr Twips columnX(double column)
{
    return listAt.x + charWidth * column;
}

constexpr Twips frameLeft = 450_tw;
constexpr Twips frameRight = columnX(SlipLines::lineWidth) + 50_tw;

} // namespace SlipMeasures

/// What a layout says in the pages' header.
struct SlipHeader
{
    MusteriKimligi kimlik = MusteriKimligi::Kisa;
    QString total;          ///< the total as it is printed
    QString totalLabel;     ///< before the total; empty: as the identity has it
    QStringList heading;    ///< the lines of the column heading
    QList<int> ruleColumns; ///< the heading's columns that a rule stands before
};

/// The pages of an order slip, each with the header block that all layouts
/// share and a footer. What stands between them is the layout's.
class SlipPages
{
public:
    SlipPages(const Siparis &siparis, const SlipHeader &header);

    /// Begins a page with its header; the list's font is set then.
    void Baslikyaz();
    /// Ends the page with its number.
    void closePage();
    void YaziYaz(Twips x, Twips y, const QString &text) { m_document.text({x, y}, text); }

    /// What of the order's note the header does not hold; empty when it holds all.
    const QString &noteOverrun() const { return m_noteOverrun; }
    PrintDocument &document() { return m_document; }

private:
    void splitNote();
    void orderNumber();
    void customerLine();
    QString customer() const;
    Twips headingBottom() const;
    void frame();
    void columnRule(int column);
    void useFont(double points, bool bold);

    const Siparis &m_siparis;
    SlipHeader m_header;
    PrintDocument m_document;
    QStringList m_note; ///< the header's lines of the order note
    QString m_noteOverrun;
};

} // namespace kuyum
