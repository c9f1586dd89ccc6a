#include "ToplamGram.h"

#include "Exchange.h"
#include "Numbers.h"
#include "Oturum.h"
#include "SqlText.h"

#include <map>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

/// Of models whose codes differ only in letter case, the one written exactly
/// so counts.
std::optional<double> storedGrams(Oturum &oturum, const QString &model, const QString &KisaAD)
{
    Recordset Kayit =
        oturum.sorgula(u"Select * From Model, Uruntipi Where M_uruntip = TipID and Model = "_s +
                       sqlText(model) + u" and KisaAD = "_s + sqlText(KisaAD));
    std::optional<double> grams;
    while (Kayit.next()) {
        const bool exact = Kayit.text(u"Model") == model;
        if (!grams || exact)
            grams = Kayit.number(u"M_Miktar");
        if (exact)
            break;
    }
    return grams;
}

} // namespace

OrderGrams orderGrams(const Siparis &siparis, double yogunluk, const GramBul &gramBul)
{
    OrderGrams result;
    for (const SiparisSatiri &row : siparis.satirlar) {
        double rowGrams = 0;
        for (qsizetype i = 0; i < row.adetler.size(); ++i) {
            if (row.adetler[i] == 0)
                continue;
            const std::optional<double> grams = gramBul(row.model, siparis.tipler[i].KisaAD);
            if (grams)
                rowGrams += roundDecimal(*grams * yogunluk * row.adetler[i], 2);
        }
        result.rows.append(rowGrams);
        result.total += rowGrams;
    }
    return result;
}

OrderGrams orderGrams(Oturum &oturum, const Siparis &siparis)
{
    std::map<std::pair<QString, QString>, std::optional<double>> known;
    const auto gramBul = [&](const QString &model, const QString &KisaAD) {
        const auto [place, isNew] = known.try_emplace({model, KisaAD});
        if (isNew)
            place->second = storedGrams(oturum, model, KisaAD);
        return place->second;
    };
    return orderGrams(siparis, YogunlukBul(*oturum.Veritabani, siparis.Ayar), gramBul);
}

} // namespace kuyum
