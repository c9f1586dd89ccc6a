#pragma once

#include <QList>
#include <QString>

namespace kuyum {

/// A model in a catalogue.
struct KatalogSatiri
{
    QString Model;
    double katgram = 0;
    QString kataciklama;
    qint32 katno1 = 0; ///< a `Model_ID` of the model
    QString KisaAD;    ///< of its product type
    friend bool operator==(const KatalogSatiri &, const KatalogSatiri &) = default;
};

/// A catalogue: the rows that share a name.
struct Katalog
{
    QString KatAdi;
    QList<KatalogSatiri> satirlar;
    /// Rows whose model or product type is not defined any more. They are not
    /// shown and not printed, and a save keeps them.
    QList<KatalogSatiri> keptRows;
    /// Whether the rows stand in an order of the user's own, not in the models'.
    bool elleSirali = false;

    bool isStored() const { return !satirlar.isEmpty() || !keptRows.isEmpty(); }
    friend bool operator==(const Katalog &, const Katalog &) = default;
};

} // namespace kuyum
