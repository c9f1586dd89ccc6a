#include "ModelPictures.h"

#include "TurkishText.h"

static QString key(const QString &model)
{
    return foldedText(model.trimmed());
}

bool ModelPictures::read(const Siparis &siparis, const PictureProgress &progress)
{
    QStringList models;
    for (const SiparisSatiri &row : siparis.satirlar) {
        if (const QString model = row.model.trimmed();
            !model.isEmpty() && !m_pictures.contains(key(model))) {
            m_pictures.insert(key(model), {});
            models.append(model);
        }
    }
    for (qsizetype i = 0; i < models.size(); ++i) {
        if (!progress(int(i), int(models.size())))
            return false;
        if (const QString path = m_lookups.picturePath(models[i]); !path.isEmpty())
            m_pictures[key(models[i])] = loadPicture(path, m_mostPixels).image;
    }
    return true;
}

QImage ModelPictures::resim(const QString &model) const
{
    return m_pictures.value(key(model));
}
