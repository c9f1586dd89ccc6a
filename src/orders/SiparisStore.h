#pragma once

#include "Siparis.h"

#include <optional>

struct Oturum;
struct OrderLine;

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

    /// Writes the header and commits it, then replaces the lines in one
    /// transaction; the order date of a stored order stays. A new order's
    /// number is in `siparis` as soon as its header is on disk, also when
    /// writing the lines then throws. False, with nothing written, when the
    /// order has a number and its header is gone.
    bool save(Siparis &siparis) const;
    /// Adds the order once more, with that order date and production not
    /// begun; the copy's lines get no row number. As with save(), `siparis`
    /// is the new order as soon as its header is on disk.
    void saveAsNew(Siparis &siparis, QDate SipTrh) const;
    /// Removes header and lines.
    void remove(qint32 Sipnum) const;

private:
    QList<OrderLine> readLines(qint32 Sipnum) const;
    void addHeader(Siparis &siparis) const;

    Oturum *m_oturum;
};
