#include "AyarStore.h"

#include "Numbers.h"
#include "Oturum.h"

using namespace Qt::StringLiterals;

static QString findSql(double Milyem)
{
    return u"Select * From Ayar Where Milyem = "_s + sqlNumber(Milyem);
}

std::optional<Ayar> AyarStore::AyarBul(double Milyem) const
{
    Recordset Kayit = m_oturum->sorgula(findSql(Milyem));
    if (!Kayit.next())
        return std::nullopt;
    return Ayar{Kayit.number(u"Milyem"), Kayit.number(u"Yogunluk")};
}

void AyarStore::save(const Ayar &ayar) const
{
    Recordset Kayit = m_oturum->sorgula(findSql(ayar.Milyem));
    if (Kayit.next()) {
        Kayit.edit();
    } else {
        Kayit.addNew();
        Kayit.set(u"Milyem", ayar.Milyem);
    }
    Kayit.set(u"Yogunluk", ayar.Yogunluk);
    Kayit.update();
}

void AyarStore::remove(double Milyem) const
{
    m_oturum->calistir(u"DELETE From Ayar Where Milyem = "_s + sqlNumber(Milyem));
}
