#include "RenkStore.h"

#include "Oturum.h"
#include "SqlText.h"

using namespace Qt::StringLiterals;

static QString findSql(const QString &RenkNo)
{
    return u"Select * From Renkler Where Renkno ="_s + sqlText(RenkNo);
}

std::optional<Renk> RenkStore::Renkbul(const QString &RenkNo) const
{
    Recordset Kayit = m_oturum->sorgula(findSql(RenkNo));
    if (!Kayit.next())
        return std::nullopt;
    return Renk{Kayit.text(u"RenkNo"), Kayit.number(u"Renksira")};
}

void RenkStore::save(const Renk &renk) const
{
    Recordset Kayit = m_oturum->sorgula(findSql(renk.RenkNo));
    if (Kayit.next()) {
        Kayit.edit();
    } else {
        Kayit.addNew();
        Kayit.set(u"RenkNo", renk.RenkNo.trimmed());
    }
    Kayit.set(u"Renksira", renk.Renksira);
    Kayit.update();
}

void RenkStore::remove(const QString &RenkNo) const
{
    m_oturum->calistir(u"DELETE From Renkler Where Renkno = "_s + sqlText(RenkNo));
}
