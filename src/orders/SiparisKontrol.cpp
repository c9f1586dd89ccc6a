#include "SiparisKontrol.h"

#include "Siparis.h"

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

using Field = OrderFault::Field;

constexpr int colourColumn = 1;
constexpr int firstQuantityColumn = 2;

OrderFault headerFault(const QString &text, Field alan)
{
    return {text, u"HATA"_s, false, alan};
}

std::optional<OrderFault> headerFault(const Siparis &siparis)
{
    if (siparis.Firkod == 0 || siparis.FirAdi.trimmed().isEmpty())
        return headerFault(u"MÜŞTERİ SEÇİMİ YAPILMAMIŞ...!"_s, Field::FirAdi);
    if (siparis.Ayar == 0)
        return headerFault(u"AYAR BİLGİSİ GİRİLMEMİŞ...!"_s, Field::Ayar);
    if (siparis.Patent.trimmed().isEmpty())
        return headerFault(u"PATENT BİLGİSİ GİRİLMEMİŞ...!"_s, Field::Patent);
    if (siparis.Aciklama.trimmed().isEmpty())
        return headerFault(u"AÇIKLAMA BİLGİSİ GİRİLMEMİŞ...!"_s, Field::Aciklama);
    return std::nullopt;
}

std::optional<OrderFault> rowFault(const SiparisSatiri &row, int index, const HasModel &hasModel)
{
    if (!hasModel(row.model))
        return OrderFault{u"HATALI MODEL KODU !"_s, row.model, true};
    if (row.renk.isEmpty()) {
        return OrderFault{
            u"RENK BİLGİSİ GİRİLMEMİŞ...!"_s, {}, false, Field::Grid, index, colourColumn};
    }
    if (row.totalCount() == 0) {
        return OrderFault{u"SİPARİŞ ADETLERİ GİRİLMEMİŞ...!"_s,
                          {},
                          false,
                          Field::Grid,
                          index,
                          firstQuantityColumn};
    }
    return std::nullopt;
}

} // namespace

std::optional<OrderFault> checkOrder(const Siparis &siparis, const HasModel &hasModel)
{
    if (std::optional<OrderFault> fault = headerFault(siparis))
        return fault;
    bool anyRow = false;
    for (qsizetype i = 0; i < siparis.satirlar.size(); ++i) {
        const SiparisSatiri &row = siparis.satirlar[i];
        if (row.model.isEmpty())
            continue;
        anyRow = true;
        if (std::optional<OrderFault> fault = rowFault(row, int(i), hasModel))
            return fault;
    }
    if (!anyRow)
        return headerFault(u"SİPARİŞ DETAY BİLGİLERİ GİRİLMEMİŞ...!"_s, Field::Grid);
    return std::nullopt;
}

} // namespace kuyum
