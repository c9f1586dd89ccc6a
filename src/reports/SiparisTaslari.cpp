#include "SiparisTaslari.h"

#include "Dates.h"
#include "Exchange.h"
#include "LineShares.h"
#include "Numbers.h"
#include "Oturum.h"

#include <algorithm>
#include <QHash>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

/// The unit that pure gold is counted in among the currencies.
QString pureGold()
{
    return u"HAS"_s;
}

QString gramPicture()
{
    return u"##0.00"_s;
}

} // namespace

SiparisTaslari::SiparisTaslari(Oturum &oturum, const SiparisBasligi &siparis,
                               const QString &Dovcinsi)
    : m_oturum(oturum), m_siparis(siparis), m_doviz(Dovcinsi)
{
    using Kind = ReportColumnKind;
    m_table.title = u"TAS RAPORU   Firma: "_s + siparis.FirAdi + u" No: "_s +
                    QString::number(siparis.Sipnum) + u"  Tarih: "_s + formatDate(siparis.SipTrh);
    m_table.columns = {{u"KOD"_s},
                       {u"ADET"_s, Kind::Number},
                       {u"MİKTAR"_s, Kind::Number, gramPicture()},
                       {Dovcinsi, Kind::Number, gramPicture()},
                       {u"HAS"_s, Kind::Number, gramPicture()},
                       {u"KAR"_s, Kind::Number, gramPicture()},
                       {u"fyt"_s, Kind::Number, {}, true},
                       {u"brm"_s, Kind::Text, {}, true},
                       {u"kat"_s, Kind::Number, {}, true}};
    read();
    ReportRow toplam{{u"Toplam"_s, 0.0, 0.0, 0.0, 0.0, 0.0, {}, {}, {}}, ReportRowKind::Total};
    for (ReportRow &row : m_table.rows) {
        reckon(row);
        for (int column = Adet; column <= Kar; ++column)
            toplam.values[column] =
                asDecimal(toplam.values[column].toDouble() + row.values[column].toDouble());
    }
    m_table.rows.append(toplam);
    m_table.notes = {u"Kur tarihi: "_s + formatDate(m_oturum.CalismaTarihi)};
    if (!m_eksikKurlar.isEmpty())
        m_table.notes.append(eksikKurNotu(m_oturum.CalismaTarihi, m_eksikKurlar));
}

void SiparisTaslari::read()
{
    Recordset Kayit = m_oturum.sorgula(
        u"Select Model, SipAdet, Taskodu, TasFiyati, TasBirimi, TasKatsayi, M_Adet "
        "From SiparisD, Model, Tas "
        "Where SiparisD.Sipmodel = Model.Model "
        "AND Sipuruntip = M_uruntip "
        "and M_Kod = TasID "
        "and SipnumD = "_s +
        sqlNumber(m_siparis.Sipnum) + u" and M_Tip = 0 Order by Taskodu;"_s);
    while (Kayit.next()) {
        const QString Taskodu = Kayit.text(u"Taskodu");
        if (m_table.rows.isEmpty() || m_table.rows.last().values[Kod].toString() != Taskodu) {
            m_table.rows.append(ReportRow{{Taskodu,
                                           0.0,
                                           {},
                                           {},
                                           {},
                                           {},
                                           Kayit.number(u"TasFiyati"),
                                           Kayit.text(u"TasBirimi"),
                                           Kayit.number(u"TasKatsayi")}});
        }
        QVariant &toplam = m_table.rows.last().values[Adet];
        toplam = asDecimal(toplam.toDouble() + Kayit.number(u"SipAdet") * Kayit.number(u"M_Adet"));
    }
}

/// A stone's weight, its cost, and what that is beside the gold it replaces.
void SiparisTaslari::reckon(ReportRow &row)
{
    const double miktar = roundDecimal(row.values[Adet].toDouble() * row.values[Kat].toDouble(), 2);
    const double maliyet = asDecimal(miktar * row.values[Fyt].toDouble());
    const QString birim = row.values[Brm].toString();
    const double has = roundDecimal(miktar * m_siparis.Ayar / 1000, 2);
    row.values[Miktar] = miktar;
    row.values[Doviz] =
        birim.trimmed() == m_doviz.trimmed() ? maliyet : cevir(maliyet, birim, m_doviz);
    row.values[Has] = has;
    row.values[Kar] = asDecimal(cevir(maliyet, birim, pureGold()) - has);
}

double SiparisTaslari::cevir(double tutar, const QString &birim, const QString &hedef)
{
    Database &db = *m_oturum.Veritabani;
    for (const QString &code : {birim.trimmed(), hedef.trimmed()}) {
        if (tutar != 0 && !m_eksikKurlar.contains(code) &&
            KurBul(db, m_oturum.CalismaTarihi, code) <= 0)
            m_eksikKurlar.append(code);
    }
    return KurCevir(db, m_oturum.CalismaTarihi, tutar, birim, hedef);
}

/// A stone's figure is spread over its lines by their counts.
ReportTable SiparisTaslari::satirlar(qsizetype row, qsizetype column) const
{
    QHash<QString, double> each;
    for (const ReportRow &stone : m_table.rows) {
        if (stone.kind == ReportRowKind::Total)
            continue;
        const double count = stone.values[Adet].toDouble();
        each[stone.values[Kod].toString()] =
            count == 0 ? 0 : stone.values[column].toDouble() / count;
    }
    const bool total = m_table.rows[row].kind == ReportRowKind::Total;
    const QString Taskodu = m_table.rows[row].values[Kod].toString();
    Recordset Kayit = m_oturum.sorgula(
        u"Select SipModel, SipUruntip, Siprenk, SipAdet, Taskodu, M_Adet "
        "From SiparisD, Model, Tas "
        "Where SiparisD.Sipmodel = Model.Model AND Sipuruntip = M_uruntip and M_Kod = TasID "
        "and SipnumD = "_s +
        sqlNumber(m_siparis.Sipnum) + u" and M_Tip = 0 Order by Taskodu, SipSatir, SipModel;"_s);
    const LineShares lines(m_oturum, m_siparis);
    QList<OrderShare> shares;
    while (Kayit.next()) {
        const QString code = Kayit.text(u"Taskodu");
        if (total || code == Taskodu)
            shares.append(lines.share(Kayit, Kayit.number(u"M_Adet") * each.value(code)));
    }
    return orderSharesTable(figureTitle(m_table, row, column), shares,
                            m_table.columns[column].picture);
}

QStringList raporDovizleri(Oturum &oturum)
{
    QStringList dovizler;
    Recordset Kayit =
        oturum.sorgula(u"SELECT * From DovizB Where Sbak = 1 and dovulke = 0 Order by Esira;"_s);
    while (Kayit.next())
        dovizler.append(Kayit.text(u"Dovcinsi").trimmed());
    return dovizler;
}

QString eksikKurNotu(QDate tarih, const QStringList &kurlar)
{
    QStringList named = kurlar;
    std::ranges::replace(named, QString(), u"(birimi boş taşların)"_s);
    return u"%1 tarihinde %2 kuru yok: bu kurla çevrilen tutarlar 0 sayıldı, KAR doğru değil."_s
        .arg(formatDate(tarih), named.join(u", "_s));
}

} // namespace kuyum
