#include "OrderReportPages.h"

#include "Dates.h"
#include "ReportPages.h"
#include "SiparisBasligi.h"

using namespace Qt::StringLiterals;

namespace kuyum {

PrintDocument stonePages(const SiparisBasligi &siparis, const ReportTable &taslar)
{
    constexpr qsizetype currencyColumn = 3;
    const QString currency = taslar.columns[currencyColumn].heading.left(4).rightJustified(4);
    const ReportPart part{taslar,
                          u"TAŞ KODU               ADET       MİKTAR         "_s + currency +
                              u"         HAS         KAR"_s,
                          {{0, 17}, {18, 9}, {29, 11}, {41, 12}, {54, 11}, {66, 11}}};
    return reportPages(u"Taş Raporu %1"_s.arg(siparis.Sipnum),
                       baslikSatirlari(siparis) + taslar.notes, {part});
}

PrintDocument foundryPages(const SiparisBasligi &siparis, const ReportTable &modeller,
                           const ReportTable &kaliplar)
{
    // What is noted while the molds are fetched goes into the last column.
    ReportTable list = kaliplar;
    list.columns.append({u"AÇIKLAMA"_s});
    for (ReportRow &row : list.rows)
        row.values.append(QVariant());
    const ReportPart molds{
        list,
        u"KOD                      TANIM                    ADET      AÇIKLAMA"_s,
        {{0, 23}, {25, 21}, {47, 7}, {60, 36}}};
    return reportPages(u"Yarı Mamul %1"_s.arg(siparis.Sipnum), baslikSatirlari(siparis),
                       {{modeller}, molds});
}

QString sheetTitle(const SiparisBasligi &siparis, const ReportTable &table)
{
    return table.title + u"   Firma: "_s + siparis.FirAdi + u" No: "_s +
           QString::number(siparis.Sipnum) + u"  Tarih: "_s + formatDate(siparis.SipTrh);
}

} // namespace kuyum
