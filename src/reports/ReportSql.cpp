#include "ReportSql.h"

#include "Numbers.h"
#include "SqlText.h"

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

QString inPeriod(const ReportPeriod &period)
{
    return u"siptrh >= "_s + sqlDate(period.bas) + u" and siptrh <= "_s + sqlDate(period.bit);
}

QString filterText(const ModelReportRequest &request)
{
    QString filter;
    if (request.Firkod)
        filter += u" firkod = "_s + sqlNumber(*request.Firkod) + u" and "_s;
    if (request.UlkeID)
        filter += u" ULKEID = "_s + sqlNumber(*request.UlkeID) + u" and "_s;
    if (!request.modelPrefix.isEmpty()) {
        filter += u" Left(Sipmodel,"_s + sqlNumber(request.modelPrefix.size()) + u") = "_s +
                  sqlText(request.modelPrefix) + u" and "_s;
    }
    if (request.TipID)
        filter += u" M_Uruntip = "_s + sqlNumber(*request.TipID) + u" and "_s;
    return filter;
}

/// The order's pieces of the model that fall into one column. Every column has
/// table names of its own.
QString columnSelect(ReportSplit split, const SplitColumn &column, int table)
{
    QString text = u" (select sum(s(x1).sipadet) from siparisd as s(x1),siparisb as s(x2)  "
                   "where s(x2).sipnum=s(x1).sipnumd and s(x1).sipnumd = s1.sipnum "
                   "and s(x1).sipmodel = s2.sipmodel and "_s;
    text += split == ReportSplit::Ayar ? u"s(x2).ayar="_s : u"s(x1).sipuruntip="_s;
    text.replace("(x1)"_L1, QString::number(table));
    text.replace("(x2)"_L1, QString::number(table + 1));
    return text + column.value + u") as "_s;
}

/// A field's name as it stands in the text. Karats are numbers, and one with
/// decimals makes a name only in brackets; product types stand as they are.
QString fieldName(const QString &prefix, ReportSplit split, const QString &name)
{
    const QString field = prefix + name;
    return split == ReportSplit::Ayar && name.contains(u'.') ? u'[' + field + u']' : field;
}

} // namespace

QString karatsSql(const ReportPeriod &period, bool ordered)
{
    return u"select distinct ayar from siparisB where "_s + inPeriod(period) +
           (ordered ? u" order by ayar"_s : QString());
}

QString productTypesSql(const ReportPeriod &period)
{
    return u"select uruntipi,tipID from uruntipi where tipID in (select distinct sipuruntip "
           "from siparisB,siparisd where sipnumd=sipnum and  "_s +
           inPeriod(period) + u") order by uruntipi"_s;
}

QString stoneReportSql(const ReportPeriod &period)
{
    return u"select taskodu,ayar,sum(sipadet*m_adet) as t1 , "
           "format(sum(sipadet*m_adet)*max(taskatsayi),'0.00') as t2 "
           "from siparisB ,siparisd,model,tas where sipnum=sipnumD and m_tip=0 "
           "and SipUruntip = M_Uruntip and "_s +
           inPeriod(period) +
           u" and sipmodel=model and tasID=m_kod group by taskodu,ayar order by taskodu,ayar "_s;
}

QString moldReportSql(const ReportPeriod &period)
{
    return u"select kalipkodu,KalipAck,ayar,format(sum(sipadet*m_adet),'0') as t1  "
           "from siparisB ,siparisd,model,Kalip where sipnum=sipnumD and m_tip=1 "
           "and SipUruntip = M_Uruntip  and "_s +
           inPeriod(period) +
           u" and sipmodel=model and kalipID = m_kod "
           "group by kalipkodu,KalipAck,ayar order by kalipkodu,ayar "_s;
}

QString modelReportSql(const ModelReportRequest &request, const QList<SplitColumn> &columns)
{
    QStringList selects;
    QStringList sums;
    QStringList totals;
    int table = 3;
    for (const SplitColumn &column : columns) {
        const QString own = fieldName(u"t"_s, request.split, column.name);
        selects.append(columnSelect(request.split, column, table) + own + u' ');
        sums.append(u"sum(%1) as %2,"_s.arg(own, fieldName(u"tt"_s, request.split, column.name)));
        totals.append(u" IIf(IsNull(%1), 0, %1) "_s.arg(own));
        table += 2;
    }
    return u"select * from (select sipmodel ,"_s + sums.join(QString()) + u" sum("_s +
           totals.join(u'+') + u") as TOPLAM from (select s2.sipmodel,"_s + selects.join(u',') +
           u" from siparisB as s1, siparisd as s2, firma, Model where sipfirkod = firkod "
           "and s2.SipModel = Model and s2.sipuruntip = model.m_uruntip and "_s +
           filterText(request) + u" s1.sipnum=s2.sipnumD and s1.siptrh >= "_s +
           sqlDate(request.period.bas) + u" and s1.siptrh <= "_s + sqlDate(request.period.bit) +
           u"   group by s1.sipnum,s2.sipmodel) group by sipmodel) order by toplam desc"_s;
}

} // namespace kuyum
