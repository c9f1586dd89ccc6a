#include "DemoPictures.h"

#include "DemoMasterData.h"
#include "DemoModels.h"
#include "JewelPainter.h"

#include <QBuffer>
#include <QDir>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

void writeJpeg(const QString &path, const QImage &picture)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QFile file(path);
    if (!picture.save(&buffer, "JPG", 85) || !file.open(QIODevice::WriteOnly) ||
        file.write(bytes) != bytes.size() || !file.flush()) {
        const QString reason = u"Resim yazılamadı: %1 (%2)"_s.arg(path, file.errorString());
        throw std::runtime_error(reason.toStdString());
    }
}

/// Every seventh model has its picture in its type's folder.
QString pictureFolder(const QString &folder, const DemoModel &model, int place)
{
    if (place % 7 != 3)
        return folder;
    const QString own =
        folder + u'/' + QString::fromUtf16(demoType(model.types.first() - 1).shortName);
    QDir().mkpath(own);
    return own;
}

} // namespace

void drawPictures(const QString &folder, const QList<DemoModel> &models,
                  const QStringList &moldCodes,
                  const std::function<void(int done, int all)> &progress)
{
    const int all = int(models.size() + moldCodes.size());
    int done = 0;
    const auto advance = [&] {
        if (++done % (all / 4) == 0)
            progress(done, all);
    };
    for (int i = 0; i < models.size(); ++i) {
        const DemoModel &model = models[i];
        writeJpeg(pictureFolder(folder, model, i) + u'/' + model.code + u".jpg"_s,
                  drawJewel(model.types.first() - 1, model.code));
        advance();
    }
    for (const QString &code : moldCodes) {
        writeJpeg(folder + u"/KLP/"_s + code + u".jpg"_s, drawMold(code));
        advance();
    }
}

} // namespace kuyum
