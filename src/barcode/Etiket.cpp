#include "Etiket.h"

#include "EtiketSayfasi.h"
#include "Numbers.h"
#include "ProductLabel.h"

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

constexpr double secondColumn = 450;
constexpr double gap = 5; ///< between the columns, and before the paper's edge

} // namespace

PrintDocument etiketBelgesi(const Etiket &etiket)
{
    PrintDocument document(u"Etiket "_s + etiket.Model, labelWidth, labelHeight);
    const auto YazdirYeni = [&](double x, double y, const QString &text, double points) {
        document.setFont({labelFont.toString(), points, true});
        const Twips end = x < secondColumn ? labelUnits(secondColumn) : labelWidth;
        fittedText(document, {labelUnits(x), labelUnits(y)}, text, end - labelUnits(gap));
    };

    const QString number = barcodeNumber({etiket.TipID, etiket.Model_ID});
    document.bars(symbolPlace, labelSymbol(number, labelUnits(secondColumn) - symbolPlace.x));
    YazdirYeni(270, 50, etiket.Model, 7);
    YazdirYeni(secondColumn, 10, formatNumber(etiket.Miktar, u"##0.00"), 7);
    YazdirYeni(secondColumn, 30, etiket.Ayar, 7);
    const bool described = !etiket.Aciklama.trimmed().isEmpty();
    YazdirYeni(secondColumn, 50, described ? etiket.Aciklama : etiket.UrunTipi, 8);
    return document;
}

} // namespace kuyum
