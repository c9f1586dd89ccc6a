#include "FirmaStore.h"

#include "CounterFields.h"
#include "NumberRange.h"
#include "Numbers.h"
#include "Oturum.h"
#include "SqlText.h"

using namespace Qt::StringLiterals;

namespace kuyum {

static QString findSql(qint32 Firkod)
{
    return u"Select * From Firma Where Firkod = "_s + sqlNumber(Firkod);
}

QList<RecordRows> FirmaStore::kayit(qint32 Firkod) const
{
    return {{.table = u"Firma"_s,
             .where = u"Firkod = "_s + sqlNumber(Firkod),
             .label = u"Firma %1"_s.arg(Firkod),
             .fields = {{u"KisaAD"_s, u"Kısa ad"_s},
                        {u"FirAdi"_s, u"Firma adı"_s},
                        {u"Yetkili"_s, u"Yetkili"_s},
                        {u"Telefon"_s, u"Telefon"_s},
                        {u"Mail"_s, u"E-posta"_s},
                        {u"UlkeID"_s, u"Ülke"_s,
                         lookedUp(*m_oturum->Veritabani, u"Ulkeler"_s, u"ID"_s, u"ulke_ADI"_s)},
                        {u"Aciklama"_s, u"Açıklama"_s}},
             .comesBack = true}};
}

std::optional<Firma> FirmaStore::FirmaBul(qint32 Firkod) const
{
    Recordset Kayit = m_oturum->sorgula(findSql(Firkod));
    if (!Kayit.next())
        return std::nullopt;
    return Firma{Firkod,
                 Kayit.text(u"KisaAD"),
                 Kayit.text(u"FirAdi"),
                 Kayit.text(u"Yetkili"),
                 Kayit.text(u"Telefon"),
                 Kayit.text(u"Mail"),
                 qint32(Kayit.integer(u"UlkeID")),
                 Kayit.text(u"Aciklama")};
}

void FirmaStore::save(const Firma &firma, LoadedRows &okunan) const
{
    okunan.write(*m_oturum->Veritabani, [&] {
        Recordset Kayit = m_oturum->sorgula(findSql(firma.Firkod));
        if (Kayit.next()) {
            Kayit.edit();
        } else {
            Kayit.addNew();
            Kayit.set(u"Firkod", firma.Firkod);
        }
        Kayit.set(u"KisaAD", firma.KisaAD.trimmed());
        Kayit.set(u"FirAdi", firma.FirAdi.trimmed());
        Kayit.set(u"Yetkili", firma.Yetkili.trimmed());
        Kayit.set(u"Telefon", firma.Telefon.trimmed());
        Kayit.set(u"Mail", firma.Mail.trimmed());
        Kayit.set(u"UlkeID", firma.UlkeID);
        Kayit.set(u"Aciklama", firma.Aciklama);
        Kayit.update();
    });
}

qint32 FirmaStore::bosKod() const
{
    const TableDef table = m_oturum->Veritabani->tableDef(u"Firma"_s);
    const FieldDef *field = table.field(u"Firkod");
    Recordset Kayit =
        m_oturum->sorgula(u"Select Firkod From Firma Where Firkod > 0 Order by Firkod;"_s);
    qint64 highest = 0;
    qint64 gap = 0;
    while (Kayit.next()) {
        const qint64 code = Kayit.integer(u"Firkod");
        if (gap == 0 && code > highest + 1)
            gap = highest + 1;
        highest = code;
    }
    const bool next =
        field == nullptr || whyNumberDoesNotFit(*field, double(highest + 1)).isEmpty();
    return qint32(next ? highest + 1 : gap);
}

bool FirmaStore::hasOrders(qint32 Firkod) const
{
    return m_oturum
        ->sorgula(u"Select Top 1 Sipnum from SiparisB Where Sipfirkod = "_s + sqlNumber(Firkod))
        .next();
}

void FirmaStore::remove(qint32 Firkod, LoadedRows &okunan) const
{
    okunan.write(*m_oturum->Veritabani, [&] {
        // One that another placed while the question stood open.
        if (hasOrders(Firkod))
            throw DatabaseError(u"SİPARİŞ BİLGİSİ MEVCUT, SİLİNEMEZ..."_s);
        m_oturum->calistir(u"DELETE From Firma Where Firkod = "_s + sqlNumber(Firkod));
    });
}

QList<Ulke> FirmaStore::ulkeler() const
{
    Recordset Kayit = m_oturum->sorgula(u"Select * From ulkeler"_s);
    QList<Ulke> countries;
    while (Kayit.next())
        countries.append({qint32(Kayit.integer(u"ID")), Kayit.text(u"ulke_ADI")});
    return countries;
}

qint32 FirmaStore::ulkeTanimla(const QString &ulke_ADI) const
{
    Transaction addition(*m_oturum->Veritabani); // two that add it at once add it once
    Recordset Kayit =
        m_oturum->sorgula(u"Select * From Ulkeler Where Ulke_ADI = "_s + sqlText(ulke_ADI));
    if (!Kayit.next()) {
        requireCounter(*m_oturum->Veritabani, u"Ulkeler"_s);
        Kayit.addNew();
        Kayit.set(u"ulke_ADI", ulke_ADI);
        Kayit.update();
    }
    const auto ID = qint32(Kayit.integer(u"ID"));
    addition.commit();
    return ID;
}

} // namespace kuyum
