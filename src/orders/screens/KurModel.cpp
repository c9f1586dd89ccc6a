#include "KurModel.h"

#include "Numbers.h"

using namespace Qt::StringLiterals;

namespace kuyum {

void KurModel::setAlisKurlari(AlisKurlari alis)
{
    if (alis == m_alis)
        return;
    if (alis == AlisKurlari::Tutulur) {
        beginInsertColumns({}, buyingColumn, buyingColumn);
        m_alis = alis;
        endInsertColumns();
    } else {
        beginRemoveColumns({}, buyingColumn, buyingColumn);
        m_alis = alis;
        endRemoveColumns();
    }
    // Without buying rates the selling rate is just the rate.
    Q_EMIT headerDataChanged(Qt::Horizontal, sellingColumn, sellingColumn);
}

void KurModel::fill(const QList<KurSatiri> &satirlar)
{
    beginResetModel();
    m_rows = satirlar;
    endResetModel();
}

int KurModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int KurModel::columnCount(const QModelIndex &parent) const
{
    if (parent.isValid())
        return 0;
    return m_alis == AlisKurlari::Tutulur ? buyingColumn + 1 : sellingColumn + 1;
}

const std::optional<double> &KurModel::rate(const QModelIndex &cell) const
{
    const KurSatiri &row = m_rows[cell.row()];
    return cell.column() == sellingColumn ? row.Kur : row.aliskur;
}

QString KurModel::text(const QModelIndex &cell) const
{
    if (cell.column() == currencyColumn)
        return m_rows[cell.row()].Dovcinsi;
    return rate(cell) ? formatNumber(*rate(cell), u"#0.0000##") : QString();
}

QVariant KurModel::data(const QModelIndex &cell, int role) const
{
    if (!checkIndex(cell, CheckIndexOption::IndexIsValid))
        return {};
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return text(cell);
    case Qt::TextAlignmentRole:
        return headerData(cell.column(), Qt::Horizontal, role);
    case Qt::AccessibleTextRole:
        return m_rows[cell.row()].Dovcinsi + u' ' +
               headerData(cell.column(), Qt::Horizontal).toString() + u": "_s + text(cell);
    default:
        return {};
    }
}

bool KurModel::setData(const QModelIndex &cell, const QVariant &value, int role)
{
    if (role != Qt::EditRole || !flags(cell).testFlag(Qt::ItemIsEditable))
        return false;
    const QString entered = value.toString().trimmed();
    if (entered == text(cell))
        return true;
    KurSatiri &row = m_rows[cell.row()];
    std::optional<double> &changed = cell.column() == sellingColumn ? row.Kur : row.aliskur;
    changed = isNumeric(entered) ? std::optional(leadingNumber(entered)) : std::nullopt;
    Q_EMIT dataChanged(cell, cell);
    return true;
}

QVariant KurModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical)
        return {};
    if (role == Qt::TextAlignmentRole)
        return QVariant(Qt::AlignVCenter |
                        (section == currencyColumn ? Qt::AlignLeft : Qt::AlignRight));
    if (role != Qt::DisplayRole)
        return {};
    switch (section) {
    case currencyColumn:
        return u"Döv.Cinsi"_s;
    case sellingColumn:
        return m_alis == AlisKurlari::Tutulur ? u"Satış Kuru"_s : u"Degeri"_s;
    case buyingColumn:
        return u"Alış Kuru"_s;
    default:
        return {};
    }
}

Qt::ItemFlags KurModel::flags(const QModelIndex &cell) const
{
    const Qt::ItemFlags all = QAbstractTableModel::flags(cell);
    const bool rate = cell.isValid() && cell.column() != currencyColumn;
    return rate ? all | Qt::ItemIsEditable : all;
}

} // namespace kuyum
