#include "KatalogModel.h"

#include "Numbers.h"

using namespace Qt::StringLiterals;

namespace kuyum {

double typedGram(const QString &text)
{
    return formatNumber(leadingNumber(text), u"#0.00").toDouble();
}

void KatalogModel::fill(const Katalog &katalog)
{
    beginResetModel();
    m_rows = katalog.satirlar;
    m_elleSirali = katalog.elleSirali;
    endResetModel();
}

void KatalogModel::append(const KatalogSatiri &satir)
{
    const int row = rowCount();
    beginInsertRows({}, row, row);
    m_rows.append(satir);
    endInsertRows();
}

void KatalogModel::removeRow(int row)
{
    beginRemoveRows({}, row, row);
    m_rows.removeAt(row);
    endRemoveRows();
}

void KatalogModel::moveTo(int from, int to)
{
    if (from == to)
        return;
    // The view counts where the row goes before it is taken out.
    beginMoveRows({}, from, from, {}, to > from ? to + 1 : to);
    m_rows.move(from, to);
    m_elleSirali = true;
    endMoveRows();
    Q_EMIT headerDataChanged(Qt::Vertical, std::min(from, to), std::max(from, to));
}

int KatalogModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int KatalogModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : kisaAdColumn + 1;
}

QString KatalogModel::text(const QModelIndex &cell) const
{
    const KatalogSatiri &row = m_rows[cell.row()];
    switch (cell.column()) {
    case modelColumn:
        return row.Model;
    case gramColumn:
        return formatNumber(row.katgram, u"##0.00");
    case aciklamaColumn:
        return row.kataciklama;
    case idColumn:
        return QString::number(row.katno1);
    default:
        return row.KisaAD;
    }
}

QVariant KatalogModel::data(const QModelIndex &cell, int role) const
{
    if (!checkIndex(cell, CheckIndexOption::IndexIsValid))
        return {};
    const bool isNumber = cell.column() == gramColumn || cell.column() == idColumn;
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
    case Qt::ToolTipRole:
        return text(cell);
    case Qt::TextAlignmentRole:
        return QVariant((isNumber ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    case Qt::AccessibleTextRole:
        return headerData(cell.column(), Qt::Horizontal).toString() + u": "_s + text(cell);
    default:
        return {};
    }
}

bool KatalogModel::setData(const QModelIndex &cell, const QVariant &value, int role)
{
    // An editor that was opened and left keeps the decimals that are not shown.
    if (role != Qt::EditRole || !cell.isValid() || value.toString() == text(cell))
        return false;
    KatalogSatiri &row = m_rows[cell.row()];
    if (cell.column() == gramColumn)
        row.katgram = typedGram(value.toString());
    else if (cell.column() == aciklamaColumn)
        row.kataciklama = value.toString();
    else
        return false;
    Q_EMIT dataChanged(cell, cell);
    return true;
}

QVariant KatalogModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole)
        return {};
    if (orientation == Qt::Vertical)
        return section + 1;
    static const QStringList names = {u"Model"_s, u"Gram"_s, u"Aciklama"_s, u"ID"_s, u"KA"_s};
    return names.value(section);
}

Qt::ItemFlags KatalogModel::flags(const QModelIndex &cell) const
{
    const Qt::ItemFlags all = QAbstractTableModel::flags(cell);
    const bool edited = cell.column() == gramColumn || cell.column() == aciklamaColumn;
    return cell.isValid() && edited ? all | Qt::ItemIsEditable : all;
}

} // namespace kuyum
