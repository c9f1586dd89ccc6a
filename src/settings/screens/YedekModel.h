#pragma once

#include "BackupFiles.h"

#include <QAbstractTableModel>

namespace kuyum {

/// The backups of a database for a view, newest first.
class YedekModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    void show(const QList<BackupFile> &backups);
    const BackupFile &backup(int row) const { return m_backups[row]; }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    QList<BackupFile> m_backups;
};

} // namespace kuyum
