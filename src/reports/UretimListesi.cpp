#include "UretimListesi.h"

#include "Oturum.h"
#include "PictureFiles.h"
#include "ReportPictures.h"
#include "TurkishText.h"
#include "UretimStore.h"
#include "Yazdir0.h"

#include <algorithm>
#include <QHash>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

QString text(UretimReddi::Neden neden)
{
    switch (neden) {
    case UretimReddi::Neden::FarkliAyar:
        return u"FARKLI AYARLARDA SIPARIS SECIMI YAPILAMAZ..."_s;
    case UretimReddi::Neden::SecimYok:
        return u"SEÇİM İŞLEMİ YAPILMAMIŞ..."_s;
    case UretimReddi::Neden::KayitYok:
        break;
    }
    return u"KAYIT BULUNAMADI..."_s;
}

/// A model's materials, asked for once however often it is ordered.
class Malzemeler
{
public:
    explicit Malzemeler(const UretimStore &store) : m_store(store) {}

    void put(UretimBlogu &blok)
    {
        const QString key = foldedText(blok.satir.model);
        auto found = m_known.find(key);
        if (found == m_known.end()) {
            const QString &model = blok.satir.model;
            found = m_known.insert(key, {m_store.kaliplar(model), m_store.taslar(model)});
        }
        blok.kaliplar = found->first;
        blok.taslar = found->second;
    }

private:
    const UretimStore &m_store;
    QHash<QString, std::pair<QList<UretimMalzemesi>, QList<UretimMalzemesi>>> m_known;
};

} // namespace

UretimReddi::UretimReddi(Neden neden)
    : std::runtime_error(text(neden).toStdString()), m_neden(neden)
{
}

UretimListesi uretimListesi(Oturum &oturum, const QList<SecilenSiparis> &secim,
                            const UretimFiltre &filtre)
{
    if (secim.isEmpty())
        throw UretimReddi(UretimReddi::Neden::SecimYok);
    UretimListesi liste;
    liste.Ayar = secim.first().Ayar;
    liste.filtre = filtre;
    for (const SecilenSiparis &siparis : secim) {
        if (float(siparis.Ayar) != float(liste.Ayar))
            throw UretimReddi(UretimReddi::Neden::FarkliAyar);
        liste.siparisler.append(siparis.Sipnum);
    }
    const UretimStore store(oturum);
    Malzemeler malzemeler(store);
    QHash<qint32, UretimMusterisi> musteriler;
    for (const UretimSatiri &satir : store.satirlar(liste.siparisler, filtre)) {
        if (!musteriler.contains(satir.SipnumD))
            musteriler.insert(satir.SipnumD, store.musteri(satir.SipnumD));
        UretimBlogu blok{satir, musteriler.value(satir.SipnumD), {}, {}};
        malzemeler.put(blok);
        liste.bloklar.append(blok);
    }
    if (liste.bloklar.isEmpty())
        throw UretimReddi(UretimReddi::Neden::KayitYok);
    return liste;
}

std::optional<PrintDocument> uretimRaporu(Oturum &oturum, const UretimListesi &liste,
                                          UretimYazdirma yazdirma, const PictureProgress &progress)
{
    if (yazdirma == UretimYazdirma::Yazili)
        return Yazdir0_2(liste);
    QList<PictureWish> models;
    QList<PictureWish> molds;
    for (const UretimBlogu &blok : liste.bloklar) {
        models.append({blok.satir.model, {blok.satir.KisaAD}});
        for (const UretimMalzemesi &kalip : blok.kaliplar)
            molds.append({kalip.kod});
    }
    ModelPictures modelPictures(
        [&oturum](const PictureWish &wish) {
            return reportPicture(oturum, wish.kod, wish.tipler.first());
        },
        modelDots());
    ModelPictures moldPictures(
        [&oturum](const PictureWish &wish) { return moldPicturePath(oturum.ResimYolu, wish.kod); },
        moldDots());
    if (!modelPictures.read(models, progress) || !moldPictures.read(molds, progress))
        return std::nullopt;
    return Yazdir0_1(liste, {[&](const UretimSatiri &satir) {
                                 return modelPictures.resim({satir.model, {satir.KisaAD}});
                             },
                             [&](const QString &kod) { return moldPictures.resim({kod}); }});
}

} // namespace kuyum
