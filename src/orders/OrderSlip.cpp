#include "OrderSlip.h"

#include "PictureSlip.h"
#include "SiparisFisi.h"

namespace kuyum {

std::optional<PrintDocument> orderSlip(Oturum &oturum, const Siparis &siparis,
                                       const SlipChoice &choice, const PictureProgress &progress)
{
    const OrderGrams grams = orderGrams(oturum, siparis);
    if (!choice.resimli)
        return siparisFisi(siparis, choice.kimlik, grams.total);

    const OrderLookups lookups(oturum);
    ModelPictures pictures(lookups, picturePixels(choice.adet));
    const auto wish = [&siparis](const SiparisSatiri &row) {
        return PictureWish{row.model, row.orderedTypes(siparis.tipler)};
    };
    QList<PictureWish> wishes;
    for (const SiparisSatiri &row : siparis.satirlar)
        wishes.append(wish(row));
    if (!pictures.read(wishes, progress))
        return std::nullopt;
    const PictureSlipSource source{
        siparis, choice.kimlik, grams,
        [&](const SiparisSatiri &row) { return pictures.resim(wish(row)); },
        [&lookups](const QString &model) { return lookups.UrGram(model); }};
    if (choice.adet == 15)
        return Yazdir_Resimli_15(source);
    return choice.adet == 7 ? Yazdir_Resimli_7(source) : Yazdir_Resimli_12(source);
}

} // namespace kuyum
