#pragma once

#include <QDate>
#include <QList>
#include <QString>

/// One product type: a quantity column of the order grid.
struct UrunTipi
{
    qint32 TipID = 0;
    QString ad;     ///< UrunTipi.UrunTipi
    QString KisaAD; ///< heads the column
};

/// One row of the order grid: a model in a colour, with a quantity for each
/// product type.
struct SiparisSatiri
{
    QString model;
    QString renk;
    QList<qint32> adetler; ///< one per product type, in the order of the columns; 0 is none
    QString aciklama;
    QString durum1;
    QString durum2;
    QDate basTrh; ///< invalid: not set (stored as 01.01.2000)
    QDate bitTrh;
};

/// An order as it stands on the screen.
struct Siparis
{
    qint32 Sipnum = 0; ///< 0: not yet stored
    QDate SipTrh;
    QDate TesTrh;
    qint32 Firkod = 0;
    QString FirAdi;
    QString KisaAD; ///< the customer's short name
    double Ayar = 0;
    QString Patent;
    QString Aciklama;
    QList<UrunTipi> tipler; ///< all product types in the order of their columns
    QList<SiparisSatiri> satirlar;
};
