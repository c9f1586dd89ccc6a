#include "ReportPictures.h"

#include "OrderLookups.h"
#include "Oturum.h"
#include "PictureFiles.h"

namespace kuyum {

QString reportPicture(Oturum &oturum, const QString &model, const QString &KisaAD)
{
    return KisaAD.isEmpty() ? OrderLookups(oturum).picturePath(model)
                            : modelPicturePath(oturum.ResimYolu, model, KisaAD);
}

PictureFinder reportPictures(Oturum &oturum)
{
    return [&oturum](const QString &model, const QString &KisaAD) {
        return reportPicture(oturum, model, KisaAD);
    };
}

} // namespace kuyum
