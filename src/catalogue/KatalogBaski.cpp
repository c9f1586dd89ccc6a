#include "KatalogBaski.h"

#include "FixedPitchText.h"
#include "Numbers.h"

#include <QHash>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

constexpr double picturesPerInch = 200; ///< dots

// The face's letters: 0.6 of its size wide, 1.14 of it high.
constexpr Twips letterWidth(double points)
{
    return Twips::fromPoints(points * 0.6);
}
constexpr Twips lineHeight(double points)
{
    return Twips::fromPoints(points * 1.14);
}

/// The captions' size, and the smaller ones of what is too long for it.
constexpr double sizes[] = {11, 9, 8, 7, 6, 5};
constexpr double captionPoints = sizes[0];
constexpr double smallestCommonCaption = 9;
constexpr double smallestRemark = 6;

/// The header's line is as long as the page is wide.
constexpr int headerLetters = 90;
constexpr double headerPoints = 9;

constexpr Twips hairline = 5_tw;
constexpr Twips frameDistance = 20_tw; ///< of a box's frame from its picture
constexpr Twips captionDistance = 45_tw;
/// What stands below a picture, caption and remark, is no higher than this, so
/// that the page's last line stays on the paper in both forms.
constexpr Twips textHeight = 575_tw;

/// A photograph made ready for its place.
struct Photo
{
    QByteArray jpeg;
    QSize size;
};

struct Caption
{
    double points;
    QStringList lines;
};

int lettersIn(Twips width, double points)
{
    return int(width.count() / letterWidth(points).count() + 0.001);
}

QString shortened(const QString &text, qsizetype letters)
{
    return text.size() <= letters ? text : text.left(letters - 1) + u'…';
}

QString modelOf(const KatalogSatiri &satir)
{
    return onOneLine(satir.Model).trimmed();
}

QString weightOf(const KatalogSatiri &satir)
{
    return u"  "_s + formatNumber(satir.katgram, u"##0.00") + u" Gr"_s;
}

/// The largest size, no larger than `most`, in which so many letters fit; the
/// smallest where they fit in none.
double sizeFor(qsizetype letters, Twips width, double most)
{
    double points = most;
    for (const double size : sizes) {
        points = size;
        if (size <= most && letters <= lettersIn(width, size))
            break;
    }
    return points;
}

/// The size of a catalogue's captions: all alike as long as they can be read.
double captionSize(const Katalog &katalog, Twips width)
{
    double points = captionPoints;
    for (const KatalogSatiri &satir : katalog.satirlar)
        points = sizeFor(modelOf(satir).size() + weightOf(satir).size(), width, points);
    return std::max(points, smallestCommonCaption);
}

/// The model and its weight on one line. Of a model too long for the smallest
/// size the end is left out, never the weight.
Caption captionOf(const KatalogSatiri &satir, Twips width, double most)
{
    const QString model = modelOf(satir);
    const QString weight = weightOf(satir);
    const double points = sizeFor(model.size() + weight.size(), width, most);
    return {points, {shortened(model, lettersIn(width, points) - weight.size()) + weight}};
}

/// The remark in the largest size, no larger than `largest`, in which all of it fits.
Caption remarkOf(const QString &remark, Twips width, Twips height, double largest)
{
    Caption caption{largest, {}};
    qsizetype most = 1;
    for (const double size : sizes) {
        if (size > largest || size < smallestRemark)
            continue;
        const int letters = lettersIn(width, size);
        most = qsizetype(height.count() / lineHeight(size).count());
        caption = {size, wrappedLines(remark.trimmed(), letters, letters)};
        if (caption.lines.size() <= most)
            return caption;
    }
    const int letters = lettersIn(width, caption.points);
    caption.lines = caption.lines.first(most);
    caption.lines.last() = shortened(caption.lines.last() + u" …"_s, letters);
    return caption;
}

class KatalogBaski
{
public:
    KatalogBaski(const KatalogSayfasi &sayfa, const Katalog &katalog, const QString &ResimYolu)
        : m_sayfa(sayfa),
          m_katalog(katalog),
          m_folder(ResimYolu),
          m_captionPoints(captionSize(katalog, sayfa.pictureWidth)),
          m_document(u"Katalog "_s + katalog.KatAdi)
    {
    }

