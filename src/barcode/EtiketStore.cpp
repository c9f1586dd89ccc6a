#include "EtiketStore.h"

#include "EtiketSayfasi.h"
#include "Numbers.h"
#include "Oturum.h"
#include "SqlText.h"
#include "TurkishText.h"

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

/// A sheet's label; what no sheet has is taken for the first.
int sheetPlace(const Recordset &Kayit, QStringView field)
{
    constexpr int mostOnSheet = 40;
    const double place = Kayit.number(field);
    return place >= 1 && place <= mostOnSheet ? int(place) : 1;
}

/// Nothing where the type has no place for it: new rows were filled with zeros.
std::optional<PagePoint> placeOf(const Recordset &Kayit, QStringView left, QStringView top)
{
    const double x = Kayit.number(left);
    const double y = Kayit.number(top);
    if (x == 0 && y == 0)
        return std::nullopt;
    return PagePoint{labelUnits(x), labelUnits(y)};
}

BarkodTipi tipOf(const Recordset &Kayit)
{
    BarkodTipi tip;
    tip.BarkodTip_ID = qint32(Kayit.integer(u"BarkodTip_ID"));
    tip.BarkodTip_Ad = Kayit.text(u"BarkodTip_Ad").trimmed();
    tip.pBarkod = placeOf(Kayit, u"pBarkod_Left", u"pBarkod_Top").value_or(symbolPlace);
    tip.resim = placeOf(Kayit, u"pic_Left", u"pic_Top");
    tip.BasSatiri = sheetPlace(Kayit, u"BasSatiri");
    tip.BasSutunu = sheetPlace(Kayit, u"BasSutunu");
    return tip;
}

PageFont fontOf(const Recordset &Kayit)
{
    constexpr double usualPoints = 7;
    constexpr double mostPoints = 72;
    const QString name = Kayit.text(u"FontName").trimmed();
    const double points = Kayit.number(u"boyut");
    return {name.isEmpty() ? labelFont.toString() : name,
            points > 0 && points <= mostPoints ? points : usualPoints, Kayit.flag(u"Bold")};
}

} // namespace

QString EtiketAyari::karat() const
{
    return sabitayar == 0 ? QString() : formatNumber(sabitayar, u"#0");
}

EtiketAyari EtiketStore::ayarlar() const
{
    Recordset Kayit = m_oturum->sorgula(u"Select * From XXX"_s);
    if (!Kayit.next())
        return {};
    return {Kayit.number(u"sabitayar"), Kayit.text(u"YaziciAdi").trimmed()};
}

QList<qint32> EtiketStore::modelTipleri(const QString &model) const
{
    Recordset Kayit = m_oturum->sorgula(
        u"Select Distinct M_Uruntip From Model, Uruntipi Where M_uruntip = TipID and Model = "_s +
        sqlText(model));
    QList<qint32> types;
    while (Kayit.next())
        types.append(qint32(Kayit.integer(u"M_Uruntip")));
    return types;
}

std::optional<EtiketModeli> EtiketStore::ModelBul(const QString &model, qint32 TipID) const
{
    Recordset Kayit =
        m_oturum->sorgula(u"Select * From Model, Uruntipi Where M_uruntip = TipID and Model = "_s +
                          sqlText(model) + u" and M_uruntip = "_s + sqlNumber(TipID));
    if (!Kayit.next())
        return std::nullopt;
    const Etiket etiket{TipID,
                        qint32(Kayit.integer(u"Model_ID")),
                        Kayit.text(u"Model"),
                        Kayit.number(u"M_Miktar"),
                        {},
                        Kayit.text(u"UrunTipi"),
                        {}};
    return EtiketModeli{etiket, Kayit.text(u"KisaAD")};
}

std::optional<qint32> EtiketStore::urunTipi(const QString &text) const
{
    Recordset Kayit = m_oturum->sorgula(u"Select * From Uruntipi Order by Sirano"_s);
    while (Kayit.next()) {
        const qint64 TipID = Kayit.integer(u"TipID");
        if (text == QString::number(TipID) || sameText(Kayit.text(u"KisaAD"), text) ||
            sameText(Kayit.text(u"UrunTipi"), text))
            return qint32(TipID);
    }
    return std::nullopt;
}

QList<BarkodTipi> EtiketStore::BarkodTipleri() const
{
    Recordset Kayit = m_oturum->sorgula(u"Select * From Barkodtip Order by BarkodTip_ID"_s);
    QList<BarkodTipi> types;
    while (Kayit.next()) {
        BarkodTipi tip = tipOf(Kayit);
        tip.alanlar = alanlar(tip.BarkodTip_ID);
        if (Kayit.flag(u"BarkodTip_OzelUrun"))
            tip.ozelUrunler = ozelUrunler(tip.BarkodTip_ID);
        types.append(tip);
    }
    return types;
}

QList<BarkodAlani> EtiketStore::alanlar(qint32 btipno) const
{
    Recordset Kayit =
        m_oturum->Veritabani->query(u"Select * From BarkodtipAlanlar Where btipno = "_s +
                                    sqlNumber(btipno) + u" Order by alanno"_s);
    QList<BarkodAlani> fields;
    while (Kayit.next()) {
        if (Kayit.flag(u"Check"))
            fields.append({Kayit.text(u"alanadi"), fontOf(Kayit),
                           placeOf(Kayit, u"pic_Left", u"pic_Top").value_or(PagePoint())});
    }
    return fields;
}

QList<OzelUrun> EtiketStore::ozelUrunler(qint32 btipno) const
{
    Recordset Kayit = m_oturum->Veritabani->query(u"Select * From Barkodtipozel Where btipno = "_s +
                                                  sqlNumber(btipno));
    QList<OzelUrun> products;
    while (Kayit.next())
        products.append(
            {Kayit.text(u"BarkodKod_Kod").trimmed(), Kayit.text(u"BarkodKod_Isim").trimmed()});
    return products;
}

} // namespace kuyum
