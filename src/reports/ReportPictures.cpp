#include "ReportPictures.h"

#include "OrderLookups.h"

PictureFinder reportPictures(Oturum &oturum)
{
    return [lookups = OrderLookups(oturum)](const QString &model) {
        return lookups.picturePath(model);
    };
}
