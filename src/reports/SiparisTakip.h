#pragma once

#include "LoadedRows.h"
#include "Siparis.h"

#include <functional>
#include <optional>

namespace kuyum {

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
    qint32 tip = 0;        ///< its product type
    QString SipSatir = {}; ///< its row in the order, as text: empty for a line that has none
    friend bool operator==(const TakipSatiri &, const TakipSatiri &) = default;
};

/// An order whose lines are followed through production.
struct TakipSiparisi
{
    Siparis baslik; ///< its header; the lines of an order entry stay out of it
    QList<TakipSatiri> satirlar;
    QList<KeptLine> gizliSatirlar; ///< whose colour or product type is not defined
};

/// What the tab has of an order: its lines as they were opened and as they are
/// to be written.
struct TakipKaydi
{
    qint32 Sipnum = 0;
    QList<TakipSatiri> opened;
    QList<TakipSatiri> satirlar;
};

/// What became of a save of order control.
struct TakipSonucu
{
    bool ended = true;        ///< false when it was stopped
    QList<TakipSatiri> kayip; ///< lines to be written that stand nowhere any more
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
    /// The lines as they stand: to be taken before they are shown, for the save
    /// that may follow.
    LoadedRows oku(qint32 Sipnum) const;
    /// Writes the statuses and dates that were set, line by line, each on its
    /// own: one that fails does not stop the others. Nulls are filled even where
    /// nothing was set. A line that an order entry
    /// wrote anew meanwhile is found again where no other could be meant.
    /// Throws ChangedMeanwhile where another set a status or date of a line, as
    /// a rule before anything is written.
    TakipSonucu kaydet(const TakipKaydi &kayit, LoadedRows &okunan, const SaveError &onError,
                       const SaveProgress &progress) const;

private:
    QList<TakipSatiri> readLines(qint32 Sipnum) const;
    QList<TakipSatiri> linesToWrite(const TakipKaydi &kayit) const;
    qint32 numberOf(const TakipKaydi &kayit, const TakipSatiri &satir) const;
    qint32 findAgain(const TakipKaydi &kayit, const TakipSatiri &satir) const;
    bool writeLine(const TakipKaydi &kayit, const TakipSatiri &satir,
                   const LoadedRows &okunan) const;
    bool setState(qint32 Dotosayi, const ProductionState &state) const;

    Oturum *m_oturum;
};

} // namespace kuyum
