#pragma once

#include "Firma.h"
#include "LoadedRows.h"

#include <optional>
#include <QList>

namespace kuyum {

struct Oturum;

/// Finds, saves and removes customers, and keeps their countries. Everything
/// throws DatabaseError.
class FirmaStore
{
public:
    explicit FirmaStore(Oturum &oturum) : m_oturum(&oturum) {}

    /// What the record is made of, for those who load and save it.
    QList<RecordRows> kayit(qint32 Firkod) const;

    std::optional<Firma> FirmaBul(qint32 Firkod) const;
    /// Writes the customer of that code, or adds it. Only the note keeps the
    /// blanks around it.
    void save(const Firma &firma, LoadedRows &okunan) const;
    /// A customer with orders must stay.
    /// The code after the highest one; the lowest that is free where the
    /// highest is the last that can be stored.
    qint32 bosKod() const;
    bool hasOrders(qint32 Firkod) const;
    void remove(qint32 Firkod, LoadedRows &okunan) const;

    QList<Ulke> ulkeler() const;
    /// The number of the country of that name, which is added when it is new.
    qint32 ulkeTanimla(const QString &ulke_ADI) const;

private:
    Oturum *m_oturum;
};

} // namespace kuyum
