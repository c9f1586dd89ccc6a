#pragma once

#include "Kur.h"

#include <QAbstractTableModel>
#include <QList>

namespace kuyum {

/// The rate grid as data: currency, selling rate and, where they are kept,
/// buying rate. The buying rates of the rows last also while they are hidden.
class KurModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    static constexpr int currencyColumn = 0;
    static constexpr int sellingColumn = 1;
    static constexpr int buyingColumn = 2;

    using QAbstractTableModel::QAbstractTableModel;

    void setAlisKurlari(AlisKurlari alis);
    AlisKurlari alisKurlari() const { return m_alis; }

    void fill(const QList<KurSatiri> &satirlar);
    const QList<KurSatiri> &satirlar() const { return m_rows; }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &cell, int role = Qt::DisplayRole) const override;
    /// Takes a number with a point or a comma; a text that is none empties the
    /// cell. A rate with more decimals than are shown stays as it is until
    /// another text is entered.
    bool setData(const QModelIndex &cell, const QVariant &value, int role = Qt::EditRole) override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &cell) const override;

private:
    const std::optional<double> &rate(const QModelIndex &cell) const;
    QString text(const QModelIndex &cell) const;

    AlisKurlari m_alis = AlisKurlari::Yok;
    QList<KurSatiri> m_rows;
};

} // namespace kuyum