    std::optional<PrintDocument> write(const PictureProgress &progress);

private:
    void Baslikyaz();
    void cell(const KatalogSatiri &satir, PagePoint box);
    void picture(const KatalogSatiri &satir, PagePoint box);
    Photo read(const QString &path);
    void texts(const Caption &caption, Twips x, Twips y);
    void useFont(double points) { m_document.setFont({u"Courier New Tur"_s, points}); }

    const KatalogSayfasi &m_sayfa;
    const Katalog &m_katalog;
    QString m_folder;
    double m_captionPoints;
    QHash<QString, Photo> m_photos; ///< by their files; models can recur
    PrintDocument m_document;
};

std::optional<PrintDocument> KatalogBaski::write(const PictureProgress &progress)
{
    const int total = int(m_katalog.satirlar.size());
    for (int i = 0; i < total; ++i) {
        if (!progress(i, total))
            return std::nullopt;
        const int place = i % m_sayfa.perPage();
        if (place == 0)
            Baslikyaz();
        cell(m_katalog.satirlar[i], m_sayfa.box(place));
    }
    return m_document;
}

void KatalogBaski::Baslikyaz()
{
    m_document.newPage();
    useFont(headerPoints);
    const QString name = u"KATALOG : "_s + onOneLine(m_katalog.KatAdi);
    m_document.text({KatalogSayfasi::left, m_sayfa.header},
                    shortened(name, headerLetters).leftJustified(headerLetters) + u"Sayfa : "_s +
                        QString::number(m_document.pages().size()));
}

void KatalogBaski::cell(const KatalogSatiri &satir, PagePoint box)
{
    picture(satir, box);
    const Twips captionY = box.y + m_sayfa.pictureHeight + captionDistance;
    const Twips captionHeight = lineHeight(m_captionPoints);
    const Twips remarkHeight = textHeight - captionDistance - captionHeight;
    texts(captionOf(satir, m_sayfa.pictureWidth, m_captionPoints), box.x, captionY);
    texts(remarkOf(satir.kataciklama, m_sayfa.pictureWidth, remarkHeight, m_captionPoints), box.x,
          captionY + captionHeight);
}

void KatalogBaski::texts(const Caption &caption, Twips x, Twips y)
{
    useFont(caption.points);
    for (const QString &line : caption.lines) {
        if (!line.isEmpty())
            m_document.text({x, y}, line);
        y += lineHeight(caption.points);
    }
}

/// In the middle of its box, as large as its proportions allow.
void KatalogBaski::picture(const KatalogSatiri &satir, PagePoint box)
{
    m_document.frame({box.x - frameDistance, box.y - frameDistance},
                     m_sayfa.pictureWidth + frameDistance * 2,
                     m_sayfa.pictureHeight + frameDistance * 2, hairline);
    const QString path = modelPicturePath(m_folder, satir.Model, satir.KisaAD);
    const Photo photo = path.isEmpty() ? Photo() : read(path);
    if (photo.jpeg.isEmpty())
        return;
    const QSizeF room(m_sayfa.pictureWidth.count(), m_sayfa.pictureHeight.count());
    const QSizeF size = QSizeF(photo.size).scaled(room, Qt::KeepAspectRatio);
    const QSizeF margin = (room - size) / 2;
    m_document.photo({box.x + Twips(margin.width()), box.y + Twips(margin.height())},
                     Twips(size.width()), Twips(size.height()), photo.jpeg);
}

Photo KatalogBaski::read(const QString &path)
{
    if (const auto known = m_photos.constFind(path); known != m_photos.constEnd())
        return *known;
    const QSizeF most(m_sayfa.pictureWidth.pixels(picturesPerInch),
                      m_sayfa.pictureHeight.pixels(picturesPerInch));
    const QImage image = loadPicture(path, most.toSize()).image;
    const Photo photo{image.isNull() ? QByteArray() : jpegBytes(image), image.size()};
    return *m_photos.insert(path, photo);
}

} // namespace

PagePoint KatalogSayfasi::box(int cell) const
{
    return {left + (pictureWidth + gap) * (cell % across),
            top + (pictureHeight + extra) * (cell / across)};
}

std::optional<PrintDocument> Katalog_35(const Katalog &katalog, const QString &ResimYolu,
                                        const PictureProgress &progress)
{
    return KatalogBaski(katalogSayfasi35, katalog, ResimYolu).write(progress);
}

std::optional<PrintDocument> Katalog_46(const Katalog &katalog, const QString &ResimYolu,
                                        const PictureProgress &progress)
{
    return KatalogBaski(katalogSayfasi46, katalog, ResimYolu).write(progress);
}

} // namespace kuyum
