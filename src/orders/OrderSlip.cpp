#include "OrderSlip.h"

#include "PictureSlip.h"
#include "SiparisFisi.h"

std::optional<PrintDocument> orderSlip(Oturum &oturum, const Siparis &siparis,
                                       const SlipChoice &choice, const PictureProgress &progress)
{
    const OrderGrams grams = orderGrams(oturum, siparis);
    if (!choice.resimli)
        return siparisFisi(siparis, choice.kimlik, grams.total);

    const OrderLookups lookups(oturum);
    ModelPictures pictures(lookups, picturePixels(choice.adet));
    if (!pictures.read(siparis, progress))
        return std::nullopt;
    const PictureSlipSource source{
        siparis, choice.kimlik, grams,
        [&pictures](const QString &model) { return pictures.resim(model); },
        [&lookups](const QString &model) { return lookups.UrGram(model); }};
    if (choice.adet == 15)
        return Yazdir_Resimli_15(source);
    return choice.adet == 7 ? Yazdir_Resimli_7(source) : Yazdir_Resimli_12(source);
}
