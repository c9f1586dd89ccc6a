#pragma once

#include "Kalip.h"

#include <optional>

struct Oturum;

/// Finds, saves and removes molds. Everything throws DatabaseError.
class KalipStore
{
public:
    explicit KalipStore(Oturum &oturum) : m_oturum(&oturum) {}

    std::optional<Kalip> KalipBul(const QString &KalipKodu) const;
    /// Adds the mold under the working date, or changes the one of its code.
    void save(const Kalip &kalip) const;
    void remove(const QString &KalipKodu) const;

private:
    Oturum *m_oturum;
};
