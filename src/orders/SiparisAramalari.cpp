#include "SiparisAramalari.h"

#include "Numbers.h"
#include "Oturum.h"
#include "SqlText.h"
#include "UrunEtiketi.h"

using namespace Qt::StringLiterals;

std::optional<SiparisFirmasi> SiparisAramalari::firma(double Firkod) const
{
    Recordset Kayit =
        m_oturum->sorgula(u"Select * From Firma Where Firkod = "_s + sqlNumber(Firkod));
    if (!Kayit.next())
        return std::nullopt;
    return SiparisFirmasi{qint32(Kayit.integer(u"Firkod")), Kayit.text(u"FirAdi"),
                          Kayit.text(u"KisaAD"), Kayit.text(u"Aciklama")};
}

std::optional<BulunanModel> SiparisAramalari::model(const QString &text) const
{
    const std::optional<BulunanModel> scanned = etiket(text);
    return scanned ? scanned : modelKodu(text);
}

std::optional<BulunanModel> SiparisAramalari::etiket(const QString &text) const
{
    const std::optional<UrunEtiketi> label = etiketOku(text);
    if (!label)
        return std::nullopt;
    Recordset Kayit = m_oturum->sorgula(
        u"Select * FROM Model INNER JOIN UrunTipi ON Model.M_Uruntip = UrunTipi.TipID "
        "Where Model_ID = "_s +
        sqlNumber(label->Model_ID) + u" and m_uruntip = "_s + sqlNumber(label->TipID));
    if (!Kayit.next())
        return std::nullopt;
    return BulunanModel{Kayit.text(u"Model"), Kayit.text(u"KisaAD")};
}

std::optional<BulunanModel> SiparisAramalari::modelKodu(const QString &kod) const
{
    Recordset Kayit = m_oturum->sorgula(u"Select * From Model Where Model = "_s + sqlText(kod));
    std::optional<BulunanModel> found;
    while (Kayit.next()) {
        const QString code = Kayit.text(u"Model");
        if (code == kod)
            return BulunanModel{code, {}};
        if (!found)
            found = BulunanModel{code, {}};
    }
    return found;
}

QStringList SiparisAramalari::modelTipleri(const QString &model) const
{
    Recordset Kayit = m_oturum->sorgula(u"Select KisaAD From Model, UrunTipi "
                                        "Where M_Uruntip = TipID and Model = "_s +
                                        sqlText(model) + u" Group by KisaAD Order by KisaAD;"_s);
    QStringList names;
    while (Kayit.next())
        names.append(Kayit.text(u"KisaAD"));
    return names;
}

QStringList SiparisAramalari::resimTipleri(const QString &model) const
{
    Recordset Kayit = m_oturum->sorgula(
        u"SELECT Kisaad FROM Model INNER JOIN UrunTipi ON Model.M_Uruntip = UrunTipi.TipID "
        "Where Model = "_s +
        sqlText(model));
    QStringList names;
    while (Kayit.next())
        names.append(Kayit.text(u"Kisaad"));
    names.removeDuplicates();
    return names;
}

QStringList SiparisAramalari::renkler() const
{
    Recordset Kayit = m_oturum->sorgula(u"Select * From Renkler Order by RenkSira;"_s);
    QStringList names;
    while (Kayit.next())
        names.append(Kayit.text(u"RenkNo"));
    return names;
}

qint32 SiparisAramalari::UrunTipIdBul(const QString &KisaAD) const
{
    Recordset Kayit =
        m_oturum->sorgula(u"Select TipID From UrunTipi Where KisaAD = "_s + sqlText(KisaAD));
    return Kayit.next() ? qint32(Kayit.integer(u"TipID")) : 0;
}

float SiparisAramalari::UrGram(const QString &model) const
{
    Recordset Kayit = m_oturum->sorgula(u"Select * From Model Where Model = "_s + sqlText(model));
    return Kayit.next() ? float(Kayit.number(u"m_miktar")) : 0.0F;
}
