#pragma once

#include "Siparis.h"

#include <QAbstractTableModel>

namespace kuyum {

/// The order's grid as data: model, colour, a column per product type, note
/// and the production columns. Column positions are told by the functions
/// here; those behind the quantities are counted from the right.
class SiparisModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    static constexpr int modelColumn = 0;
    static constexpr int colourColumn = 1;
    static constexpr int firstQuantityColumn = 2;

    explicit SiparisModel(QObject *parent = nullptr);

    void setTypes(const QList<UrunTipi> &tipler);
    const QList<UrunTipi> &tipler() const { return m_types; }

    /// Empties the grid to one line.
    void Gridbosalt();
    /// Shows these rows and one empty line behind them.
    void fill(const QList<SiparisSatiri> &satirlar);
    const QList<SiparisSatiri> &satirlar() const { return m_rows; }
    const SiparisSatiri &rowAt(int row) const { return m_rows[row]; }

    void addRow();
    void removeRow(int row);
    void clearRow(int row);
    /// Marks the columns of these product types, empties the others, and puts
    /// the quantity under KisaAD where that is given.
    void SatirKitle(int row, const QStringList &kisaAdlar, const QString &KisaAD = {},
                    qint32 adet = 0);

    int noteColumn() const { return columnCount() - 5; }
    int quantityIndex(int column) const { return column - firstQuantityColumn; }
    bool isQuantity(int column) const;
    bool isYellow(int row, int column) const;
    /// Whether the cell takes typing: model, colour, note and yellow cells.
    bool isOpen(const QModelIndex &cell) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &cell, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &cell, const QVariant &value, int role = Qt::EditRole) override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &cell) const override;

private:
    QString text(const SiparisSatiri &row, int column) const;
    void rowChanged(int row);

    QList<UrunTipi> m_types;
    QList<SiparisSatiri> m_rows;
};

} // namespace kuyum
