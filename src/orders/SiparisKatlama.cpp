#include "SiparisKatlama.h"

#include "TurkishText.h"

#include <algorithm>

namespace {

/// A row under construction: what of it came from which line.
struct Row
{
    SiparisSatiri satir;
    QMap<int, SiparisKaydi> cells;
};

bool sameRow(const SiparisKaydi &a, const SiparisKaydi &b)
{
    return a.SipSatir == b.SipSatir && a.SipModel == b.SipModel && a.Siprenk == b.Siprenk &&
           a.SipAck == b.SipAck;
}

int columnOf(const QList<UrunTipi> &tipler, qint32 TipID)
{
    const auto tip = std::find_if(tipler.begin(), tipler.end(),
                                  [TipID](const UrunTipi &t) { return t.TipID == TipID; });
    return int(tip - tipler.begin());
}

Row newRow(const SiparisKaydi &line, qsizetype columns)
{
    Row row{SiparisSatiri::bos(columns), {}};
    row.satir.model = line.SipModel;
    row.satir.renk = line.Siprenk;
    row.satir.aciklama = line.SipAck;
    row.satir.durum = line.durum;
    return row;
}

void fill(Row &row, int column)
{
    const SiparisKaydi &line = row.cells[column];
    if (!row.satir.sari[column]) {
        row.satir.saklananlar.append(
            {line.Dotosayi, line.SipModel, line.Siprenk, line.SipAdet, line.durum});
        return;
    }
    row.satir.adetler[column] = line.SipAdet;
    if (line.durum != row.satir.durum)
        row.satir.ayriDurumlar.insert(column, line.durum);
}

} // namespace

QList<bool> sariKolonlar(const QList<UrunTipi> &tipler, const QStringList &kisaAdlar)
{
    QList<bool> yellow;
    for (const UrunTipi &tip : tipler) {
        yellow.append(std::any_of(kisaAdlar.begin(), kisaAdlar.end(), [&](const QString &kisaAd) {
            return sameText(tip.KisaAD, kisaAd);
        }));
    }
    return yellow;
}

QList<SiparisSatiri> satirlaraKatla(const QList<SiparisKaydi> &kayitlar,
                                    const QList<UrunTipi> &tipler, const ModelTipleri &tipleri)
{
    std::vector<Row> rows;
    std::size_t group = 0; // where the rows of the line before this one begin
    for (qsizetype i = 0; i < kayitlar.size(); ++i) {
        const SiparisKaydi &line = kayitlar[i];
        if (i == 0 || !sameRow(line, kayitlar[i - 1]))
            group = rows.size();
        const int column = columnOf(tipler, line.SipUruntip);
        auto row = std::find_if(rows.begin() + std::ptrdiff_t(group), rows.end(),
                                [column](const Row &r) { return !r.cells.contains(column); });
        if (row == rows.end())
            row = rows.insert(rows.end(), newRow(line, tipler.size()));
        row->cells.insert(column, line);
    }

    QList<SiparisSatiri> result;
    for (Row &row : rows) {
        row.satir.sari = sariKolonlar(tipler, tipleri(row.satir.model));
        for (const int column : row.cells.keys())
            fill(row, column);
        result.append(row.satir);
    }
    return result;
}
