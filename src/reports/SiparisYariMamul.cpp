#include "SiparisYariMamul.h"

#include "Exchange.h"
#include "LineShares.h"
#include "Numbers.h"
#include "Oturum.h"
#include "TurkishText.h"

#include <map>
#include <optional>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

QString gramPicture()
{
    return u"##0.00"_s;
}

/// The row that opens a group of molds.
QString groupCaption(const QString &KalipDur)
{
    if (sameText(KalipDur, u"Icerde"))
        return u"Icerde ------>"_s;
    if (sameText(KalipDur, u"Disarda"))
        return u"Disarda ----->"_s;
    return (KalipDur.trimmed().isEmpty() ? u"Yeri belirsiz"_s : KalipDur.trimmed()) + u" ----->"_s;
}

ReportRow moldTotal(double adet)
{
    return {{u"Toplam"_s, {}, asDecimal(adet)}, ReportRowKind::Total};
}

double needOf(const Recordset &Kayit)
{
    return roundDecimal(Kayit.number(u"SipAdet") * Kayit.number(u"M_Adet"), 2);
}

} // namespace

SiparisYariMamul::SiparisYariMamul(Oturum &oturum, const SiparisBasligi &siparis)
    : m_oturum(oturum), m_siparis(siparis)
{
    using Kind = ReportColumnKind;
    m_modeller.title = u"YARI MAMUL RAPORU - MODELLER"_s;
    m_modeller.columns = {{u"ÜRÜN KODU"_s, Kind::Model},
                          {u"TİP"_s, Kind::ModelType},
                          {u"ADET"_s, Kind::Number},
                          {u"GRAM"_s, Kind::Number, gramPicture()},
                          {u"HAS"_s, Kind::Number, gramPicture()}};
    m_kaliplar.title = u"YARI MAMUL RAPORU - KALIPLAR"_s;
    m_kaliplar.columns = {{u"KOD"_s}, {u"TANIM"_s}, {u"ADET"_s, Kind::Number}};
    Detaydoldur1();
    DetayDoldur();
}

/// The models. A line's pure gold stands as it comes out; the total adds what
/// is rounded to 2 decimals.
void SiparisYariMamul::Detaydoldur1()
{
    Recordset Kayit = m_oturum.sorgula(
        u"SELECT SiparisD.SipModel, m_Uruntip, UrunTipi.KisaAD,SiparisD.SipAdet, SiparisB.Ayar, "
        "Model.M_Miktar "
        "FROM ((SiparisB INNER JOIN SiparisD ON SiparisB.Sipnum = SiparisD.SipnumD) "
        "INNER JOIN Model ON SiparisD.SipModel = Model.Model) "
        "INNER JOIN UrunTipi ON Model.M_Uruntip = UrunTipi.TipID "
        "Where (((SiparisB.Sipnum) = "_s +
        sqlNumber(m_siparis.Sipnum) +
        u")) GROUP BY SiparisD.SipModel, m_Uruntip, UrunTipi.KisaAD, SiparisD.SipAdet, "
        "SiparisB.Ayar, Model.M_Miktar;"_s);
    std::map<double, double> yogunluklar;
    double toplamAdet = 0;
    double toplamGram = 0;
    double toplamHas = 0;
    while (Kayit.next()) {
        const double Ayar = Kayit.number(u"Ayar");
        const auto [yogunluk, isNew] = yogunluklar.try_emplace(Ayar);
        if (isNew)
            yogunluk->second = YogunlukBul(*m_oturum.Veritabani, Ayar);
        const double adet = Kayit.number(u"SipAdet");
        const double gram = roundDecimal(adet * Kayit.number(u"M_Miktar") * yogunluk->second, 2);
        const double has = asDecimal(gram * m_siparis.Ayar / 1000);
        m_modeller.rows.append(
            ReportRow{{Kayit.text(u"SipModel"), Kayit.text(u"KisaAD"), adet, gram, has}});
        toplamAdet += adet;
        toplamGram += gram;
        toplamHas += roundDecimal(has, 2);
    }
    m_modeller.rows.append(
        ReportRow{{u"Toplam"_s, {}, toplamAdet, asDecimal(toplamGram), asDecimal(toplamHas)},
                  ReportRowKind::Total});
}

/// The molds, which come by their places.
void SiparisYariMamul::DetayDoldur()
{
    Recordset Kayit = m_oturum.sorgula(
        u"Select Model, SipAdet, Kalipkodu, KalipAck, Kalipdur, M_Adet "
        "From SiparisD, Model, Kalip "
        "Where SiparisD.Sipmodel = Model.Model "
        "AND Sipuruntip = M_uruntip "
        "and M_Kod = KalipID "
        "and SipnumD = "_s +
        sqlNumber(m_siparis.Sipnum) + u" and M_Tip = 1 Order by KalipDur, Kalipkodu;"_s);
    std::optional<QString> group;
    double groupSum = 0;
    double sum = 0;
    while (Kayit.next()) {
        const QString caption = groupCaption(Kayit.text(u"Kalipdur"));
        if (caption != group) {
            if (group)
                m_kaliplar.rows.append(moldTotal(groupSum));
            m_kaliplar.rows.append(ReportRow{{caption, {}, {}}, ReportRowKind::Caption});
            group = caption;
            groupSum = 0;
        }
        const QString Kalipkodu = Kayit.text(u"Kalipkodu");
        const ReportRow &last = m_kaliplar.rows.last();
        if (last.kind != ReportRowKind::Line || last.values[Kod].toString() != Kalipkodu)
            m_kaliplar.rows.append(ReportRow{{Kalipkodu, Kayit.text(u"KalipAck"), 0.0}});
        const double adet = needOf(Kayit);
        QVariant &rowSum = m_kaliplar.rows.last().values[Adet];
        rowSum = asDecimal(rowSum.toDouble() + adet);
        groupSum += adet;
        sum += adet;
    }
    if (group)
        m_kaliplar.rows.append(moldTotal(groupSum));
    m_kaliplar.rows.append(moldTotal(sum));
}

