#include "DailyRates.h"

#include "Oturum.h"
#include "SqlText.h"

using namespace Qt::StringLiterals;

namespace kuyum {

static QString ratesOf(QDate date)
{
    return u"Select * From DovizD WHERE Tarih = "_s + sqlDate(date);
}

void carryRatesForward(Oturum &oturum)
{
    const QDate today = oturum.CalismaTarihi;
    if (oturum.sorgula(ratesOf(today)).next())
        return;
    QDate latest;
    {
        Recordset earlier = oturum.sorgula(u"Select * From DovizD WHERE Tarih < "_s +
                                           sqlDate(today) + u" Order by tarih desc;"_s);
        if (!earlier.next())
            return;
        latest = earlier.date(u"Tarih");
    }

    struct Rate
    {
        QVariant Dovcinsi, Kur, aliskur;
    };
    QList<Rate> rates;
    Recordset rows = oturum.sorgula(ratesOf(latest));
    while (rows.next())
        rates.append({rows.value(u"Dovcinsi"), rows.value(u"Kur"), rows.value(u"aliskur")});

    Transaction transaction(*oturum.Veritabani);
    for (const Rate &rate : rates) {
        rows.addNew();
        rows.set(u"Tarih", today);
        rows.set(u"Dovcinsi", rate.Dovcinsi);
        rows.set(u"Kur", rate.Kur);
        rows.set(u"aliskur", rate.aliskur);
        rows.update();
    }
    transaction.commit();
}

} // namespace kuyum
