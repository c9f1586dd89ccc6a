#include "TakipModel.h"

#include "Dates.h"
#include "TurkishText.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

struct ColumnLook
{
    const char16_t *heading;
    Qt::Alignment alignment;
};

constexpr ColumnLook looks[TakipModel::Columns] = {
    {u"MODEL", Qt::AlignLeft},      {u"RENK", Qt::AlignLeft},       {u"ADET", Qt::AlignRight},
    {u"AÇIKLAMA", Qt::AlignLeft},   {u"SİP.DUR", Qt::AlignLeft},    {u"URT.DUR", Qt::AlignLeft},
    {u"BAS.TRH", Qt::AlignHCenter}, {u"BIT.TRH", Qt::AlignHCenter}, {u"OtoSayi", Qt::AlignRight},
};

int compare(const TakipSatiri &a, const TakipSatiri &b, int column)
{
    const auto sign = [](auto x, auto y) { return int(x > y) - int(x < y); };
    switch (column) {
    case TakipModel::Model:
        return compareText(a.model, b.model);
    case TakipModel::Renk:
        return compareText(a.renk, b.renk);
    case TakipModel::Adet:
        return sign(a.adet, b.adet);
    case TakipModel::Aciklama:
        return compareText(a.aciklama, b.aciklama);
    case TakipModel::SipDur:
        return compareText(a.state.durum1, b.state.durum1);
    case TakipModel::UrtDur:
        return compareText(a.state.durum2, b.state.durum2);
    case TakipModel::BasTrh:
        return sign(a.state.basTrh, b.state.basTrh);
    case TakipModel::BitTrh:
        return sign(a.state.bitTrh, b.state.bitTrh);
    default:
        return sign(a.Dotosayi, b.Dotosayi);
    }
}

bool sameLines(QList<TakipSatiri> a, QList<TakipSatiri> b)
{
    std::ranges::sort(a, {}, &TakipSatiri::Dotosayi);
    std::ranges::sort(b, {}, &TakipSatiri::Dotosayi);
    return a == b;
}

} // namespace

void TakipModel::fill(const QList<TakipSatiri> &satirlar)
{
    beginResetModel();
    m_rows = satirlar;
    m_opened = satirlar;
    endResetModel();
}

bool TakipModel::isChanged() const
{
    return !sameLines(m_rows, m_opened);
}

int TakipModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int TakipModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : Columns;
}

QString TakipModel::text(const TakipSatiri &satir, int column) const
{
    switch (column) {
    case Model:
        return satir.model;
    case Renk:
        return satir.renk;
    case Adet:
        return QString::number(satir.adet);
    case Aciklama:
        return satir.aciklama;
    case SipDur:
        return satir.state.durum1;
    case UrtDur:
        return satir.state.durum2;
    case BasTrh:
        return formatDateTime(satir.state.basTrh);
    case BitTrh:
        return formatDateTime(satir.state.bitTrh);
    default:
        return QString::number(satir.Dotosayi);
    }
}

QVariant TakipModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
    case Qt::ToolTipRole:
        return text(m_rows[index.row()], index.column());
    case Qt::TextAlignmentRole:
        return int(looks[index.column()].alignment | Qt::AlignVCenter);
    default:
        return {};
    }
}

QVariant TakipModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical || section < 0 || section >= Columns)
        return {};
    if (role == Qt::DisplayRole)
        return QString::fromUtf16(looks[section].heading);
    if (role == Qt::TextAlignmentRole)
        return int(looks[section].alignment | Qt::AlignVCenter);
    return {};
}

bool TakipModel::setDate(QDateTime &date, const QString &text)
{
    // What already stands there keeps its time of day.
    if (text.trimmed() == formatDateTime(date))
        return true;
    QDateTime wanted;
    if (!text.trimmed().isEmpty()) {
        wanted = QDateTime(typedDate(text), QTime(0, 0), Qt::UTC);
        if (!wanted.isValid())
            return false;
        if (wanted.date() == noDate())
            wanted = {};
    }
    date = wanted;
    return true;
}

bool TakipModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::EditRole || !checkIndex(index, CheckIndexOption::IndexIsValid) ||
        !isEditable(index.column()))
        return false;
    ProductionState &state = m_rows[index.row()].state;
    if (isDate(index.column())) {
        if (!setDate(index.column() == BasTrh ? state.basTrh : state.bitTrh, value.toString()))
            return false;
    } else {
        (index.column() == SipDur ? state.durum1 : state.durum2) = value.toString();
    }
    Q_EMIT dataChanged(index, index);
    return true;
}

void TakipModel::sort(int column, Qt::SortOrder order)
{
    Q_EMIT layoutAboutToBeChanged();
    const QList<TakipSatiri> before = m_rows;
    std::ranges::stable_sort(m_rows, [&](const TakipSatiri &a, const TakipSatiri &b) {
        const int compared = compare(a, b, column);
        return order == Qt::DescendingOrder ? compared > 0 : compared < 0;
    });
    const QModelIndexList places = persistentIndexList();
    QModelIndexList moved;
    for (const QModelIndex &place : places) {
        const auto row =
            std::ranges::find(m_rows, before[place.row()].Dotosayi, &TakipSatiri::Dotosayi);
        moved.append(index(int(row - m_rows.begin()), place.column()));
    }
    changePersistentIndexList(places, moved);
    Q_EMIT layoutChanged();
}

} // namespace kuyum
