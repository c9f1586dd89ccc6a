#pragma once

#include "Siparis.h"

#include <functional>
#include <optional>

namespace kuyum {

struct Oturum;

/// Grams of one piece of a model under a product type (its short name);
/// nothing when the model does not have that type.
using GramBul = std::function<std::optional<double>(const QString &model, const QString &KisaAD)>;

/// The gold of an order, in grams.
struct OrderGrams
{
    double total = 0;
    QList<double> rows; ///< of each row; they add up to the total
};

/// For each quantity grams x density x quantity, rounded to 2 decimals and then
/// added up.
OrderGrams orderGrams(const Siparis &siparis, double yogunluk, const GramBul &gramBul);

/// The same with density and grams from the database; 0 for an unknown karat.
OrderGrams orderGrams(Oturum &oturum, const Siparis &siparis);

} // namespace kuyum
