#include "SiparisBasligi.h"

#include "Dates.h"
#include "Numbers.h"
#include "Oturum.h"

using namespace Qt::StringLiterals;

namespace kuyum {

std::optional<SiparisBasligi> siparisBasligi(Oturum &oturum, qint32 Sipnum)
{
    Recordset Kayit = oturum.sorgula(u"Select * From SiparisB, Firma "
                                     "Where SiparisB.SipFirkod = Firma.Firkod and Sipnum = "_s +
                                     sqlNumber(Sipnum));
    if (!Kayit.next())
        return std::nullopt;
    return SiparisBasligi{Sipnum, Kayit.date(u"SipTrh"), Kayit.number(u"Ayar"),
                          Kayit.text(u"FirAdi")};
}

QString bulunamadi(qint32 Sipnum)
{
    return QString::number(Sipnum) + u" NOLU SİPARİŞ KAYDI BULUNAMIYOR..."_s;
}

QStringList baslikSatirlari(const SiparisBasligi &siparis)
{
    const QStringList order{formatDate(siparis.SipTrh), formatNumber(siparis.Sipnum, u"000000"),
                            plainNumber(siparis.Ayar)};
    return {u"SİPARİŞ TARİH/NO/AYAR : "_s + order.join(u" - "_s),
            u"MÜŞTERİ               : "_s + siparis.FirAdi};
}

} // namespace kuyum
