#include "LineFolding.h"

#include "TurkishText.h"

#include <algorithm>

namespace kuyum {

namespace {

/// A row under construction: what of it came from which line.
struct Row
{
    SiparisSatiri satir;
    QMap<int, OrderLine> cells;
};

bool sameRow(const OrderLine &a, const OrderLine &b)
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

Row newRow(const OrderLine &line, qsizetype columns)
{
    Row row{SiparisSatiri::empty(columns), {}};
    row.satir.model = line.SipModel;
    row.satir.renk = line.Siprenk;
    row.satir.aciklama = line.SipAck;
    row.satir.state = line.state;
    return row;
}

void fill(Row &row, int column)
{
    const OrderLine &line = row.cells[column];
    if (!row.satir.yellow[column]) {
        row.satir.keptLines.append(
            {line.Dotosayi, line.SipModel, line.Siprenk, line.SipAdet, line.state});
        return;
    }
    row.satir.adetler[column] = line.SipAdet;
    if (line.state != row.satir.state)
        row.satir.otherStates.insert(column, line.state);
}

} // namespace

QList<bool> yellowColumns(const QList<UrunTipi> &tipler, const QStringList &kisaAdlar)
{
    QList<bool> yellow;
    for (const UrunTipi &tip : tipler) {
        yellow.append(std::any_of(kisaAdlar.begin(), kisaAdlar.end(), [&](const QString &kisaAd) {
            return sameText(tip.KisaAD, kisaAd);
        }));
    }
    return yellow;
}

QList<SiparisSatiri> foldLines(const QList<OrderLine> &kayitlar, const QList<UrunTipi> &tipler,
                               const TypesOfModel &tipleri)
{
    std::vector<Row> rows;
    std::size_t group = 0; // where the rows of the line before this one begin
    for (qsizetype i = 0; i < kayitlar.size(); ++i) {
        const OrderLine &line = kayitlar[i];
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
        row.satir.yellow = yellowColumns(tipler, tipleri(row.satir.model));
        for (const int column : row.cells.keys())
            fill(row, column);
        result.append(row.satir);
    }
    return result;
}

} // namespace kuyum
