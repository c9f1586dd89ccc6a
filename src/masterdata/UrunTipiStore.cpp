#include "UrunTipiStore.h"

#include "CounterFields.h"
#include "Numbers.h"
#include "Oturum.h"

using namespace Qt::StringLiterals;

namespace kuyum {

static QString findSql(double TipID)
{
    return u"Select * From UrunTipi Where TipID = "_s + sqlNumber(TipID);
}

QList<RecordRows> UrunTipiStore::kayit(double TipID) const
{
    return {{.table = u"UrunTipi"_s,
             .where = u"TipID = "_s + sqlNumber(TipID),
             .label = u"Ürün tipi "_s + plainNumber(TipID),
             .fields = {{u"UrunTipi"_s, u"Ürün tipi"_s},
                        {u"KisaAD"_s, u"Kısa ad"_s},
                        {u"Sirano"_s, u"Sıra no"_s}},
             .comesBack = true}};
}

std::optional<UrunTipiKaydi> UrunTipiStore::UrunTipiBul(double TipID) const
{
    Recordset Kayit = m_oturum->sorgula(findSql(TipID));
    if (!Kayit.next())
        return std::nullopt;
    return UrunTipiKaydi{TipID, Kayit.text(u"UrunTipi"), Kayit.text(u"KisaAD"),
                         Kayit.number(u"Sirano")};
}

void UrunTipiStore::save(const UrunTipiKaydi &tip, LoadedRows &okunan) const
{
    okunan.write(*m_oturum->Veritabani, [&] {
        const bool isNew = tip.TipID == 0;
        if (isNew)
            requireCounter(*m_oturum->Veritabani, u"UrunTipi"_s);
        Recordset Kayit = isNew ? m_oturum->Veritabani->table(u"UrunTipi"_s)
                                : m_oturum->sorgula(findSql(tip.TipID));
        if (isNew) {
            Kayit.addNew();
            Kayit.set(u"tiptarih", m_oturum->CalismaTarihi);
        } else if (Kayit.next()) {
            Kayit.edit();
        } else {
            throw DatabaseError(u"%1 numaralı ürün tipi bu arada silinmiş, değiştirilemez."_s.arg(
                plainNumber(tip.TipID)));
        }
        Kayit.set(u"UrunTipi", tip.UrunTipi);
        Kayit.set(u"KisaAD", tip.KisaAD);
        Kayit.set(u"Sirano", tip.Sirano);
        Kayit.update();
    });
}

void UrunTipiStore::remove(double TipID, LoadedRows &okunan) const
{
    okunan.write(*m_oturum->Veritabani, [&] {
        m_oturum->calistir(u"DELETE From Uruntipi Where TipID = "_s + sqlNumber(TipID));
    });
}

} // namespace kuyum
