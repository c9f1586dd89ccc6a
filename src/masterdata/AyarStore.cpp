#include "AyarStore.h"

#include "Numbers.h"
#include "Oturum.h"

using namespace Qt::StringLiterals;

namespace kuyum {

static QString findSql(double Milyem)
{
    return u"Select * From Ayar Where Milyem = "_s + sqlNumber(Milyem);
}

QList<RecordRows> AyarStore::kayit(double Milyem) const
{
    return {{.table = u"Ayar"_s,
             .where = u"Milyem = "_s + sqlNumber(Milyem),
             .label = u"Milyem "_s + plainNumber(Milyem),
             .fields = {{u"Yogunluk"_s, u"Yoğunluk"_s}},
             .comesBack = true}};
}

std::optional<Ayar> AyarStore::AyarBul(double Milyem) const
{
    Recordset Kayit = m_oturum->sorgula(findSql(Milyem));
    if (!Kayit.next())
        return std::nullopt;
    return Ayar{Kayit.number(u"Milyem"), Kayit.number(u"Yogunluk")};
}

void AyarStore::save(const Ayar &ayar, LoadedRows &okunan) const
{
    okunan.write(*m_oturum->Veritabani, [&] {
        Recordset Kayit = m_oturum->sorgula(findSql(ayar.Milyem));
        if (Kayit.next()) {
            Kayit.edit();
        } else {
            Kayit.addNew();
            Kayit.set(u"Milyem", ayar.Milyem);
        }
        Kayit.set(u"Yogunluk", ayar.Yogunluk);
        Kayit.update();
    });
}

void AyarStore::remove(double Milyem, LoadedRows &okunan) const
{
    okunan.write(*m_oturum->Veritabani, [&] {
        m_oturum->calistir(u"DELETE From Ayar Where Milyem = "_s + sqlNumber(Milyem));
    });
}

} // namespace kuyum
