#pragma once

#include "PrintDocument.h"
#include "UretimListesi.h"

#include <functional>

namespace kuyum {

/// What is measured alike on both production sheets.
namespace UretimOlculeri {

constexpr double textPoints = 9;
constexpr Twips charWidth = Twips::fromPoints(textPoints * 0.6);
constexpr Twips lineAdvance = 220_tw;
constexpr Twips left = 550_tw;
constexpr Twips right = 11350_tw;

/// How many characters stand from there to the right edge.
constexpr int charsFrom(Twips x, Twips width = charWidth)
{
    return int((right - x).count() / width.count());
}

} // namespace UretimOlculeri

/// A piece of a sheet that no page break divides.
struct SayfaSeridi
{
    Twips height;
    std::function<void(PrintDocument &document, Twips y)> draw;
};

/// A row of the sheet. It stands on one page where it fits on one.
struct SayfaBlogu
{
    QList<SayfaSeridi> seritler;
    QString devam; ///< what the rest stands under on a further page
};

/// The pages of a production sheet, each with the header that both layouts
/// share and its number.
class UretimSayfalari
{
public:
    explicit UretimSayfalari(const UretimListesi &liste);

    void put(const SayfaBlogu &blok);
    /// Ends the last page. After this nothing more is put.
    PrintDocument finish();

    static void useFont(PrintDocument &document, double points, bool bold = false);

private:
    void BaslikYaz();
    void newPage();
    void closePage();
    void rule(Twips y);
    void putAcrossPages(const SayfaBlogu &blok);
    void putOrderNumbers();
    Twips room() const;

    const UretimListesi &m_liste;
    PrintDocument m_document;
    QStringList m_orderNumbers; ///< the lines of all order numbers
    Twips m_top;                ///< below the header
    Twips m_y;
};

/// One line of text at that place.
SayfaSeridi metinSeridi(Twips x, const QString &text);
/// A label and a text that goes on below itself where it is longer than the
/// line; nothing for an empty text.
QList<SayfaSeridi> etiketliSeritler(Twips x, const QString &label, const QString &text);
/// The same with entries that are not divided at their blanks.
QList<SayfaSeridi> etiketliSeritler(Twips x, const QString &label, QStringList entries);

} // namespace kuyum
