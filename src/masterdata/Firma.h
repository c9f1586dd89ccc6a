#pragma once

#include <QString>

namespace kuyum {

/// A customer.
struct Firma
{
    qint32 Firkod = 0;
    QString KisaAD;
    QString FirAdi;
    QString Yetkili;
    QString Telefon;
    QString Mail;
    qint32 UlkeID = 0; ///< its country, which may be gone
    QString Aciklama;
};

/// A country.
struct Ulke
{
    qint32 ID = 0;
    QString ulke_ADI;
};

} // namespace kuyum
