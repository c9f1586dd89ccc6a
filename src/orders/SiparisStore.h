#pragma once

#include "LoadedRows.h"
#include "Siparis.h"

#include <optional>

namespace kuyum {

struct Oturum;
struct OrderLine;

/// The lines of an order, for whoever changes them.
RecordRows orderLineRows(Database &db, qint32 Sipnum);
/// How much there is of an order.
struct SiparisBoyu
{
    int satir = 0;
    qint64 adet = 0;
    int uretimde = 0; ///< lines whose production has begun
};

/// Finds, saves and removes orders. Everything throws DatabaseError.
class SiparisStore
{
public:
    explicit SiparisStore(Oturum &oturum) : m_oturum(&oturum) {}

    /// All product types in the order of their columns.
    QList<UrunTipi> productTypes() const;

    /// The order with its lines folded into rows; nothing when there is none,
    /// or none whose customer is defined (headerCustomer() then tells which).
    std::optional<Siparis> SiparisBul(qint32 Sipnum) const;
    /// The same without its lines.
    std::optional<Siparis> baslikBul(qint32 Sipnum) const;
    /// The order's lines besides those with these numbers.
    QList<KeptLine> otherLines(qint32 Sipnum, const QList<qint32> &shownLines) const;
    /// What is stored of the order's lines, shown or not.
    SiparisBoyu boyut(qint32 Sipnum) const;
    /// The customer code in a stored header; nothing when there is no header.
    std::optional<qint32> headerCustomer(double Sipnum) const;

    /// Header and lines as they stand: to be taken before the order is shown,
    /// for the save that may follow.
    LoadedRows oku(qint32 Sipnum) const;

    /// Writes the header and commits it, then replaces the lines in one
    /// transaction; the order date of a stored order stays. A new order's
    /// number is in `siparis`, and what was written of it in `okunan`, as soon
    /// as its header is on disk, also when writing the lines then throws.
    /// False, with nothing written, when the order has a number and its header
    /// is gone. Throws ChangedMeanwhile before the header is written, or, when
    /// another was between the two steps, before the lines are.
    bool save(Siparis &siparis, LoadedRows &okunan) const;
    /// Adds the order once more, with that order date and production not
    /// begun; the copy's lines get no row number. As with save(), `siparis`
    /// and `okunan` are the new order's as soon as its header is on disk.
    void saveAsNew(Siparis &siparis, QDate SipTrh, LoadedRows &okunan) const;
    /// Removes header and lines.
    void remove(qint32 Sipnum, LoadedRows &okunan) const;

private:
    QList<OrderLine> readLines(qint32 Sipnum) const;
    bool writeHeader(const Siparis &siparis, LoadedRows &okunan) const;
    void addHeader(Siparis &siparis, LoadedRows &okunan) const;
    void replaceLines(const Siparis &siparis, const LoadedRows &okunan) const;

    Oturum *m_oturum;
};

} // namespace kuyum
