#include "Siparis.h"

#include "Dates.h"

#include <algorithm>
#include <numeric>

static bool isSet(const QDateTime &date)
{
    return date.isValid() && date.date() != noDate();
}

bool UretimDurumu::hareketGormus() const
{
    return !durum1.trimmed().isEmpty() || !durum2.trimmed().isEmpty() || isSet(basTrh) ||
           isSet(bitTrh);
}

SiparisSatiri SiparisSatiri::bos(qsizetype tipSayisi)
{
    SiparisSatiri row;
    row.adetler.fill(0, tipSayisi);
    row.sari.fill(false, tipSayisi);
    return row;
}

qint64 SiparisSatiri::toplamAdet() const
{
    return std::accumulate(adetler.begin(), adetler.end(), qint64(0));
}

const UretimDurumu &SiparisSatiri::durumu(int column) const
{
    const auto own = ayriDurumlar.constFind(column);
    return own == ayriDurumlar.constEnd() ? durum : *own;
}

bool SiparisSatiri::hareketGormus() const
{
    const auto moved = [](const auto &line) { return line.hareketGormus(); };
    const auto movedLine = [](const SaklananSatir &line) { return line.durum.hareketGormus(); };
    return durum.hareketGormus() || std::any_of(ayriDurumlar.begin(), ayriDurumlar.end(), moved) ||
           std::any_of(saklananlar.begin(), saklananlar.end(), movedLine);
}

QList<SaklananSatir> Siparis::tumSaklananlar() const
{
    QList<SaklananSatir> all = saklananlar;
    for (const SiparisSatiri &row : satirlar)
        all += row.saklananlar;
    return all;
}
