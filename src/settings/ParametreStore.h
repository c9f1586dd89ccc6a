#pragma once

#include "Ayarlar.h"
#include "LoadedRows.h"
#include "Oturum.h"
#include "RegistryStore.h"

#include <memory>
#include <optional>

namespace kuyum {

/// The settings of the session's company: its paths in the registry, and its
/// row of XXX. Throws DatabaseError.
class ParametreStore
{
public:
    explicit ParametreStore(Oturum &oturum) : m_oturum(oturum) {}

    /// The company as the registry has it now; nothing when it is not there.
    std::optional<Sirket> sirket() const;
    /// Nothing when XXX has no row.
    std::optional<Ayarlar> ayarlar() const;
    /// Both as they stand: to be taken before they are shown, for the save that
    /// may follow.
    LoadedRows sirketiOku() const;
    LoadedRows ayarlariOku() const;
    /// Writes the row that is there; where there is none, none is added.
    void kaydet(const Ayarlar &ayarlar, LoadedRows &okunan);

    /// The file that a DataYolu names on this system; a legacy file as it was named.
    QString veriDosyasi(const QString &DataYolu) const;
    /// Whether a DataYolu names the file that is open.
    bool acikOlan(const QString &DataYolu) const;
    /// Whether anyone could log in to that database: it has a user who is not
    /// deleted and has a password.
    static bool girisYapilabilir(Database &db);
    /// Writes the paths into the registry and works by them from then on. yeni
    /// takes the place of the open database; null leaves it. Either all of it
    /// is done or, with an exception, nothing, and yeni is still the caller's.
    void yollariDegistir(const Sirket &yollar, std::unique_ptr<Database> &yeni, LoadedRows &okunan);

private:
    Oturum &m_oturum;
};

} // namespace kuyum
