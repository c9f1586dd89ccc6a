#pragma once

#include "ReportTable.h"
#include "Uretim.h"

#include <QSet>
#include <QStringList>

namespace kuyum {

struct Oturum;

/// What production reads of orders and models. Everything throws DatabaseError.
class UretimStore
{
public:
    explicit UretimStore(Oturum &oturum) : m_oturum(&oturum) {}

    /// The texts that an order status and a production status can have, in the
    /// tables' own order.
    QStringList siparisDurumlari() const;
    QStringList uretimDurumlari() const;

    /// The pieces of an order by model and product type.
    ReportTable adetler(qint32 Sipnum, const UretimFiltre &filtre) const;
    /// The order lines behind such a figure, named by its model and type.
    ReportTable adetSatirlari(qint32 Sipnum, const UretimFiltre &filtre, const QString &model,
                              const QString &KisaAD) const;
    /// The lines of these orders that the filter's dates or a missing product
    /// type keep out of all of the above and below.
    GizliSatirlar gizliSatirlar(const QList<qint32> &siparisler, const UretimFiltre &filtre) const;
    /// What is to be made of these orders, order after order.
    QList<UretimSatiri> satirlar(const QList<qint32> &siparisler, const UretimFiltre &filtre) const;
    /// Empty for an order whose customer is not defined.
    UretimMusterisi musteri(qint32 Sipnum) const;

    /// A model's molds and stones, those of all its product types together.
    QList<UretimMalzemesi> kaliplar(const QString &model) const;
    QList<UretimMalzemesi> taslar(const QString &model) const;
    /// The short names of the product types that the model has.
    QStringList modelTipleri(const QString &model) const;

private:
    QStringList texts(const QString &sql, QStringView field) const;
    QSet<qint32> definedTypes() const;
    QList<UretimMalzemesi> malzemeler(const QString &sql, QStringView codeField) const;

    Oturum *m_oturum;
};

/// How many of a mold or stone, as it is shown and printed.
QString malzemeAdedi(double adet);
/// Molds or stones for a grid; the heading is that of their codes.
ReportTable malzemeTable(const QString &heading, const QList<UretimMalzemesi> &malzemeler);

} // namespace kuyum
