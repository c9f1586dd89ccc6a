#include "SecimModeli.h"

#include "LookupModel.h"

#include <QColor>
#include <QDateTime>
#include <QFont>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

constexpr int karatColumn = 3;

} // namespace

SecimModeli::SecimModeli(LookupModel &siparisler, QObject *parent)
    : QIdentityProxyModel(parent), m_siparisler(siparisler)
{
    setSourceModel(&siparisler);
}

SecimModeli::Place SecimModeli::placeOf(int row) const
{
    const QVariantList values = m_siparisler.values(row);
    return {values[0].toDateTime().date(), qint32(values[1].toLongLong())};
}

qint32 SecimModeli::Sipnum(int row) const
{
    return placeOf(row).Sipnum;
}

void SecimModeli::toggle(int row)
{
    const Place place = placeOf(row);
    if (m_secim.erase(place) == 0)
        m_secim.emplace(place, m_siparisler.values(row)[karatColumn].toDouble());
    Q_EMIT dataChanged(index(row, 0), index(row, columnCount() - 1));
    Q_EMIT secimChanged();
}

QList<SecilenSiparis> SecimModeli::secim() const
{
    QList<SecilenSiparis> result;
    for (const auto &[place, Ayar] : m_secim)
        result.append({place.Sipnum, Ayar});
    return result;
}

QVariant SecimModeli::data(const QModelIndex &index, int role) const
{
    if (role != Qt::BackgroundRole && role != Qt::ForegroundRole)
        return QIdentityProxyModel::data(index, role);
    if (!index.isValid() || !m_secim.contains(placeOf(index.row())))
        return {};
    // On this red, black reads better than white, in the dark theme as well.
    return role == Qt::BackgroundRole ? QColor(255, 0, 0) : QColor(Qt::black);
}

QVariant SecimModeli::headerData(int section, Qt::Orientation orientation, int role) const
{
    static const QStringList headings = {u"TARIH"_s, u"NO"_s, u"FIRMA"_s, u"AYAR"_s};
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole && section < headings.size())
        return headings.value(section);
    return QIdentityProxyModel::headerData(section, orientation, role);
}

} // namespace kuyum
