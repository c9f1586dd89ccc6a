#pragma once

#include <optional>
#include <QDate>
#include <QStringList>

namespace kuyum {

struct Oturum;

/// What the reports on one order say of it.
struct SiparisBasligi
{
    qint32 Sipnum = 0;
    QDate SipTrh;
    double Ayar = 0; ///< fineness in thousandths
    QString FirAdi;
};

/// The order's header; nothing when there is none, or none whose customer is
/// defined. Throws DatabaseError.
std::optional<SiparisBasligi> siparisBasligi(Oturum &oturum, qint32 Sipnum);
/// What the user is told then.
QString bulunamadi(qint32 Sipnum);

/// The lines above every printed page.
QStringList baslikSatirlari(const SiparisBasligi &siparis);

} // namespace kuyum
