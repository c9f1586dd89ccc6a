#include "UrunTipiStore.h"

#include "CounterFields.h"
#include "Numbers.h"
#include "Oturum.h"

using namespace Qt::StringLiterals;

static QString findSql(double TipID)
{
    return u"Select * From UrunTipi Where TipID = "_s + sqlNumber(TipID);
}

std::optional<UrunTipiKaydi> UrunTipiStore::UrunTipiBul(double TipID) const
{
    Recordset Kayit = m_oturum->sorgula(findSql(TipID));
    if (!Kayit.next())
        return std::nullopt;
    return UrunTipiKaydi{TipID, Kayit.text(u"UrunTipi"), Kayit.text(u"KisaAD"),
                         Kayit.number(u"Sirano")};
}

void UrunTipiStore::save(const UrunTipiKaydi &tip) const
{
    const bool isNew = tip.TipID == 0;
    if (isNew)
        requireCounter(*m_oturum->Veritabani, u"UrunTipi"_s);
    Recordset Kayit =
        isNew ? m_oturum->Veritabani->table(u"UrunTipi"_s) : m_oturum->sorgula(findSql(tip.TipID));
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
}

void UrunTipiStore::remove(double TipID) const
{
    m_oturum->calistir(u"DELETE From Uruntipi Where TipID = "_s + sqlNumber(TipID));
}
