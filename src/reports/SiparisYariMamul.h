#pragma once

#include "ReportTable.h"
#include "SiparisBasligi.h"

struct Oturum;

/// What an order needs of the foundry: its models with their gold, and the
/// molds, by where they are.
class SiparisYariMamul
{
public:
    enum ModelColumn { UrunKodu, Tip, ModelAdet, Gram, Has };
    enum MoldColumn { Kod, Tanim, Adet };

    /// Reads both. Throws DatabaseError.
    SiparisYariMamul(Oturum &oturum, const SiparisBasligi &siparis);

    /// A line for each model, type and count, then the total. Order lines alike
    /// in these stand in one line.
    const ReportTable &modeller() const { return m_modeller; }
    /// A group for each place, each with its total, then the total of all.
    const ReportTable &kaliplar() const { return m_kaliplar; }

    /// The order lines behind a figure. Throw DatabaseError.
    ReportTable modelSatirlari(qsizetype row, qsizetype column) const;
    ReportTable kalipSatirlari(qsizetype row, qsizetype column) const;

private:
    void Detaydoldur1();
    void DetayDoldur();

    Oturum &m_oturum;
    SiparisBasligi m_siparis;
    ReportTable m_modeller;
    ReportTable m_kaliplar;
};
