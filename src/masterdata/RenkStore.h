#pragma once

#include "LoadedRows.h"
#include "Renk.h"

#include <optional>

namespace kuyum {

struct Oturum;

/// Finds, saves and removes colours. Everything throws DatabaseError.
class RenkStore
{
public:
    explicit RenkStore(Oturum &oturum) : m_oturum(&oturum) {}

    /// What the record is made of, for those who load and save it.
    QList<RecordRows> kayit(const QString &RenkNo) const;

    std::optional<Renk> Renkbul(const QString &RenkNo) const;
    /// Writes the colour of that code, or adds it.
    void save(const Renk &renk, LoadedRows &okunan) const;
    /// The order lines that use the colour keep its code.
    void remove(const QString &RenkNo, LoadedRows &okunan) const;

private:
    Oturum *m_oturum;
};

} // namespace kuyum
