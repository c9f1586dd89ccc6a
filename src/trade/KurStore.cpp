#include "KurStore.h"

#include "Oturum.h"
#include "SqlText.h"
#include "TurkishText.h"

#include <QMap>
#include <QSet>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

using Rates = QMap<QString, KurSatiri>;

QString currencyKey(const QString &Dovcinsi)
{
    return foldedText(Dovcinsi.trimmed());
}

std::optional<double> rate(const Recordset &row, QStringView field)
{
    if (row.isNull(field))
        return std::nullopt;
    return row.number(field);
}

KurSatiri rates(const Recordset &row)
{
    return {row.text(u"Dovcinsi"), rate(row, u"Kur"), rate(row, u"aliskur")};
}

QString ratesOf(QDate Tarih)
{
    return u"Select * From DovizD Where Tarih = "_s + sqlDate(Tarih);
}

} // namespace

QList<KurSatiri> KurStore::kurlar(QDate Tarih) const
{
    Recordset Kayit =
        m_oturum->sorgula(u"select tarih, dovizd.dovcinsi, kur, aliskur "
                          "from DovizD inner join DovizB "
                          "On dovizd.dovcinsi = dovizb.dovcinsi "
                          "where tarih = "_s +
                          sqlDate(Tarih) + u" order by esira, dovulke, dovizd.dovcinsi;"_s);
    QList<KurSatiri> found;
    QSet<QString> seen; // a currency that is defined twice must not double its rates
    while (Kayit.next()) {
        const KurSatiri row = rates(Kayit);
        if (seen.contains(currencyKey(row.Dovcinsi)))
            continue;
        seen.insert(currencyKey(row.Dovcinsi));
        found.append(row);
    }
    return found;
}

QList<KurSatiri> KurStore::paraBirimleri() const
{
    Recordset Kayit =
        m_oturum->sorgula(u"select * from dovizb order by esira, dovulke, dovcinsi"_s);
    QList<KurSatiri> currencies;
    while (Kayit.next())
        currencies.append({Kayit.text(u"Dovcinsi"), {}, {}});
    return currencies;
}

bool KurStore::hasRates() const
{
    return m_oturum->sorgula(u"Select Top 1 Tarih From DovizD"_s).next();
}

QDate KurStore::carriedFrom(QDate Tarih) const
{
    Rates own;
    Recordset Kayit = m_oturum->sorgula(ratesOf(Tarih));
    while (Kayit.next())
        own.insert(currencyKey(Kayit.text(u"Dovcinsi")), rates(Kayit));

    // The rows come one by one: only as far back as the rates are the same.
    Kayit = m_oturum->sorgula(u"Select * From DovizD Where Tarih < "_s + sqlDate(Tarih) +
                              u" Order by Tarih desc;"_s);
    QDate origin;
    bool onRow = Kayit.next();
    while (onRow) {
        const QDate date = Kayit.date(u"Tarih");
        Rates earlier;
        for (; onRow && Kayit.date(u"Tarih") == date; onRow = Kayit.next())
            earlier.insert(currencyKey(Kayit.text(u"Dovcinsi")), rates(Kayit));
        if (earlier != own)
            break;
        origin = date;
    }
    return origin;
}

LoadedRows KurStore::oku(QDate Tarih) const
{
    return {*m_oturum->Veritabani,
            {{.table = u"DovizD"_s,
              .where = u"Tarih = "_s + sqlDate(Tarih),
              .label = u"Kur"_s,
              .fields = {{u"Dovcinsi"_s, u"Döv.Cinsi"_s},
                         {u"Kur"_s, u"Satış Kuru"_s},
                         {u"aliskur"_s, u"Alış Kuru"_s}},
              .identity = {u"Dovcinsi"_s}}}};
}

void KurStore::save(QDate Tarih, const QList<KurSatiri> &satirlar, AlisKurlari alis,
                    LoadedRows &okunan) const
{
    okunan.write(*m_oturum->Veritabani, [&] { replaceRates(Tarih, satirlar, alis); });
}

void KurStore::replaceRates(QDate Tarih, const QList<KurSatiri> &satirlar, AlisKurlari alis) const
{
    const QString home = currencyKey(homeCurrency());
    QSet<QString> replaced;
    for (const KurSatiri &row : satirlar)
        replaced.insert(currencyKey(row.Dovcinsi));

    Recordset Kayit = m_oturum->sorgula(ratesOf(Tarih));
    while (Kayit.next()) {
        if (replaced.contains(currencyKey(Kayit.text(u"Dovcinsi"))))
            Kayit.remove();
    }
    for (const KurSatiri &row : satirlar) {
        const QString currency = currencyKey(row.Dovcinsi);
        // The home currency is the unit of all rates.
        const bool unit = currency.startsWith(currencyKey(u"TL"_s));
        const double empty = unit || currency == home ? 1 : 0;
        Kayit.addNew();
        Kayit.set(u"Tarih", Tarih);
        Kayit.set(u"Dovcinsi", row.Dovcinsi);
        Kayit.set(u"Kur", unit ? 1 : row.Kur.value_or(empty));
        if (row.aliskur || alis == AlisKurlari::Tutulur)
            Kayit.set(u"aliskur", row.aliskur.value_or(empty));
        Kayit.update();
    }
}

void KurStore::remove(QDate Tarih, LoadedRows &okunan) const
{
    okunan.write(*m_oturum->Veritabani, [&] {
        Recordset Kayit = m_oturum->sorgula(ratesOf(Tarih));
        while (Kayit.next())
            Kayit.remove();
    });
}

QString KurStore::homeCurrency() const
{
    Recordset Kayit = m_oturum->sorgula(u"SELECT * From DovizB WHERE Dovulke = 1"_s);
    return Kayit.next() ? Kayit.text(u"Dovcinsi") : QString();
}

} // namespace kuyum
