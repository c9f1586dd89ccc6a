#include "KalipStore.h"

#include "Oturum.h"
#include "SqlText.h"

using namespace Qt::StringLiterals;

namespace kuyum {

static QString findSql(const QString &KalipKodu)
{
    return u"Select * From Kalip Where Kalipkodu = "_s + sqlText(KalipKodu.trimmed());
}

QList<RecordRows> KalipStore::kayit(const QString &KalipKodu) const
{
    return {{.table = u"Kalip"_s,
             .where = u"Kalipkodu = "_s + sqlText(KalipKodu.trimmed()),
             .label = u"Kalıp "_s + KalipKodu.trimmed(),
             .fields = {{u"KalipAck"_s, u"Açıklama"_s}, {u"KalipDur"_s, u"Nerede"_s}},
             .comesBack = true}};
}

std::optional<Kalip> KalipStore::KalipBul(const QString &KalipKodu) const
{
    Recordset Kayit = m_oturum->sorgula(findSql(KalipKodu));
    if (!Kayit.next())
        return std::nullopt;
    return Kalip{Kayit.text(u"KalipKodu"), Kayit.text(u"KalipAck"), Kayit.text(u"KalipDur")};
}

void KalipStore::save(const Kalip &kalip, LoadedRows &okunan) const
{
    const auto write = [&] {
        Recordset Kayit = m_oturum->sorgula(findSql(kalip.KalipKodu));
        if (Kayit.next()) {
            Kayit.edit();
        } else {
            Kayit.addNew();
            Kayit.set(u"KalipKodu", kalip.KalipKodu.trimmed());
            Kayit.set(u"kaliptarih", m_oturum->CalismaTarihi);
        }
        Kayit.set(u"KalipAck", kalip.KalipAck);
        Kayit.set(u"KalipDur", kalip.KalipDur);
        Kayit.update();
    };
    // The picture comes after the row; should it fail, the user goes on with the mold.
    okunan.write(*m_oturum->Veritabani, {write, {}, {u"Kalip"_s}});
}

void KalipStore::remove(const QString &KalipKodu, LoadedRows &okunan) const
{
    okunan.write(*m_oturum->Veritabani, [&] {
        m_oturum->calistir(u"DELETE From Kalip Where Kalipkodu = "_s +
                           sqlText(KalipKodu.trimmed()));
    });
}

} // namespace kuyum
