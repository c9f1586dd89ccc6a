#pragma once

#include "SiparisTakip.h"

#include <QAbstractTableModel>

namespace kuyum {

/// The lines of the order control grid `Rapor1`, with what the user has set of
/// their statuses and dates.
class TakipModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Model, Renk, Adet, Aciklama, SipDur, UrtDur, BasTrh, BitTrh, OtoSayi, Columns };

    using QAbstractTableModel::QAbstractTableModel;

    void fill(const QList<TakipSatiri> &satirlar);
    const QList<TakipSatiri> &satirlar() const { return m_rows; }
    const QList<TakipSatiri> &opened() const { return m_opened; }
    /// Whether anything differs from what fill() brought.
    bool isChanged() const;

    static bool isEditable(int column) { return column >= SipDur && column <= BitTrh; }
    static bool isDate(int column) { return column == BasTrh || column == BitTrh; }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    /// Takes a status, or a date as text; an empty text and 01.01.2000 are no
    /// date. False for what is neither, and for the other columns.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

private:
    QString text(const TakipSatiri &satir, int column) const;
    bool setDate(QDateTime &date, const QString &text);

    QList<TakipSatiri> m_rows;
    QList<TakipSatiri> m_opened; ///< as they were filled in
};

} // namespace kuyum
