#pragma once

#include "Kalip.h"
#include "LoadedRows.h"

#include <optional>

namespace kuyum {

struct Oturum;

/// Finds, saves and removes molds. Everything throws DatabaseError.
class KalipStore
{
public:
    explicit KalipStore(Oturum &oturum) : m_oturum(&oturum) {}

    /// What the record is made of, for those who load and save it.
    QList<RecordRows> kayit(const QString &KalipKodu) const;

    std::optional<Kalip> KalipBul(const QString &KalipKodu) const;
    /// Adds the mold under the working date, or changes the one of its code.
    void save(const Kalip &kalip, LoadedRows &okunan) const;
    void remove(const QString &KalipKodu, LoadedRows &okunan) const;

private:
    Oturum *m_oturum;
};

} // namespace kuyum
