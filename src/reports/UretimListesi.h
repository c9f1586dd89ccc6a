#pragma once

#include "ModelPictures.h"
#include "PrintDocument.h"
#include "Uretim.h"

#include <optional>
#include <stdexcept>

namespace kuyum {

struct Oturum;

/// Which of the two production sheets.
enum class UretimYazdirma {
    Resimli, ///< Yazdir0_1: with the pictures of models and molds
    Yazili   ///< Yazdir0_2: text alone
};

/// An order that was selected for the sheet.
struct SecilenSiparis
{
    qint32 Sipnum = 0;
    double Ayar = 0;
};

/// Why there is no sheet of the selected orders.
class UretimReddi : public std::runtime_error
{
public:
    enum class Neden { FarkliAyar, SecimYok, KayitYok };

    explicit UretimReddi(Neden neden);
    Neden neden() const { return m_neden; }

private:
    Neden m_neden;
};

/// A row of the sheet, with all that is printed of it.
struct UretimBlogu
{
    UretimSatiri satir;
    UretimMusterisi musteri;
    QList<UretimMalzemesi> kaliplar;
    QList<UretimMalzemesi> taslar;
};

/// A production sheet's content.
struct UretimListesi
{
    QList<qint32> siparisler;
    double Ayar = 0;
    UretimFiltre filtre;
    QList<UretimBlogu> bloklar;
};

/// Collects what is to be made of the selected orders. Throws UretimReddi when
/// that gives no sheet, which always is for one karat.
UretimListesi uretimListesi(Oturum &oturum, const QList<SecilenSiparis> &secim,
                            const UretimFiltre &filtre);

/// Writes the sheet with pictures from the company; nothing when it was
/// stopped while it read them.
std::optional<PrintDocument> uretimRaporu(Oturum &oturum, const UretimListesi &liste,
                                          UretimYazdirma yazdirma, const PictureProgress &progress);

} // namespace kuyum
