#include "RenkStore.h"

#include "Oturum.h"
#include "SqlText.h"

using namespace Qt::StringLiterals;

namespace kuyum {

static QString findSql(const QString &RenkNo)
{
    return u"Select * From Renkler Where Renkno ="_s + sqlText(RenkNo);
}

QList<RecordRows> RenkStore::kayit(const QString &RenkNo) const
{
    return {
        {.table = u"Renkler"_s,
         .where = u"Renkno = "_s + sqlText(RenkNo) + u" or Renkno = "_s + sqlText(RenkNo.trimmed()),
         .label = u"Renk "_s + RenkNo.trimmed(),
         .fields = {{u"Renksira"_s, u"Sıra no"_s}},
         .comesBack = true}};
}

std::optional<Renk> RenkStore::Renkbul(const QString &RenkNo) const
{
    Recordset Kayit = m_oturum->sorgula(findSql(RenkNo));
    if (!Kayit.next())
        return std::nullopt;
    return Renk{Kayit.text(u"RenkNo"), Kayit.number(u"Renksira")};
}

void RenkStore::save(const Renk &renk, LoadedRows &okunan) const
{
    okunan.write(*m_oturum->Veritabani, [&] {
        Recordset Kayit = m_oturum->sorgula(findSql(renk.RenkNo));
        if (Kayit.next()) {
            Kayit.edit();
        } else {
            Kayit.addNew();
            Kayit.set(u"RenkNo", renk.RenkNo.trimmed());
        }
        Kayit.set(u"Renksira", renk.Renksira);
        Kayit.update();
    });
}

void RenkStore::remove(const QString &RenkNo, LoadedRows &okunan) const
{
    okunan.write(*m_oturum->Veritabani, [&] {
        m_oturum->calistir(u"DELETE From Renkler Where Renkno = "_s + sqlText(RenkNo));
    });
}

} // namespace kuyum
