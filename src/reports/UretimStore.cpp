#include "UretimStore.h"

#include "Dates.h"
#include "Numbers.h"
#include "OrderShares.h"
#include "Oturum.h"
#include "SqlText.h"
#include "TurkishText.h"

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

QString countPicture()
{
    return u"##0.00"_s;
}

QString statusCondition(const UretimFiltre &filtre)
{
    QString sql;
    if (filtre.sipDur)
        sql += u"and Drm1 = "_s + sqlText(*filtre.sipDur) + u' ';
    if (filtre.uretDur)
        sql += u"and Drm2 = "_s + sqlText(*filtre.uretDur) + u' ';
    return sql;
}

QString condition(const UretimFiltre &filtre)
{
    return u"and Trhbas >= "_s + sqlDate(filtre.bas) + u" and Trhbas <= "_s + sqlDate(filtre.bit) +
           u' ' + statusCondition(filtre);
}

QString orderList(const QList<qint32> &siparisler)
{
    QStringList list;
    for (const qint32 Sipnum : siparisler)
        list.append(sqlNumber(Sipnum));
    return list.join(u',');
}

/// Counts a line under what keeps its start date out of the range, if anything
/// does.
bool countByDate(const QDateTime &begun, const UretimFiltre &filtre, GizliSatirlar &gizli)
{
    if (!begun.isValid())
        ++gizli.tarihsiz;
    else if (begun.date() == filtre.bit && begun.time() != QTime(0, 0) &&
             begun.date() >= filtre.bas)
        ++gizli.bitisGunu;
    else if (begun.date() >= filtre.bas && begun.date() <= filtre.bit)
        return false;
    else if (begun.date() == noDate())
        ++gizli.baslamamis;
    else
        ++gizli.aralikDisi;
    return true;
}

} // namespace

QStringList UretimStore::siparisDurumlari() const
{
    return texts(u"Select * From Durum1"_s, u"d1_tanim");
}

QStringList UretimStore::uretimDurumlari() const
{
    return texts(u"Select * From Durum2"_s, u"d2_tanim");
}

QStringList UretimStore::texts(const QString &sql, QStringView field) const
{
    Recordset Kayit = m_oturum->sorgula(sql);
    QStringList result;
    while (Kayit.next())
        result.append(Kayit.text(field));
    return result;
}

ReportTable UretimStore::adetler(qint32 Sipnum, const UretimFiltre &filtre) const
{
    using Kind = ReportColumnKind;
    ReportTable table;
    table.title = u"Sipariş %1"_s.arg(Sipnum);
    table.columns = {
        {u"MODEL"_s, Kind::Model}, {u"ADET"_s, Kind::Number}, {u"TİP"_s, Kind::ModelType}};
    Recordset Kayit = m_oturum->sorgula(
        u"Select Sipmodel, Kisaad, Sum(Sipadet) as Topadet FROM SiparisD INNER JOIN UrunTipi "
        "ON SiparisD.SipUruntip = UrunTipi.TipID "
        "Where SipnumD = "_s +
        sqlNumber(Sipnum) + u' ' + condition(filtre) +
        u"Group by Sipmodel, Kisaad Order by Sipmodel, Kisaad;"_s);
    while (Kayit.next()) {
        table.rows.append(
            ReportRow{{Kayit.text(u"Sipmodel"), Kayit.number(u"Topadet"), Kayit.text(u"Kisaad")}});
    }
    return table;
}

ReportTable UretimStore::adetSatirlari(qint32 Sipnum, const UretimFiltre &filtre,
                                       const QString &model, const QString &KisaAD) const
{
    Recordset Kayit = m_oturum->sorgula(
        u"Select SipTrh, Firadi, Sipmodel, UrunTipi.KisaAD as Tip, Siprenk, Sipadet "
        "FROM ((SiparisD INNER JOIN UrunTipi ON SiparisD.SipUruntip = UrunTipi.TipID) "
        "INNER JOIN SiparisB ON SiparisD.SipnumD = SiparisB.Sipnum) "
        "INNER JOIN Firma ON SiparisB.SipFirkod = Firma.Firkod "
        "Where SipnumD = "_s +
        sqlNumber(Sipnum) + u' ' + condition(filtre) + u"Order by SipSatir, Dotosayi;"_s);
    QList<OrderShare> shares;
    while (Kayit.next()) {
        if (!sameText(Kayit.text(u"Sipmodel"), model) || !sameText(Kayit.text(u"Tip"), KisaAD))
            continue;
        const double adet = Kayit.number(u"Sipadet");
        shares.append({Kayit.date(u"SipTrh"), Sipnum, Kayit.text(u"Firadi"),
                       Kayit.text(u"Sipmodel"), Kayit.text(u"Tip"), Kayit.text(u"Siprenk"), adet, 1,
                       adet});
    }
    return orderSharesTable(u"%1 %2"_s.arg(model, KisaAD), shares, {});
}

QSet<qint32> UretimStore::definedTypes() const
{
    Recordset Kayit = m_oturum->sorgula(u"Select TipID From UrunTipi"_s);
    QSet<qint32> types;
    while (Kayit.next())
        types.insert(qint32(Kayit.integer(u"TipID")));
    return types;
}

