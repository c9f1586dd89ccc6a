#include "SiparisModel.h"

#include "Dates.h"
#include "LineFolding.h"
#include "Numbers.h"
#include "TurkishText.h"

#include <QBrush>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

const QColor yellow(255, 255, 0);
const QColor white(255, 255, 255);

} // namespace

SiparisModel::SiparisModel(QObject *parent) : QAbstractTableModel(parent)
{
    m_rows.append(SiparisSatiri::empty(0));
}

void SiparisModel::setTypes(const QList<UrunTipi> &tipler)
{
    beginResetModel();
    m_types = tipler;
    m_rows = {SiparisSatiri::empty(m_types.size())};
    endResetModel();
}

void SiparisModel::Gridbosalt()
{
    fill({});
}

void SiparisModel::fill(const QList<SiparisSatiri> &satirlar)
{
    beginResetModel();
    m_rows = satirlar;
    m_rows.append(SiparisSatiri::empty(m_types.size()));
    endResetModel();
}

void SiparisModel::addRow()
{
    const int row = rowCount();
    beginInsertRows({}, row, row);
    m_rows.append(SiparisSatiri::empty(m_types.size()));
    endInsertRows();
}

void SiparisModel::removeRow(int row)
{
    beginRemoveRows({}, row, row);
    m_rows.removeAt(row);
    endRemoveRows();
}

void SiparisModel::clearRow(int row)
{
    m_rows[row] = SiparisSatiri::empty(m_types.size());
    rowChanged(row);
}

void SiparisModel::SatirKitle(int row, const QStringList &kisaAdlar, const QString &KisaAD,
                              qint32 adet)
{
    SiparisSatiri &satir = m_rows[row];
    satir.yellow = yellowColumns(m_types, kisaAdlar);
    bool placed = KisaAD.isEmpty();
    for (qsizetype i = 0; i < m_types.size(); ++i) {
        if (!satir.yellow[i]) {
            satir.adetler[i] = 0;
        } else if (!placed && sameText(m_types[i].KisaAD, KisaAD)) {
            satir.adetler[i] = adet;
            placed = true;
        }
    }
    rowChanged(row);
}

bool SiparisModel::isQuantity(int column) const
{
    return column >= firstQuantityColumn && column < noteColumn();
}

bool SiparisModel::isYellow(int row, int column) const
{
    return isQuantity(column) && m_rows[row].yellow[quantityIndex(column)];
}

bool SiparisModel::isOpen(const QModelIndex &cell) const
{
    const int column = cell.column();
    return cell.isValid() && (column == modelColumn || column == colourColumn ||
                              column == noteColumn() || isYellow(cell.row(), column));
}

int SiparisModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int SiparisModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_types.size()) + 7;
}

QString SiparisModel::text(const SiparisSatiri &row, int column) const
{
    if (column == modelColumn)
        return row.model;
    if (column == colourColumn)
        return row.renk;
    if (isQuantity(column)) {
        const qint32 adet = row.adetler[quantityIndex(column)];
        return adet == 0 ? QString() : QString::number(adet);
    }
    switch (column - noteColumn()) {
    case 0:
        return row.aciklama;
    case 1:
        return row.state.durum1;
    case 2:
        return row.state.durum2;
    case 3:
        return formatDateTime(row.state.basTrh);
    default:
        return formatDateTime(row.state.bitTrh);
    }
}

QVariant SiparisModel::data(const QModelIndex &cell, int role) const
{
    if (!checkIndex(cell, CheckIndexOption::IndexIsValid))
        return {};
    const bool quantity = isQuantity(cell.column());
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return text(m_rows[cell.row()], cell.column());
    case Qt::ToolTipRole:
        // Notes and statuses may be longer than their columns are wide.
        return quantity ? QString() : text(m_rows[cell.row()], cell.column());
    case Qt::BackgroundRole:
        if (quantity)
            return QBrush(isYellow(cell.row(), cell.column()) ? yellow : white);
        return {};
    case Qt::ForegroundRole:
        // Black on yellow and white, whatever the theme.
        return quantity ? QVariant(QBrush(Qt::black)) : QVariant();
    case Qt::TextAlignmentRole:
        return QVariant(quantity ? Qt::AlignCenter : Qt::AlignLeft | Qt::AlignVCenter);
    case Qt::AccessibleTextRole:
        return headerData(cell.column(), Qt::Horizontal).toString() + u": "_s +
               text(m_rows[cell.row()], cell.column());
    default:
        return {};
    }
}

bool SiparisModel::setData(const QModelIndex &cell, const QVariant &value, int role)
{
    if (role != Qt::EditRole || !isOpen(cell))
        return false;
    SiparisSatiri &row = m_rows[cell.row()];
    const QString entered = value.toString();
    if (cell.column() == modelColumn)
        row.model = entered;
    else if (cell.column() == colourColumn)
        row.renk = entered;
    else if (cell.column() == noteColumn())
        row.aciklama = entered;
    else
        row.adetler[quantityIndex(cell.column())] = qint32(leadingNumber(entered));
    Q_EMIT dataChanged(cell, cell);
    return true;
}

QVariant SiparisModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole)
        return {};
    if (orientation == Qt::Vertical)
        return section + 1;
    if (section == modelColumn)
        return u"MODEL"_s;
    if (section == colourColumn)
        return u"RENK"_s;
    if (isQuantity(section))
        return m_types[quantityIndex(section)].KisaAD;
    static const QStringList trailing = {u"AÇIKLAMa"_s, u"Durum1"_s, u"Durum2"_s, u"BasTrh"_s,
                                         u"Bittrh"_s};
    return trailing.value(section - noteColumn());
}

Qt::ItemFlags SiparisModel::flags(const QModelIndex &cell) const
{
    const Qt::ItemFlags all = QAbstractTableModel::flags(cell);
    return isOpen(cell) ? all | Qt::ItemIsEditable : all;
}

void SiparisModel::rowChanged(int row)
{
    Q_EMIT dataChanged(index(row, 0), index(row, columnCount() - 1));
}

} // namespace kuyum
