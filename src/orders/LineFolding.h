#pragma once

#include "Siparis.h"

#include <functional>

namespace kuyum {

/// One stored line, as the query of an order's lines reads it.
struct OrderLine
{
    qint32 Dotosayi = 0;
    QString SipSatir; ///< as text: empty for a line that has none
    QString SipModel;
    QString Siprenk;
    QString SipAck;
    qint32 SipUruntip = 0;
    qint32 SipAdet = 0;
    ProductionState state;
};

/// The short names of the product types that a model has.
using TypesOfModel = std::function<QStringList(const QString &model)>;

/// Folds stored lines into grid rows, in their order: lines with the same row
/// number, model, colour and note share a row. A second quantity for a cell
/// that is already filled gets a row of its own, so that no piece is lost;
/// quantities under a product type that the model does not have leave the grid
/// and are kept with the row.
QList<SiparisSatiri> foldLines(const QList<OrderLine> &kayitlar, const QList<UrunTipi> &tipler,
                               const TypesOfModel &tipleri);

/// Per column: whether its product type is one of these.
QList<bool> yellowColumns(const QList<UrunTipi> &tipler, const QStringList &kisaAdlar);

} // namespace kuyum
