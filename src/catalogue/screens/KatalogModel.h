#pragma once

#include "Katalog.h"

#include <QAbstractTableModel>

namespace kuyum {

/// The rows of a catalogue as the grid shows them. Weight and remark can be
/// edited; the row's model cannot.
class KatalogModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    static constexpr int modelColumn = 0;
    static constexpr int gramColumn = 1;
    static constexpr int aciklamaColumn = 2;
    static constexpr int idColumn = 3;
    static constexpr int kisaAdColumn = 4;

    explicit KatalogModel(QObject *parent = nullptr) : QAbstractTableModel(parent) {}

    void fill(const Katalog &katalog);
    const QList<KatalogSatiri> &satirlar() const { return m_rows; }
    const KatalogSatiri &rowAt(int row) const { return m_rows[row]; }
    /// Whether a row was moved, now or before the catalogue was saved.
    bool elleSirali() const { return m_elleSirali; }

    void append(const KatalogSatiri &satir);
    void removeRow(int row);
    /// Puts a row where another stands, and those between them one on.
    void moveTo(int from, int to);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &cell, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &cell, const QVariant &value, int role = Qt::EditRole) override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &cell) const override;

private:
    QString text(const QModelIndex &cell) const;

    QList<KatalogSatiri> m_rows;
    bool m_elleSirali = false;
};

/// The number of a weight as it is typed, to the two decimals that are shown.
double typedGram(const QString &text);

} // namespace kuyum
