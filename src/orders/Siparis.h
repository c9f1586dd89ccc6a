#pragma once

#include <QDate>
#include <QList>
#include <QMap>
#include <QString>

namespace kuyum {

/// One product type: a quantity column of the order grid.
struct UrunTipi
{
    qint32 TipID = 0;
    QString ad;     ///< UrunTipi.UrunTipi
    QString KisaAD; ///< heads the column
    friend bool operator==(const UrunTipi &, const UrunTipi &) = default;
};

/// Where a line stands in production: set by production tracking, carried
/// through a save unchanged.
struct ProductionState
{
    QString durum1;
    QString durum2;
    QDateTime basTrh; ///< invalid: never set; 01.01.2000 stands for no date
    QDateTime bitTrh;

    /// Production has begun: a status or a date is set.
    bool hasBegun() const;
    friend bool operator==(const ProductionState &, const ProductionState &) = default;
};

/// A stored line that has no cell in the grid: its colour or product type is
/// no longer defined, or its model no longer has that product type. A save
/// leaves such a line as it is.
struct KeptLine
{
    qint32 Dotosayi = 0;
    QString model;
    QString renk;
    qint32 adet = 0;
    ProductionState state;
    friend bool operator==(const KeptLine &, const KeptLine &) = default;
};

/// One row of the order grid: a model in a colour, with a quantity for each
/// product type.
struct SiparisSatiri
{
    QString model;
    QString renk;
    QList<qint32> adetler; ///< one per product type, in the order of the columns; 0 is none
    QList<bool> yellow;    ///< per column: whether the model has that product type
    QString aciklama;
    ProductionState state;
    /// By column: the cells whose line stands elsewhere in production than `state`.
    QMap<int, ProductionState> otherStates;
    /// Lines of this row that have no cell; they go when the row is removed.
    QList<KeptLine> keptLines;

    /// An empty row for that many product types.
    static SiparisSatiri empty(qsizetype typeCount);
    /// The short names of the product types of these columns that are ordered.
    QStringList orderedTypes(const QList<UrunTipi> &tipler) const;
    /// The sum of the quantities.
    qint64 totalCount() const;
    /// What the line under that column carries.
    const ProductionState &stateOf(int column) const;
    bool hasBegun() const;
    friend bool operator==(const SiparisSatiri &, const SiparisSatiri &) = default;
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
    QList<KeptLine> keptLines; ///< stored lines that belong to no row

    /// Makes it the same order with production not begun and nothing stored yet.
    void becomeCopy();
    /// The lines without a cell, those of the rows included.
    QList<KeptLine> allKeptLines() const;
    friend bool operator==(const Siparis &, const Siparis &) = default;
};

} // namespace kuyum
