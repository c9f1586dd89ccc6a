#pragma once

#include "UrunTipiKaydi.h"

#include <optional>

struct Oturum;

/// Finds, saves and removes product types. Everything throws DatabaseError.
class UrunTipiStore
{
public:
    explicit UrunTipiStore(Oturum &oturum) : m_oturum(&oturum) {}

    std::optional<UrunTipiKaydi> UrunTipiBul(double TipID) const;
    /// Writes the type of that number, which must be there, or adds a new one,
    /// dated with the working date.
    void save(const UrunTipiKaydi &tip) const;
    /// The models and orders of the type keep its number.
    void remove(double TipID) const;

private:
    Oturum *m_oturum;
};
