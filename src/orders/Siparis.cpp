#include "Siparis.h"

#include "Dates.h"

#include <algorithm>
#include <numeric>

namespace kuyum {

static bool isSet(const QDateTime &date)
{
    return date.isValid() && date.date() != noDate();
}

bool ProductionState::hasBegun() const
{
    return !durum1.trimmed().isEmpty() || !durum2.trimmed().isEmpty() || isSet(basTrh) ||
           isSet(bitTrh);
}

SiparisSatiri SiparisSatiri::empty(qsizetype typeCount)
{
    SiparisSatiri row;
    row.adetler.fill(0, typeCount);
    row.yellow.fill(false, typeCount);
    return row;
}

QStringList SiparisSatiri::orderedTypes(const QList<UrunTipi> &tipler) const
{
    QStringList names;
    for (qsizetype i = 0; i < std::min(adetler.size(), tipler.size()); ++i) {
        if (adetler[i] != 0)
            names.append(tipler[i].KisaAD);
    }
    return names;
}

qint64 SiparisSatiri::totalCount() const
{
    return std::accumulate(adetler.begin(), adetler.end(), qint64(0));
}

const ProductionState &SiparisSatiri::stateOf(int column) const
{
    const auto own = otherStates.constFind(column);
    return own == otherStates.constEnd() ? state : *own;
}

bool SiparisSatiri::hasBegun() const
{
    const auto moved = [](const auto &line) { return line.hasBegun(); };
    const auto movedLine = [](const KeptLine &line) { return line.state.hasBegun(); };
    return state.hasBegun() || std::any_of(otherStates.begin(), otherStates.end(), moved) ||
           std::any_of(keptLines.begin(), keptLines.end(), movedLine);
}

void Siparis::becomeCopy()
{
    static const ProductionState notBegun{QStringLiteral(" "), QStringLiteral(" "), {}, {}};
    Sipnum = 0;
    keptLines.clear();
    for (SiparisSatiri &row : satirlar) {
        row.state = notBegun;
        row.otherStates.clear();
        row.keptLines.clear();
    }
}

QList<KeptLine> Siparis::allKeptLines() const
{
    QList<KeptLine> all = keptLines;
    for (const SiparisSatiri &row : satirlar)
        all += row.keptLines;
    return all;
}

} // namespace kuyum
