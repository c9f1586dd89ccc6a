#pragma once

#include "UretimListesi.h"

#include <map>
#include <QIdentityProxyModel>

namespace kuyum {

class LookupModel;

/// The order list of the production report with the orders marked red that the
/// sheet is to be of. A mark belongs to its order: it stays while the list is
/// narrowed or sorted.
class SecimModeli : public QIdentityProxyModel
{
    Q_OBJECT

public:
    static constexpr int shownColumns = 4; ///< date, number, customer, karat

    /// The list must hold the rows of openOrders().
    explicit SecimModeli(LookupModel &siparisler, QObject *parent = nullptr);

    void toggle(int row);
    /// The marked orders as the unsorted list has them: newest first.
    QList<SecilenSiparis> secim() const;
    qint32 Sipnum(int row) const;

    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

Q_SIGNALS:
    void secimChanged();

private:
    struct Place
    {
        QDate SipTrh;
        qint32 Sipnum;
        /// Newest first.
        friend bool operator<(const Place &a, const Place &b)
        {
            return std::pair(b.SipTrh, b.Sipnum) < std::pair(a.SipTrh, a.Sipnum);
        }
    };
    Place placeOf(int row) const;

    LookupModel &m_siparisler;
    std::map<Place, double> m_secim; ///< the karat of each
};

} // namespace kuyum
