#pragma once

#include "LoadedRows.h"
#include "Tas.h"

#include <optional>
#include <QStringList>

namespace kuyum {

struct Oturum;

/// Finds, saves and removes stones. Everything throws DatabaseError.
class TasStore
{
public:
    explicit TasStore(Oturum &oturum) : m_oturum(&oturum) {}

    /// What the record is made of, for those who load and save it.
    QList<RecordRows> kayit(const QString &Taskodu) const;

    std::optional<Tas> TasBul(const QString &Taskodu) const;
    /// Writes the stone of that code, or adds it, dated with the working date.
    void save(const Tas &tas, LoadedRows &okunan) const;
    /// The models that use the stone keep its number.
    void remove(const QString &Taskodu, LoadedRows &okunan) const;
    /// The currencies a price can be in.
    QStringList birimler() const;

private:
    Oturum *m_oturum;
};

} // namespace kuyum
