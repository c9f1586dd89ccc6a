#include "KalipStore.h"

#include "Oturum.h"
#include "SqlText.h"

using namespace Qt::StringLiterals;

static QString findSql(const QString &KalipKodu)
{
    return u"Select * From Kalip Where Kalipkodu = "_s + sqlText(KalipKodu.trimmed());
}

std::optional<Kalip> KalipStore::KalipBul(const QString &KalipKodu) const
{
    Recordset Kayit = m_oturum->sorgula(findSql(KalipKodu));
    if (!Kayit.next())
        return std::nullopt;
    return Kalip{Kayit.text(u"KalipKodu"), Kayit.text(u"KalipAck"), Kayit.text(u"KalipDur")};
}

void KalipStore::save(const Kalip &kalip) const
{
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
}

void KalipStore::remove(const QString &KalipKodu) const
{
    m_oturum->calistir(u"DELETE From Kalip Where Kalipkodu = "_s + sqlText(KalipKodu.trimmed()));
}
