#include "YedekModel.h"

#include "Dates.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

enum Column { made, kind, size, file, columns };

} // namespace

void YedekModel::show(const QList<BackupFile> &backups)
{
    beginResetModel();
    m_backups = backups;
    endResetModel();
}

int YedekModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_backups.size());
}

int YedekModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(columns);
}

QVariant YedekModel::data(const QModelIndex &index, int role) const
{
    if (role == Qt::TextAlignmentRole && index.column() == size)
        return int(Qt::AlignRight | Qt::AlignVCenter);
    if (role != Qt::DisplayRole)
        return {};
    const BackupFile &backup = m_backups[index.row()];
    switch (index.column()) {
    case made:
        return formatDateTime(backup.made);
    case kind:
        return backupKindText(backup.kind);
    case size:
        return backupSizeText(backup.size);
    default:
        return QFileInfo(backup.path).fileName();
    }
}

QVariant YedekModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return int(section == size ? Qt::AlignRight | Qt::AlignVCenter
                                   : Qt::AlignLeft | Qt::AlignVCenter);
    if (role != Qt::DisplayRole)
        return {};
    const QStringList names = {u"Tarih"_s, u"Tür"_s, u"Boyut"_s, u"Dosya"_s};
    return names.value(section);
}

} // namespace kuyum
