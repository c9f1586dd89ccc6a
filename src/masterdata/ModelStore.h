#pragma once

#include "LoadedRows.h"
#include "Model.h"

#include <optional>

namespace kuyum {

struct Oturum;

/// A stone or a mold, found by its code.
struct Malzeme
{
    qint32 id = 0; ///< `TasID` or `KalipID`
    QString kod;
};

/// Finds, saves and removes models. Everything throws DatabaseError.
class ModelStore
{
public:
    explicit ModelStore(Oturum &oturum) : m_oturum(&oturum) {}

    QList<ModelTipi> UrunTipleri() const;

    /// The model with its materials; nothing when there is none of that type.
    std::optional<Model> ModelBul(const QString &model, qint32 TipID) const;
    /// What the model is made of, for those who load and save it.
    QList<RecordRows> kayit(const QString &model, qint32 TipID) const;
    /// The stone or mold of that code.
    std::optional<Malzeme> malzemeBul(MalzemeTipi tip, const QString &kod) const;
    /// The short name of the product type under which the model is stored;
    /// empty when it is not.
    QString KisaADBul(const QString &model, qint32 TipID) const;

    /// Replaces the model's rows in one transaction; a model without materials
    /// has one. Rows without a
    /// code or a count are left out. `model` gets the last row's Model_ID, and so
    /// do the catalogues that had one of the rows replaced.
    void save(Model &model, LoadedRows &okunan) const;
    void remove(const QString &model, qint32 TipID, LoadedRows &okunan) const;

private:
    /// The numbers of the model's records, as SQL writes them.
    QStringList kayitlar(const QString &model, qint32 TipID) const;
    QList<ModelSatiri> ModelDoldur(const QList<ModelSatiri> &stored) const;
    /// The codes of a model's stones or molds by their numbers, read at once:
    /// asked for one by one they took most of the time of finding a model.
    QHash<qint32, QString> kodlar(const QList<ModelSatiri> &stored, MalzemeTipi tip) const;
    void replaceRows(Model &model) const;

    Oturum *m_oturum;
};

} // namespace kuyum
