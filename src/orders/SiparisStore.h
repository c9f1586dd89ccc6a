#pragma once

#include "Siparis.h"

#include <optional>

struct Oturum;
struct SiparisKaydi;

/// Finds, saves and removes orders. Everything throws DatabaseError.
class SiparisStore
{
public:
    explicit SiparisStore(Oturum &oturum) : m_oturum(&oturum) {}

    /// All product types in the order of their columns.
    QList<UrunTipi> UrunTipleri() const;

    /// The order with its lines folded into rows; nothing when there is none,
    /// or none whose customer is defined (baslikFirmasi() then tells which).
    std::optional<Siparis> SiparisBul(qint32 Sipnum) const;
    /// The customer code in a stored header; nothing when there is no header.
    std::optional<qint32> baslikFirmasi(qint32 Sipnum) const;

    /// Writes the header and commits it, then replaces the lines in one
    /// transaction; the order date of a stored order stays. A new order's
    /// number is in `siparis` as soon as its header is on disk, also when
    /// writing the lines then throws. False, with nothing written, when the
    /// order has a number and its header is gone.
    bool kaydet(Siparis &siparis) const;
    /// Adds the order once more, with that order date and production not begun.
    void yeniKaydet(Siparis &siparis, QDate SipTrh) const;
    /// Removes header and lines.
    void sil(qint32 Sipnum) const;

private:
    QList<SiparisKaydi> satirKayitlari(qint32 Sipnum) const;
    QList<SaklananSatir> digerSatirlar(qint32 Sipnum, const QList<SiparisKaydi> &gosterilen) const;
    void baslikEkle(Siparis &siparis, QDate SipTrh) const;
    void calistir(const QString &sql) const;

    Oturum *m_oturum;
};
