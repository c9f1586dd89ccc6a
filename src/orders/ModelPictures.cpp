#include "ModelPictures.h"

#include "TurkishText.h"

static QString key(const QString &code)
{
    return foldedText(code.trimmed());
}

bool ModelPictures::read(const Siparis &siparis, const PictureProgress &progress)
{
    QStringList models;
    for (const SiparisSatiri &row : siparis.satirlar)
        models.append(row.model);
    return read(models, progress);
}

bool ModelPictures::read(const QStringList &codes, const PictureProgress &progress)
{
    QStringList wanted;
    for (const QString &code : codes) {
        if (!code.trimmed().isEmpty() && !m_pictures.contains(key(code))) {
            m_pictures.insert(key(code), {});
            wanted.append(code.trimmed());
        }
    }
    for (qsizetype i = 0; i < wanted.size(); ++i) {
        if (!progress(int(i), int(wanted.size())))
            return false;
        if (const QString path = m_pathOf(wanted[i]); !path.isEmpty())
            m_pictures[key(wanted[i])] = loadPicture(path, m_mostPixels).image;
    }
    return true;
}

QImage ModelPictures::resim(const QString &code) const
{
    return m_pictures.value(key(code));
}
