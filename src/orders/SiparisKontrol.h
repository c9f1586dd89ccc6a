#pragma once

#include <functional>
#include <optional>
#include <QString>

namespace kuyum {

struct Siparis;

/// Why an order cannot be saved, and where the user mends it.
struct OrderFault
{
    enum class Field { None, FirAdi, Ayar, Patent, Aciklama, Grid };

    QString text;
    QString title;
    bool critical = false; ///< critical icon; exclamation otherwise
    Field alan = Field::None;
    int satir = -1; ///< the grid's row and column; -1: the cursor stays
    int column = -1;
};

/// Whether a model code is defined.
using HasModel = std::function<bool(const QString &model)>;

/// The first fault that keeps the order from being saved, in the order in
/// which they are told; nothing for an order that can be saved.
std::optional<OrderFault> checkOrder(const Siparis &siparis, const HasModel &hasModel);

} // namespace kuyum
