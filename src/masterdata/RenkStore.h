#pragma once

#include "Renk.h"

#include <optional>

struct Oturum;

/// Finds, saves and removes colours. Everything throws DatabaseError.
class RenkStore
{
public:
    explicit RenkStore(Oturum &oturum) : m_oturum(&oturum) {}

    std::optional<Renk> Renkbul(const QString &RenkNo) const;
    /// Writes the colour of that code, or adds it.
    void save(const Renk &renk) const;
    /// The order lines that use the colour keep its code.
    void remove(const QString &RenkNo) const;

private:
    Oturum *m_oturum;
};
