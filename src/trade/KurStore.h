#pragma once

#include "Kur.h"
#include "LoadedRows.h"

#include <QDate>
#include <QList>

namespace kuyum {

struct Oturum;

/// Finds, saves and removes the exchange rates of a date. Everything throws
/// DatabaseError.
class KurStore
{
public:
    explicit KurStore(Oturum &oturum) : m_oturum(&oturum) {}

    /// The date's rates in the order of the currencies; of a currency that has
    /// several, the first. Empty when the date has none.
    QList<KurSatiri> kurlar(QDate Tarih) const;
    /// All currencies, without rates.
    QList<KurSatiri> paraBirimleri() const;
    /// Whether any date has a rate.
    bool hasRates() const;
    /// The earlier date from which the date's rates were carried forward, over
    /// however many dates, without one of them being changed since; invalid
    /// when they are its own. A copy bears no mark: rates are taken as carried
    /// when all of them are the same as on the date with rates before.
    QDate carriedFrom(QDate Tarih) const;

    /// The date's rates as they stand: to be taken before they are shown, for
    /// the save that may follow.
    LoadedRows oku(QDate Tarih) const;

    /// Replaces the date's rates in one transaction. A rate that is left empty
    /// is stored as 0, the home currency's as 1; buying rates that are not kept
    /// stay empty. Rates of currencies that are not defined, and so not among
    /// the rows, stay as they are.
    void save(QDate Tarih, const QList<KurSatiri> &satirlar, AlisKurlari alis,
              LoadedRows &okunan) const;
    /// Removes all rates of the date.
    void remove(QDate Tarih, LoadedRows &okunan) const;

private:
    void replaceRates(QDate Tarih, const QList<KurSatiri> &satirlar, AlisKurlari alis) const;
    QString homeCurrency() const;

    Oturum *m_oturum;
};

} // namespace kuyum
