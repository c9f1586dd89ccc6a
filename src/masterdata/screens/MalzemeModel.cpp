#include "MalzemeModel.h"

#include "ModelStore.h"
#include "Numbers.h"

using namespace Qt::StringLiterals;

namespace kuyum {

MalzemeModel::MalzemeModel(QObject *parent) : QAbstractTableModel(parent), m_rows({ModelSatiri()})
{
}

void MalzemeModel::fill(const QList<ModelSatiri> &satirlar)
{
    beginResetModel();
    m_rows = satirlar.isEmpty() ? QList<ModelSatiri>{ModelSatiri()} : satirlar;
    endResetModel();
}

int MalzemeModel::danglingCount() const
{
    return int(std::count_if(m_rows.begin(), m_rows.end(),
                             [](const ModelSatiri &row) { return row.isDangling(); }));
}

void MalzemeModel::change(int row, const ModelSatiri &value)
{
    m_rows[row] = value;
    Q_EMIT dataChanged(index(row, 0), index(row, idColumn));
}

void MalzemeModel::setTip(int row, MalzemeTipi tip)
{
    if (m_rows[row].tip != tip)
        change(row, {tip, {}, 0, 0});
}

void MalzemeModel::setMalzeme(int row, const Malzeme &malzeme)
{
    const ModelSatiri &old = m_rows[row];
    const MalzemeTipi tip = old.tip == MalzemeTipi::Bos ? MalzemeTipi::YariMamul : old.tip;
    change(row, {tip, malzeme.kod, malzeme.id, old.M_Adet});
}

void MalzemeModel::addRow()
{
    const int row = rowCount();
    beginInsertRows({}, row, row);
    m_rows.append(ModelSatiri());
    endInsertRows();
}

void MalzemeModel::removeRow(int row)
{
    if (rowCount() == 1) {
        change(row, {});
        return;
    }
    beginRemoveRows({}, row, row);
    m_rows.removeAt(row);
    endRemoveRows();
}

int MalzemeModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int MalzemeModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : idColumn + 1;
}

QString MalzemeModel::text(const QModelIndex &cell) const
{
    const ModelSatiri &row = m_rows[cell.row()];
    switch (cell.column()) {
    case tipColumn:
        return malzemeAdi(row.tip);
    case kodColumn:
        return row.Kod;
    case adetColumn:
        return row.M_Adet == 0 ? QString() : plainNumber(row.M_Adet);
    default:
        return row.M_Kod == 0 ? QString() : QString::number(row.M_Kod);
    }
}

QString MalzemeModel::about(const QModelIndex &cell) const
{
    const ModelSatiri &row = m_rows[cell.row()];
    if (!row.isDangling())
        return text(cell);
    return u"Kayıt numarası %1 olan %2 silinmiş; kodu yeniden girilebilir."_s.arg(
        QString::number(row.M_Kod), row.tip == MalzemeTipi::Tas ? u"taş"_s : u"kalıp"_s);
}

QVariant MalzemeModel::data(const QModelIndex &cell, int role) const
{
    if (!checkIndex(cell, CheckIndexOption::IndexIsValid))
        return {};
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return text(cell);
    case Qt::ToolTipRole:
        return about(cell);
    case Qt::TextAlignmentRole:
        return QVariant((cell.column() == adetColumn ? Qt::AlignRight : Qt::AlignLeft) |
                        Qt::AlignVCenter);
    case Qt::AccessibleTextRole:
        return headerData(cell.column(), Qt::Horizontal).toString() + u": "_s + text(cell);
    default:
        return {};
    }
}

bool MalzemeModel::setData(const QModelIndex &cell, const QVariant &value, int role)
{
    if (role != Qt::EditRole || !cell.isValid() || cell.column() != adetColumn)
        return false;
    m_rows[cell.row()].M_Adet = leadingNumber(value.toString());
    Q_EMIT dataChanged(cell, cell);
    return true;
}

QVariant MalzemeModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole)
        return {};
    if (orientation == Qt::Vertical)
        return section + 1;
    static const QStringList names = {u"Tip"_s, u"Kod"_s, u"Adet"_s, u"Kod"_s};
    return names.value(section);
}

Qt::ItemFlags MalzemeModel::flags(const QModelIndex &cell) const
{
    const Qt::ItemFlags all = QAbstractTableModel::flags(cell);
    return cell.isValid() && cell.column() != idColumn ? all | Qt::ItemIsEditable : all;
}

} // namespace kuyum
