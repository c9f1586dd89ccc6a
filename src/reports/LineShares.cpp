#include "LineShares.h"

#include "Numbers.h"
#include "Oturum.h"

using namespace Qt::StringLiterals;

namespace kuyum {

LineShares::LineShares(Oturum &oturum, const SiparisBasligi &siparis) : m_siparis(siparis)
{
    Recordset Kayit = oturum.sorgula(u"Select TipID, KisaAD From UrunTipi"_s);
    while (Kayit.next())
        m_types.insert(Kayit.integer(u"TipID"), Kayit.text(u"KisaAD"));
}

OrderShare LineShares::share(const Recordset &Kayit, double birim) const
{
    OrderShare share;
    share.tarih = m_siparis.SipTrh;
    share.sipnum = m_siparis.Sipnum;
    share.firma = m_siparis.FirAdi;
    share.model = Kayit.text(u"SipModel");
    share.tip = m_types.value(Kayit.integer(u"SipUruntip"));
    share.renk = Kayit.text(u"Siprenk");
    share.adet = Kayit.number(u"SipAdet");
    share.birim = birim;
    share.miktar = share.adet * birim;
    return share;
}

double asDecimal(double value)
{
    constexpr int moreThanAnyFigure = 9;
    return roundDecimal(value, moreThanAnyFigure);
}

QString figureTitle(const ReportTable &table, qsizetype row, qsizetype column)
{
    return table.cellText(row, 0) + u" - "_s + table.columns[column].heading + u": "_s +
           table.cellText(row, column);
}

} // namespace kuyum
