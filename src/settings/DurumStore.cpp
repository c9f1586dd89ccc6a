#include "DurumStore.h"

#include "SqlText.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

/// Where the codes of one kind stand.
struct Yer
{
    QString tablo;
    QString alan;
    QString satirAlani; ///< the field of an order's line that takes such a code
};

Yer yeri(DurumTuru tur)
{
    return tur == DurumTuru::Siparis ? Yer{u"Durum1"_s, u"D1_tanim"_s, u"Drm1"_s}
                                     : Yer{u"Durum2"_s, u"D2_tanim"_s, u"Drm2"_s};
}

} // namespace

QStringList DurumStore::kodlar() const
{
    const Yer yer = yeri(m_tur);
    QStringList kodlar;
    Recordset Kayit = m_oturum.Veritabani->table(yer.tablo);
    while (Kayit.next())
        kodlar.append(Kayit.text(yer.alan));
    return kodlar;
}

int DurumStore::enUzun() const
{
    constexpr int unlimited = 255;
    const Yer yer = yeri(m_tur);
    const Database &db = *m_oturum.Veritabani;
    int longest = unlimited;
    for (const int limit : {db.tableDef(yer.tablo).textLimit(yer.alan),
                            db.tableDef(u"SiparisD"_s).textLimit(yer.satirAlani)}) {
        if (limit > 0)
            longest = std::min(longest, limit);
    }
    return longest;
}

bool DurumStore::ekle(const QString &kod)
{
    const Yer yer = yeri(m_tur);
    Transaction addition(*m_oturum.Veritabani); // two that add it at once add it once
    Recordset Kayit =
        m_oturum.sorgula(u"Select * From %1 Where %2 = "_s.arg(yer.tablo, yer.alan) + sqlText(kod));
    if (Kayit.next())
        return false;
    Kayit.addNew();
    Kayit.set(yer.alan, kod);
    Kayit.update();
    addition.commit();
    return true;
}

bool DurumStore::kullanilan(const QString &kod) const
{
    return m_oturum
        .sorgula(u"Select Top 1 SipnumD From SiparisD Where %1 = "_s.arg(yeri(m_tur).satirAlani) +
                 sqlText(kod))
        .next();
}

void DurumStore::sil(const QString &kod)
{
    const Yer yer = yeri(m_tur);
    Transaction removal(*m_oturum.Veritabani);
    // A line that got it while the question stood open.
    if (kullanilan(kod))
        throw DatabaseError(kod + u" SİPARİŞLERDE KULLANILIYOR, SİLİNEMEZ..."_s);
    m_oturum.calistir(u"DELETE From %1 Where %2 = "_s.arg(yer.tablo, yer.alan) + sqlText(kod));
    removal.commit();
}

} // namespace kuyum
