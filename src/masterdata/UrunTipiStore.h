#pragma once

#include "LoadedRows.h"
#include "UrunTipiKaydi.h"

#include <optional>

namespace kuyum {

struct Oturum;

/// Finds, saves and removes product types. Everything throws DatabaseError.
class UrunTipiStore
{
public:
    explicit UrunTipiStore(Oturum &oturum) : m_oturum(&oturum) {}

    /// What the record is made of, for those who load and save it.
    QList<RecordRows> kayit(double TipID) const;

    std::optional<UrunTipiKaydi> UrunTipiBul(double TipID) const;
    /// Writes the type of that number, which must be there, or adds a new one,
    /// dated with the working date.
    void save(const UrunTipiKaydi &tip, LoadedRows &okunan) const;
    /// The models and orders of the type keep its number.
    void remove(double TipID, LoadedRows &okunan) const;

private:
    Oturum *m_oturum;
};

} // namespace kuyum