GizliSatirlar UretimStore::gizliSatirlar(const QList<qint32> &siparisler,
                                         const UretimFiltre &filtre) const
{
    GizliSatirlar gizli;
    if (siparisler.isEmpty())
        return gizli;
    const QSet<qint32> types = definedTypes();
    Recordset Kayit =
        m_oturum->sorgula(u"Select SipUruntip, Trhbas From SiparisD Where SipnumD In("_s +
                          orderList(siparisler) + u')' + statusCondition(filtre));
    while (Kayit.next()) {
        if (countByDate(Kayit.value(u"Trhbas").toDateTime(), filtre, gizli))
            continue;
        if (!types.contains(qint32(Kayit.integer(u"SipUruntip"))))
            ++gizli.tipiTanimsiz;
    }
    return gizli;
}

QList<UretimSatiri> UretimStore::satirlar(const QList<qint32> &siparisler,
                                          const UretimFiltre &filtre) const
{
    Recordset Kayit = m_oturum->sorgula(
        u"Select SipnumD, Sipmodel, Sipuruntip, Kisaad, Siprenk, SipAck, Drm1, Drm2, "
        "Sum(Sipadet) as Topadet "
        "FROM SiparisD INNER JOIN UrunTipi ON SiparisD.SipUruntip = UrunTipi.TipID "
        "Where SipnumD In("_s +
        orderList(siparisler) + u')' + condition(filtre) +
        u" Group by SipnumD, Sipmodel, Sipuruntip, Kisaad, Siprenk, Sipack, Drm1, Drm2;"_s);
    QList<UretimSatiri> rows;
    while (Kayit.next()) {
        rows.append({qint32(Kayit.integer(u"SipnumD")), Kayit.text(u"Sipmodel"),
                     Kayit.text(u"Kisaad"), Kayit.text(u"Siprenk"), Kayit.text(u"SipAck"),
                     Kayit.text(u"Drm1"), Kayit.text(u"Drm2"), Kayit.number(u"Topadet")});
    }
    return rows;
}

UretimMusterisi UretimStore::musteri(qint32 Sipnum) const
{
    Recordset Kayit =
        m_oturum->sorgula(u"SELECT Firadi, SiparisB.Aciklama as SAck "
                          "FROM SiparisB INNER JOIN Firma ON SiparisB.SipFirkod = Firma.Firkod "
                          "Where Sipnum = "_s +
                          sqlNumber(Sipnum));
    if (!Kayit.next())
        return {};
    return {Kayit.text(u"Firadi"), Kayit.text(u"SAck")};
}

QList<UretimMalzemesi> UretimStore::kaliplar(const QString &model) const
{
    return malzemeler(u"SELECT Kalipkodu, Sum(M_Adet) as Topadet "
                      "FROM Model INNER JOIN Kalip ON Model.M_Kod = Kalip.KalipID "
                      "Where model = "_s +
                          sqlText(model) + u" and M_Tip = 1 Group by Kalipkodu "_s,
                      u"Kalipkodu");
}

QList<UretimMalzemesi> UretimStore::taslar(const QString &model) const
{
    return malzemeler(u"SELECT Taskodu, Sum(M_Adet) as Topadet "
                      "FROM Model INNER JOIN Tas ON Model.M_Kod = Tas.TasID "
                      "Where model = "_s +
                          sqlText(model) + u" and M_Tip = 0 Group by Taskodu "_s,
                      u"Taskodu");
}

QList<UretimMalzemesi> UretimStore::malzemeler(const QString &sql, QStringView codeField) const
{
    Recordset Kayit = m_oturum->sorgula(sql);
    QList<UretimMalzemesi> result;
    while (Kayit.next())
        result.append({Kayit.text(codeField), Kayit.number(u"Topadet")});
    return result;
}

QStringList UretimStore::modelTipleri(const QString &model) const
{
    QStringList names = texts(u"SELECT Kisaad FROM Model INNER JOIN UrunTipi "
                              "ON Model.M_Uruntip = UrunTipi.TipID Where Model = "_s +
                                  sqlText(model),
                              u"Kisaad");
    names.removeDuplicates(); // a model has a row for each of its materials
    return names;
}

int GizliSatirlar::toplam() const
{
    return tarihsiz + baslamamis + bitisGunu + aralikDisi + tipiTanimsiz;
}

QString GizliSatirlar::nedenler() const
{
    QStringList reasons;
    const auto add = [&reasons](int count, const QString &reason) {
        if (count > 0)
            reasons.append(reason.arg(count));
    };
    add(tarihsiz, u"%1 satırın başlangıç tarihi yok"_s);
    add(baslamamis, u"%1 satır başlamamış (01.01.2000)"_s);
    add(bitisGunu, u"%1 satır bitiş gününün gece yarısından sonra başlamış"_s);
    add(aralikDisi, u"%1 satır bu tarihlerin dışında başlamış"_s);
    add(tipiTanimsiz, u"%1 satırın ürün tipi tanımlı değil"_s);
    return reasons.join(u", "_s);
}

QString malzemeAdedi(double adet)
{
    return formatNumber(adet, countPicture());
}

ReportTable malzemeTable(const QString &heading, const QList<UretimMalzemesi> &malzemeler)
{
    ReportTable table;
    table.title = heading;
    table.columns = {{heading}, {u"ADET"_s, ReportColumnKind::Number, countPicture()}};
    for (const UretimMalzemesi &malzeme : malzemeler)
        table.rows.append(ReportRow{{malzeme.kod, malzeme.adet}});
    return table;
}

} // namespace kuyum
