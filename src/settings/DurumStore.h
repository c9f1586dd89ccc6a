#pragma once

#include "Oturum.h"

#include <QStringList>

namespace kuyum {

/// The two lists of status codes.
enum class DurumTuru { Siparis, Uretim };

/// One of the lists, Durum1 or Durum2. Throws DatabaseError.
class DurumStore
{
public:
    DurumStore(Oturum &oturum, DurumTuru tur) : m_oturum(oturum), m_tur(tur) {}

    /// In the table's order.
    QStringList kodlar() const;
    /// The most characters that fit into the list and into an order's line.
    int enUzun() const;
    /// False when the code is there already.
    bool ekle(const QString &kod);
    /// Whether a line of an order has the code.
    bool kullanilan(const QString &kod) const;
    /// Removes the code; throws when a line of an order has it.
    void sil(const QString &kod);

private:
    Oturum &m_oturum;
    DurumTuru m_tur;
};

} // namespace kuyum
