#include "OrderShares.h"

#include "Numbers.h"

using namespace Qt::StringLiterals;

namespace kuyum {

ReportTable orderSharesTable(const QString &title, const QList<OrderShare> &shares,
                             const QString &picture)
{
    using Kind = ReportColumnKind;
    constexpr int unitDecimals = 6; // a third of a gram is not shown to its last digit
    ReportTable table;
    table.title = title;
    table.columns = {{u"TARİH"_s, Kind::Date},
                     {u"NO"_s, Kind::Number, u"0"_s},
                     {u"FİRMA"_s},
                     {u"MODEL"_s, Kind::Model},
                     {u"TİP"_s, Kind::ModelType},
                     {u"RENK"_s},
                     {u"ADET"_s, Kind::Number},
                     {u"BİRİM"_s, Kind::Number},
                     {u"MİKTAR"_s, Kind::Number, picture}};
    double adet = 0;
    double miktar = 0;
    for (const OrderShare &share : shares) {
        table.rows.append(
            ReportRow{{share.tarih, share.sipnum, share.firma, share.model, share.tip, share.renk,
                       share.adet, roundDecimal(share.birim, unitDecimals), share.miktar}});
        adet += share.adet;
        miktar += share.miktar;
    }
    table.rows.append(
        ReportRow{{u"TOPLAM"_s, {}, {}, {}, {}, {}, adet, {}, miktar}, ReportRowKind::Total});
    return table;
}

} // namespace kuyum
