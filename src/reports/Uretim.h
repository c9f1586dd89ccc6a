#pragma once

#include <optional>
#include <QDate>
#include <QList>
#include <QString>

namespace kuyum {

/// Which order lines production looks at.
struct UretimFiltre
{
    QDate bas;                      ///< production begins within these days, both included; lines
    QDate bit;                      ///< not begun stand on 01.01.2000
    std::optional<QString> sipDur;  ///< the order status; nothing: any
    std::optional<QString> uretDur; ///< the production status; nothing: any
};

/// Order lines that the statuses of a filter would let through, but that are
/// not shown, counted by what keeps them out.
struct GizliSatirlar
{
    int tarihsiz = 0;     ///< without a start date, which no range contains
    int baslamamis = 0;   ///< not begun, with 01.01.2000 outside the range
    int bitisGunu = 0;    ///< begun on the last day, but later than its midnight
    int aralikDisi = 0;   ///< begun before or after
    int tipiTanimsiz = 0; ///< of a product type that is no longer defined

    int toplam() const;
    /// "2 satır başlamamış, 1 satırın başlangıç tarihi yok"; empty for none.
    QString nedenler() const;
};

/// What is to be made of one model: the lines of an order that are alike in
/// all of this, added up.
struct UretimSatiri
{
    qint32 SipnumD = 0;
    QString model;
    QString KisaAD; ///< the product type's short name
    QString renk;
    QString aciklama;
    QString durum1;
    QString durum2;
    double topadet = 0;
};

/// A mold or stone of a model, and how many of it go into one piece.
struct UretimMalzemesi
{
    QString kod;
    double adet = 0;
};

/// Whose order it is, and the order's note.
struct UretimMusterisi
{
    QString FirAdi;
    QString SAck;
};

} // namespace kuyum
