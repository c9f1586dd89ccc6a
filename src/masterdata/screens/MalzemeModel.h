#pragma once

#include "Model.h"

#include <QAbstractTableModel>

namespace kuyum {

struct Malzeme;

/// The materials of a model as the grid shows them. It always has a row.
class MalzemeModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    static constexpr int tipColumn = 0;
    static constexpr int kodColumn = 1;
    static constexpr int adetColumn = 2;
    static constexpr int idColumn = 3; ///< not shown

    explicit MalzemeModel(QObject *parent = nullptr);

    /// Shows these rows, or one blank row where there are none.
    void fill(const QList<ModelSatiri> &satirlar);
    const QList<ModelSatiri> &satirlar() const { return m_rows; }
    const ModelSatiri &rowAt(int row) const { return m_rows[row]; }

    /// How many rows are of stones or molds that were deleted.
    int danglingCount() const;

    /// Another kind empties code and count.
    void setTip(int row, MalzemeTipi tip);
    /// A row whose kind was not said gets the one that the code was found as.
    void setMalzeme(int row, const Malzeme &malzeme);
    /// Adds a blank row behind the last.
    void addRow();
    /// Removes the row; the last one left is blanked instead.
    void removeRow(int row);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &cell, int role = Qt::DisplayRole) const override;
    /// Takes the text of a count.
    bool setData(const QModelIndex &cell, const QVariant &value, int role = Qt::EditRole) override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &cell) const override;

private:
    QString text(const QModelIndex &cell) const;
    QString about(const QModelIndex &cell) const;
    void change(int row, const ModelSatiri &value);

    QList<ModelSatiri> m_rows;
};

} // namespace kuyum
