#include "TasStore.h"

#include "CounterFields.h"
#include "Oturum.h"
#include "SqlText.h"

using namespace Qt::StringLiterals;

namespace kuyum {

static QString findSql(const QString &Taskodu)
{
    return u"Select * From Tas Where Taskodu = "_s + sqlText(Taskodu.trimmed());
}

QList<RecordRows> TasStore::kayit(const QString &Taskodu) const
{
    return {{.table = u"Tas"_s,
             .where = u"Taskodu = "_s + sqlText(Taskodu.trimmed()),
             .label = u"Taş "_s + Taskodu.trimmed(),
             .fields = {{u"TasFiyati"_s, u"Fiyatı"_s},
                        {u"TasBirimi"_s, u"Birimi"_s},
                        {u"TasKatsayi"_s, u"Katsayısı"_s}},
             .comesBack = true}};
}

std::optional<Tas> TasStore::TasBul(const QString &Taskodu) const
{
    Recordset Kayit = m_oturum->sorgula(findSql(Taskodu));
    if (!Kayit.next())
        return std::nullopt;
    return Tas{Kayit.text(u"Taskodu"), Kayit.number(u"TasFiyati"), Kayit.text(u"TasBirimi"),
               Kayit.number(u"TasKatsayi")};
}

void TasStore::save(const Tas &tas, LoadedRows &okunan) const
{
    okunan.write(*m_oturum->Veritabani, [&] {
        Recordset Kayit = m_oturum->sorgula(findSql(tas.Taskodu));
        if (Kayit.next()) {
            Kayit.edit();
        } else {
            requireCounter(*m_oturum->Veritabani, u"Tas"_s);
            Kayit.addNew();
            Kayit.set(u"Taskodu", tas.Taskodu.trimmed());
            Kayit.set(u"tastarih", m_oturum->CalismaTarihi);
        }
        Kayit.set(u"TasFiyati", tas.TasFiyati);
        Kayit.set(u"TasBirimi", tas.TasBirimi);
        Kayit.set(u"TasKatsayi", tas.TasKatsayi);
        Kayit.update();
    });
}

void TasStore::remove(const QString &Taskodu, LoadedRows &okunan) const
{
    okunan.write(*m_oturum->Veritabani, [&] {
        m_oturum->calistir(u"DELETE From Tas Where Taskodu = "_s + sqlText(Taskodu.trimmed()));
    });
}

QStringList TasStore::birimler() const
{
    Recordset Kayit = m_oturum->sorgula(u"Select * From DovizB"_s);
    QStringList codes;
    while (Kayit.next())
        codes.append(Kayit.text(u"Dovcinsi"));
    return codes;
}

} // namespace kuyum
