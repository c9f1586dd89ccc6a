#pragma once

#include "LabelLookup.h"

#include <QHash>
#include <QString>
#include <QStringList>

namespace kuyum {

struct Oturum;

/// A customer as the order screen takes it over.
struct OrderCustomer
{
    qint32 Firkod = 0;
    QString FirAdi;
    QString KisaAD;
    QString Aciklama;
};

/// A model found by its code or by a scanned label.
struct FoundModel
{
    QString Model;
    QString KisaAD; ///< the label's product type; empty when found by code
};

/// What order entry looks up in the master data. Everything throws
/// DatabaseError.
class OrderLookups
{
public:
    explicit OrderLookups(Oturum &oturum) : m_oturum(&oturum) {}

    std::optional<OrderCustomer> firma(double Firkod) const;
    /// A 13-digit product label gives its model and product type; any other
    /// text, and a label that is not known, counts as a model code. Of codes
    /// that differ only in letter case the one typed exactly so is taken.
    std::optional<FoundModel> model(const QString &text) const;
    /// What a scanned label stands for; nothing for a text that is none.
    std::optional<LabelledModel> etiket(const QString &text) const
    {
        return LabelLookup(*m_oturum).find(text);
    }
    /// Whether the model code is defined.
    bool hasModel(const QString &model) const;
    /// The short names of the product types that the model has.
    QStringList typesOfModel(const QString &model) const;
    /// The same for all models of an order's lines, by folded model code.
    QHash<QString, QStringList> typesOfOrder(qint32 Sipnum) const;
    /// A model's picture: in the picture folder itself, or else in the folder
    /// of a product type; empty when there is none. The types that are asked
    /// for, by short name, come before the model's other ones.
    QString picturePath(const QString &model, const QStringList &tipler = {}) const;
    /// The colours in their display order.
    QStringList colours() const;
    /// The product type of a short name; 0 for an unknown one.
    qint32 UrunTipIdBul(const QString &KisaAD) const;
    /// Grams of one piece of a model; 0 for an unknown one.
    double UrGram(const QString &model) const;

private:
    std::optional<FoundModel> byCode(const QString &kod) const;
    QStringList pictureTypes(const QString &model) const;

    Oturum *m_oturum;
};

} // namespace kuyum
