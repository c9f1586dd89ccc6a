#pragma once

#include "OrderShares.h"
#include "SiparisBasligi.h"

namespace kuyum {

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
    /// What the user is told where the totals are not those of the order's lines:
    /// lines alike stand in one, or a model stands under several types. Else empty.
    QString modelNotu() const;
    /// A group for each place, each with its total, then the total of all.
    const ReportTable &kaliplar() const { return m_kaliplar; }

    /// The order lines behind a figure. Throw DatabaseError.
    ReportTable modelSatirlari(qsizetype row, qsizetype column) const;
    ReportTable kalipSatirlari(qsizetype row, qsizetype column) const;

private:
    void Detaydoldur1();
    void DetayDoldur();
    struct ModelPaylari
    {
        QList<OrderShare> shares;
        bool esitVar = false;   ///< lines that add nothing, as one like them does
        bool tipFarkli = false; ///< lines that also stand under another type
    };
    ModelPaylari modelPaylari(qsizetype row, qsizetype column) const;

    Oturum &m_oturum;
    SiparisBasligi m_siparis;
    ReportTable m_modeller;
    ReportTable m_kaliplar;
};

} // namespace kuyum
