#include "ModelPictures.h"

#include "TurkishText.h"

namespace kuyum {

static QString key(const PictureWish &wish)
{
    QStringList parts{wish.kod.trimmed()};
    for (const QString &tip : wish.tipler)
        parts.append(tip.trimmed());
    return foldedText(parts.join(u'\n'));
}

bool ModelPictures::read(const QList<PictureWish> &wishes, const PictureProgress &progress)
{
    QList<PictureWish> wanted;
    for (const PictureWish &wish : wishes) {
        if (!wish.kod.trimmed().isEmpty() && !m_paths.contains(key(wish))) {
            m_paths.insert(key(wish), {});
            wanted.append({wish.kod.trimmed(), wish.tipler});
        }
    }
    for (qsizetype i = 0; i < wanted.size(); ++i) {
        if (!progress(int(i), int(wanted.size())))
            return false;
        const QString path = m_pathOf(wanted[i]);
        m_paths[key(wanted[i])] = path;
        if (!path.isEmpty() && !m_images.contains(path))
            m_images.insert(path, loadPicture(path, m_mostPixels).image);
    }
    return true;
}

QImage ModelPictures::resim(const PictureWish &wish) const
{
    return m_images.value(m_paths.value(key(wish)));
}

} // namespace kuyum