/// A model stands in the report once for each of its types, and lines of the
/// same count once for all of them: only the first of such adds to the figure.
SiparisYariMamul::ModelPaylari SiparisYariMamul::modelPaylari(qsizetype row, qsizetype column) const
{
    Recordset Kayit = m_oturum.sorgula(
        u"Select SipModel, SipUruntip, Siprenk, SipAdet From SiparisD Where SipnumD = "_s +
        sqlNumber(m_siparis.Sipnum) + u" Order by SipModel, SipSatir;"_s);
    const LineShares lines(m_oturum, m_siparis);
    QList<OrderShare> stored;
    while (Kayit.next())
        stored.append(lines.share(Kayit, 0));

    const bool total = m_modeller.rows[row].kind == ReportRowKind::Total;
    ModelPaylari paylar;
    for (qsizetype i = 0; i < m_modeller.rows.size() - 1; ++i) {
        const QVariantList &values = m_modeller.rows[i].values;
        const double adet = values[ModelAdet].toDouble();
        double figure = values[column].toDouble();
        if (total && column == Has)
            figure = roundDecimal(figure, 2);
        bool first = true;
        for (OrderShare share : stored) {
            if ((!total && i != row) || !sameText(share.model, values[UrunKodu].toString()) ||
                share.adet != adet)
                continue;
            share.birim = adet == 0 ? 0 : figure / adet;
            share.miktar = std::exchange(figure, 0);
            paylar.shares.append(share);
            paylar.tipFarkli =
                paylar.tipFarkli || (adet != 0 && share.tip != values[Tip].toString());
            paylar.esitVar = paylar.esitVar || (!first && adet != 0);
            first = false;
        }
    }
    return paylar;
}

ReportTable SiparisYariMamul::modelSatirlari(qsizetype row, qsizetype column) const
{
    const ModelPaylari paylar = modelPaylari(row, column);
    QString title = figureTitle(m_modeller, row, column);
    if (paylar.esitVar)
        title += u"\nModeli ve adedi aynı olan satırlardan yalnız ilki bu rakama girer."_s;
    return orderSharesTable(title, paylar.shares, m_modeller.columns[column].picture);
}

QString SiparisYariMamul::modelNotu() const
{
    const ModelPaylari paylar = modelPaylari(m_modeller.rows.size() - 1, ModelAdet);
    QStringList notes;
    if (paylar.esitVar)
        notes.append(u"Modeli ve adedi aynı olan sipariş satırları tek satırda durur, toplama "
                     "yalnız biri girer."_s);
    if (paylar.tipFarkli)
        notes.append(u"Birden çok tipi olan model her tipinde durur, toplama her biri girer."_s);
    return notes.join(u'\n');
}

ReportTable SiparisYariMamul::kalipSatirlari(qsizetype row, qsizetype column) const
{
    const QList<ReportRow> &rows = m_kaliplar.rows;
    const bool group = rows[row].kind == ReportRowKind::Total && row > 0 && row < rows.size() - 1;
    qsizetype opening = row;
    while (group && rows[opening].kind != ReportRowKind::Caption)
        --opening;
    Recordset Kayit = m_oturum.sorgula(
        u"Select SipModel, SipUruntip, Siprenk, SipAdet, Kalipkodu, Kalipdur, M_Adet "
        "From SiparisD, Model, Kalip "
        "Where SiparisD.Sipmodel = Model.Model AND Sipuruntip = M_uruntip and M_Kod = KalipID "
        "and SipnumD = "_s +
        sqlNumber(m_siparis.Sipnum) +
        u" and M_Tip = 1 Order by KalipDur, Kalipkodu, SipSatir, SipModel;"_s);
    const LineShares lines(m_oturum, m_siparis);
    QList<OrderShare> shares;
    while (Kayit.next()) {
        const bool here = groupCaption(Kayit.text(u"Kalipdur")) == rows[opening].values[Kod];
        const bool isMold = Kayit.text(u"Kalipkodu") == rows[row].values[Kod].toString();
        if ((group && !here) || (rows[row].kind == ReportRowKind::Line && !isMold))
            continue;
        OrderShare share = lines.share(Kayit, Kayit.number(u"M_Adet"));
        share.miktar = needOf(Kayit);
        shares.append(share);
    }
    return orderSharesTable(figureTitle(m_kaliplar, row, column), shares,
                            m_kaliplar.columns[column].picture);
}

} // namespace kuyum
