#pragma once

#include "Ayar.h"
#include "LoadedRows.h"

#include <optional>

namespace kuyum {

struct Oturum;

/// Finds, saves and removes karats. Everything throws DatabaseError.
class AyarStore
{
public:
    explicit AyarStore(Oturum &oturum) : m_oturum(&oturum) {}

    /// What the record is made of, for those who load and save it.
    QList<RecordRows> kayit(double Milyem) const;

    std::optional<Ayar> AyarBul(double Milyem) const;
    /// Writes the karat of that fineness, or adds it.
    void save(const Ayar &ayar, LoadedRows &okunan) const;
    /// The orders of that karat keep it.
    void remove(double Milyem, LoadedRows &okunan) const;

private:
    Oturum *m_oturum;
};

} // namespace kuyum
