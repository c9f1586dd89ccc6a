#pragma once

#include "ReportTable.h"
#include "SiparisBasligi.h"

namespace kuyum {

/// The stones that an order needs, with their weight, cost and margin.
class SiparisTaslari
{
public:
    enum Column { Kod, Adet, Miktar, Doviz, Has, Kar, Fyt, Brm, Kat };

    /// Reads them, the cost in that currency (a `Dovcinsi`), at the rates of
    /// the working date. Throws DatabaseError.
    SiparisTaslari(Oturum &oturum, const SiparisBasligi &siparis, const QString &Dovcinsi);

    /// A line for each stone, then the total.
    const ReportTable &table() const { return m_table; }
    /// The currencies without a rate on the working date; where one is needed,
    /// the figures that it is needed for are 0.
    const QStringList &eksikKurlar() const { return m_eksikKurlar; }
    /// The order lines behind a figure of the table. Throws DatabaseError.
    ReportTable satirlar(qsizetype row, qsizetype column) const;

private:
    void read();
    void reckon(ReportRow &row);
    double cevir(double tutar, const QString &birim, const QString &hedef);

    Oturum &m_oturum;
    SiparisBasligi m_siparis;
    QString m_doviz;
    ReportTable m_table;
    QStringList m_eksikKurlar;
};

/// The currencies to choose from.
QStringList raporDovizleri(Oturum &oturum);
/// What the user is told of rates that are missing.
QString eksikKurNotu(QDate tarih, const QStringList &kurlar);

} // namespace kuyum
