#include "References.h"

#include "Dialect.h"

using namespace Qt::StringLiterals;

namespace kuyum {

QString Reference::bearsCode() const
{
    QStringList conditions;
    for (const QString &field : fields) {
        conditions.append(u"%1 IS NOT NULL AND %1 <> '' AND (%1 <> 0 OR typeof(%1) = 'text')"_s.arg(
            u"a."_s + quotedName(field)));
    }
    if (!condition.isEmpty())
        conditions.append(condition);
    return conditions.join(u" AND "_s);
}

const QList<Reference> &companyReferences()
{
    static const QList<Reference> all = {
        {u"SiparisB"_s, {u"SipFirkod"_s}, u"Firma"_s, {u"Firkod"_s}},
        {u"SiparisB"_s, {u"Ayar"_s}, u"Ayar"_s, {u"Milyem"_s}},
        {u"SiparisD"_s, {u"SipnumD"_s}, u"SiparisB"_s, {u"Sipnum"_s}},
        {u"SiparisD"_s, {u"SipUruntip"_s}, u"UrunTipi"_s, {u"TipID"_s}},
        {u"SiparisD"_s, {u"Siprenk"_s}, u"Renkler"_s, {u"RenkNo"_s}},
        {u"SiparisD"_s, {u"SipModel"_s, u"SipUruntip"_s}, u"Model"_s, {u"Model"_s, u"M_Uruntip"_s}},
        {u"SiparisD"_s, {u"Drm1"_s}, u"Durum1"_s, {u"d1_tanim"_s}},
        {u"SiparisD"_s, {u"Drm2"_s}, u"Durum2"_s, {u"d2_tanim"_s}},
        {u"Model"_s, {u"M_Uruntip"_s}, u"UrunTipi"_s, {u"TipID"_s}},
        {u"Model"_s, {u"M_Kod"_s}, u"Tas"_s, {u"TasID"_s}, u"a.M_Tip = 0"_s},
        {u"Model"_s, {u"M_Kod"_s}, u"Kalip"_s, {u"KalipID"_s}, u"a.M_Tip = 1"_s},
        {u"Katalog"_s, {u"katno1"_s}, u"Model"_s, {u"Model_ID"_s}},
        {u"KatalogSira"_s, {u"KatAdi"_s}, u"Katalog"_s, {u"KatAdi"_s}},
        {u"BarkodtipAlanlar"_s, {u"btipno"_s}, u"Barkodtip"_s, {u"BarkodTip_ID"_s}},
        {u"Barkodtipozel"_s, {u"btipno"_s}, u"Barkodtip"_s, {u"BarkodTip_ID"_s}},
        {u"DovizD"_s, {u"Dovcinsi"_s}, u"DovizB"_s, {u"Dovcinsi"_s}},
        {u"MenuKisit"_s, {u"MK_menuid"_s}, u"Menuler"_s, {u"m_ID"_s}},
        {u"MenuKisit"_s, {u"MK_userid"_s}, u"Users"_s, {u"User_ID"_s}},
        {u"Firma"_s, {u"UlkeID"_s}, u"Ulkeler"_s, {u"ID"_s}},
    };
    return all;
}

} // namespace kuyum
