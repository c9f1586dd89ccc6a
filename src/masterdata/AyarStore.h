#pragma once

#include "Ayar.h"

#include <optional>

struct Oturum;

/// Finds, saves and removes karats. Everything throws DatabaseError.
class AyarStore
{
public:
    explicit AyarStore(Oturum &oturum) : m_oturum(&oturum) {}

    std::optional<Ayar> AyarBul(double Milyem) const;
    /// Writes the karat of that fineness, or adds it.
    void save(const Ayar &ayar) const;
    /// The orders of that karat keep it.
    void remove(double Milyem) const;

private:
    Oturum *m_oturum;
};
