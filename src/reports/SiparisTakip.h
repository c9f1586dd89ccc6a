#pragma once

#include "Siparis.h"

#include <functional>
#include <optional>

struct Oturum;

/// An order line on the order control tab.
struct TakipSatiri
{
    qint32 Dotosayi = 0;
    QString model;
    QString KisaAD; ///< the product type's short name
    QString renk;
    qint32 adet = 0;
    QString aciklama;
    ProductionState state; ///< invalid dates: no date
    friend bool operator==(const TakipSatiri &, const TakipSatiri &) = default;
};

/// An order whose lines are followed through production.
struct TakipSiparisi
{
    Siparis baslik; ///< its header; the lines of an order entry stay out of it
    QList<TakipSatiri> satirlar;
    QList<KeptLine> gizliSatirlar; ///< whose colour or product type is not defined
};

/// Opens orders for production tracking and writes what is set there. All but
/// kaydet() throws DatabaseError.
class SiparisTakip
{
public:
    explicit SiparisTakip(Oturum &oturum) : m_oturum(&oturum) {}

    /// Whether the user may set statuses and dates.
    bool duzenlemeYetkisi() const;

    /// The order with its lines by model and the colours' own order; nothing
    /// when there is none whose customer is defined.
    std::optional<TakipSiparisi> SiparisBul(qint32 Sipnum) const;

    /// Hears of a line that could not be written.
    using SaveError = std::function<void(const QString &text)>;
    /// Told how many lines of how many are done; false stops.
    using SaveProgress = std::function<bool(int done, int total)>;
    /// Writes statuses and dates line by line, each on its own: one that fails
    /// does not stop the others, one that is gone is passed over, and one that
    /// already says so is not touched. False when it was stopped.
    bool kaydet(qint32 Sipnum, const QList<TakipSatiri> &satirlar, const SaveError &onError,
                const SaveProgress &progress) const;

private:
    QList<TakipSatiri> readLines(qint32 Sipnum) const;
    void writeLine(qint32 Sipnum, const TakipSatiri &satir) const;

    Oturum *m_oturum;
};
