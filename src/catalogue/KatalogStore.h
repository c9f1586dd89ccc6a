#pragma once

#include "Katalog.h"
#include "LoadedRows.h"

#include <optional>

namespace kuyum {

struct Oturum;

/// Finds, saves and removes catalogues. Everything throws DatabaseError.
class KatalogStore
{
public:
    explicit KatalogStore(Oturum &oturum) : m_oturum(&oturum) {}

    /// The catalogue of that name; one without rows when there is none. Typed
    /// in another spelling, it is found under its own.
    Katalog KatalogBul(const QString &KatAdi) const;
    /// A model as a new row of a catalogue; nothing when there is none of that type.
    std::optional<KatalogSatiri> ModelBul(const QString &model, qint32 TipID) const;

    /// The catalogue as it stands: to be taken before it is shown, for the save
    /// that may follow.
    LoadedRows oku(const QString &KatAdi) const;
    /// Replaces the catalogue of that name, in one transaction.
    void save(const Katalog &katalog, LoadedRows &okunan) const;
    void remove(const QString &KatAdi, LoadedRows &okunan) const;

private:
    Katalog storedRows(const QString &KatAdi) const;
    bool isOrderedByHand(const QString &KatAdi) const;
    void deleteRows(const QString &KatAdi) const;

    Oturum *m_oturum;
};

} // namespace kuyum
