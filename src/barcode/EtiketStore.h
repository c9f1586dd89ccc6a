#pragma once

#include "BarkodTipi.h"
#include "Etiket.h"

namespace kuyum {

struct Oturum;

/// A model as the label screen finds it.
struct EtiketModeli
{
    Etiket etiket;
    QString KisaAD; ///< of its product type
};

/// What the settings say about labels.
struct EtiketAyari
{
    double sabitayar = 0; ///< the fixed karat
    QString YaziciAdi;    ///< the label printer; empty for the default one

    /// The karat that labels propose; empty where none is fixed.
    QString karat() const;
};

/// Reads what labels are made of. Everything throws DatabaseError.
class EtiketStore
{
public:
    explicit EtiketStore(Oturum &oturum) : m_oturum(&oturum) {}

    EtiketAyari ayarlar() const;
    /// The numbers of the product types under which there is such a model.
    QList<qint32> modelTipleri(const QString &model) const;
    /// The model with its type, the label's karat and note left empty.
    std::optional<EtiketModeli> ModelBul(const QString &model, qint32 TipID) const;
    /// The product type of that number, short name or name.
    std::optional<qint32> urunTipi(const QString &text) const;
    QList<BarkodTipi> BarkodTipleri() const;

private:
    QList<BarkodAlani> alanlar(qint32 btipno) const;
    QList<OzelUrun> ozelUrunler(qint32 btipno) const;

    Oturum *m_oturum;
};

} // namespace kuyum
