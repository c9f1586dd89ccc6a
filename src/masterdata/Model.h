#pragma once

#include <QList>
#include <QString>

namespace kuyum {

/// What a material of a model is.
enum class MalzemeTipi {
    Bos, ///< not said yet, in a row just begun
    Tas,
    YariMamul ///< a piece made in a mold
};

/// As the grid shows it: "Tas", "Yarı Mamul".
QString malzemeAdi(MalzemeTipi tip);

/// A material of a model: so many of a stone or of a mold's pieces.
struct ModelSatiri
{
    MalzemeTipi tip = MalzemeTipi::Bos;
    QString Kod;      ///< `Taskodu` or `KalipKodu`; empty where that is not defined any more
    qint32 M_Kod = 0; ///< `TasID` or `KalipID`
    double M_Adet = 0;

    /// Whether a save keeps the row.
    bool isStored() const { return !Kod.trimmed().isEmpty() && M_Adet > 0; }
    /// The row of a stone or mold that was deleted after the model was saved.
    bool isDangling() const { return Kod.trimmed().isEmpty() && M_Kod != 0; }
    friend bool operator==(const ModelSatiri &, const ModelSatiri &) = default;
};

/// A model of one product type. Name and type together are its key.
struct Model
{
    QString ad;
    qint32 M_Uruntip = 0;
    double M_Miktar = 0; ///< grams
    QList<ModelSatiri> satirlar;
    qint32 Model_ID = 0; ///< of the last row that was written; its label bears it
    friend bool operator==(const Model &, const Model &) = default;
};

/// A product type as models are filed under it.
struct ModelTipi
{
    qint32 TipID = 0;
    QString UrunTipi;
    QString KisaAD;
};

} // namespace kuyum
