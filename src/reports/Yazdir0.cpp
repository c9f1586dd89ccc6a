#include "Yazdir0.h"

#include "FixedPitchText.h"
#include "MissingPicture.h"
#include "Numbers.h"
#include "UretimSayfalari.h"
#include "UretimStore.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kuyum {

using namespace UretimOlculeri;

namespace {

constexpr double picturesPerInch = 200; ///< dots
constexpr double headPoints = 11;
constexpr Twips headCharWidth = Twips::fromPoints(headPoints * 0.6);
constexpr Twips headAdvance = 280_tw;

constexpr Twips modelWidth = 2500_tw;
constexpr Twips modelHeight = 1750_tw; ///< four rows with a line of molds fill a page
constexpr Twips besidePicture = left + modelWidth + 150_tw;

// Molds stand below the model, so many side by side, their codes below them.
constexpr int moldsPerLine = 6;
constexpr Twips moldAdvance = Twips((right - left).count() / moldsPerLine);
constexpr Twips moldWidth = 1600_tw;
constexpr Twips moldHeight = 1050_tw;
constexpr double moldPoints = 8;
constexpr Twips moldCharWidth = Twips::fromPoints(moldPoints * 0.6);
constexpr Twips moldLine = 190_tw;
constexpr Twips pictureGap = 60_tw;

QSize dots(Twips width, Twips height)
{
    return QSizeF(width.pixels(picturesPerInch), height.pixels(picturesPerInch)).toSize();
}

QString entry(const UretimMalzemesi &malzeme)
{
    return onOneLine(malzeme.kod).trimmed() + u' ' + malzemeAdedi(malzeme.adet) + u" Adet"_s;
}

QStringList entries(const QList<UretimMalzemesi> &malzemeler)
{
    QStringList result;
    for (const UretimMalzemesi &malzeme : malzemeler)
        result.append(entry(malzeme));
    return result;
}

SayfaSeridi headLine(Twips x, const QString &text, const QString &atRight)
{
    return {headAdvance, [=](PrintDocument &document, Twips y) {
                UretimSayfalari::useFont(document, headPoints, true);
                document.text({x, y}, text);
                if (!atRight.isEmpty())
                    document.text({right - headCharWidth * double(atRight.size()), y}, atRight);
            }};
}

/// What is made, and at the right edge how many of it.
QList<SayfaSeridi> headLines(Twips x, const QString &ne, double topadet)
{
    const QString adet = u"ADET : "_s + formatNumber(topadet, u"#0");
    const int width = charsFrom(x, headCharWidth);
    QList<SayfaSeridi> seritler;
    for (const QString &line : wrappedLines(ne, width - adet.size() - 2, width))
        seritler.append(headLine(x, line, seritler.isEmpty() ? adet : QString()));
    return seritler;
}

/// The order, its customer and notes, and where the row stands.
QList<SayfaSeridi> orderLines(Twips x, const UretimBlogu &blok)
{
    const UretimSatiri &satir = blok.satir;
    QList<SayfaSeridi> seritler;
    seritler += etiketliSeritler(x, u"SİPARİŞ  : "_s,
                                 QString::number(satir.SipnumD) + u"  "_s + blok.musteri.FirAdi);
    seritler += etiketliSeritler(x, u"SİP.NOTU : "_s, blok.musteri.SAck);
    seritler += etiketliSeritler(x, u"AÇIKLAMA : "_s, satir.aciklama);
    QString durum = satir.durum1;
    if (!satir.durum2.trimmed().isEmpty())
        durum += u"    URT.DUR : "_s + satir.durum2;
    seritler += etiketliSeritler(x, u"SİP.DUR  : "_s, durum);
    return seritler;
}

Twips heightOf(const QList<SayfaSeridi> &seritler)
{
    Twips height;
    for (const SayfaSeridi &serit : seritler)
        height += serit.height;
    return height;
}

/// What a block's rest stands under on a further page.
QString continued(const QString &ne)
{
    return onOneLine(ne).left(charsFrom(left) - 10) + u" (DEVAM)"_s;
}

class PictureSheet
{
public:
    PictureSheet(const UretimListesi &liste, const UretimResimleri &resimler)
        : m_liste(liste), m_resimler(resimler), m_pages(liste)
    {
    }

    PrintDocument write()
    {
        for (const UretimBlogu &blok : m_liste.bloklar)
            m_pages.put(layOut(blok));
        return m_pages.finish();
    }

private:
    SayfaBlogu layOut(const UretimBlogu &blok) const;
    SayfaSeridi pictureStrip(const UretimSatiri &satir, const QList<SayfaSeridi> &beside) const;
    SayfaSeridi moldStrip(const QList<UretimMalzemesi> &kaliplar) const;

    const UretimListesi &m_liste;
    const UretimResimleri &m_resimler;
    UretimSayfalari m_pages;
};

void draw(PrintDocument &document, const PictureRoom &box, const QImage &image, const QString &kod)
{
    if (!image.isNull()) {
        document.picture(box.at, box.width, box.height, image);
        return;
    }
    UretimSayfalari::useFont(document, moldPoints);
    missingPicture(document, box, kod);
}

/// The picture, and beside it the lines that find room there.
SayfaSeridi PictureSheet::pictureStrip(const UretimSatiri &satir,
                                       const QList<SayfaSeridi> &beside) const
{
    const Twips height = std::max(modelHeight, heightOf(beside)) + pictureGap;
    return {height, [image = m_resimler.model(satir), model = satir.model,
                     beside](PrintDocument &document, Twips y) {
                draw(document, {{left, y}, modelWidth, modelHeight}, image, model);
                for (const SayfaSeridi &serit : beside) {
                    serit.draw(document, y);
                    y += serit.height;
                }
            }};
}

SayfaSeridi PictureSheet::moldStrip(const QList<UretimMalzemesi> &kaliplar) const
{
    struct Mold
    {
        QImage image;
        QString kod;
        QStringList caption;
    };
    const int width = int(moldAdvance.count() / moldCharWidth.count()) - 1;
    QList<Mold> molds;
    qsizetype lines = 0;
    for (const UretimMalzemesi &kalip : kaliplar) {
        molds.append(
            {m_resimler.kalip(kalip.kod), kalip.kod, wrappedLines(entry(kalip), width, width)});
        lines = std::max(lines, molds.last().caption.size());
    }
    const Twips height = moldHeight + pictureGap * 2 + moldLine * double(lines);
    return {height, [molds](PrintDocument &document, Twips y) {
                for (qsizetype i = 0; i < molds.size(); ++i) {
                    const Twips x = left + moldAdvance * double(i);
                    const Mold &mold = molds[i];
                    draw(document, {{x, y}, moldWidth, moldHeight}, mold.image, mold.kod);
                    UretimSayfalari::useFont(document, moldPoints);
                    Twips lineY = y + moldHeight + pictureGap;
                    for (const QString &line : mold.caption) {
                        document.text({x, lineY}, line);
                        lineY += moldLine;
                    }
                }
            }};
}

SayfaBlogu PictureSheet::layOut(const UretimBlogu &blok) const
{
    const UretimSatiri &satir = blok.satir;
    const QString ne = satir.model.trimmed() + u"  "_s + satir.KisaAD + u"  "_s + satir.renk;
    QList<SayfaSeridi> text = headLines(besidePicture, ne, satir.topadet);
    text += orderLines(besidePicture, blok);
    text += etiketliSeritler(besidePicture, u"TAŞ      : "_s, entries(blok.taslar));
    qsizetype beside = 0;
    Twips height;
    while (beside < text.size() && height + text[beside].height <= modelHeight)
        height += text[beside++].height;

    SayfaBlogu result{{pictureStrip(satir, text.first(beside))}, continued(ne)};
    result.seritler += text.mid(beside);
    for (qsizetype i = 0; i < blok.kaliplar.size(); i += moldsPerLine)
        result.seritler.append(moldStrip(blok.kaliplar.mid(i, moldsPerLine)));
    return result;
}

SayfaBlogu textBlock(const UretimBlogu &blok)
{
    const UretimSatiri &satir = blok.satir;
    const QString ne = satir.model.trimmed() + u" ("_s + satir.KisaAD + u")  "_s + satir.renk;
    SayfaBlogu result{headLines(left, ne, satir.topadet), continued(ne)};
    result.seritler += orderLines(left, blok);
    result.seritler += etiketliSeritler(left, u"KALIP    : "_s, entries(blok.kaliplar));
    result.seritler += etiketliSeritler(left, u"TAŞ      : "_s, entries(blok.taslar));
    return result;
}

} // namespace

PrintDocument Yazdir0_1(const UretimListesi &liste, const UretimResimleri &resimler)
{
    return PictureSheet(liste, resimler).write();
}

PrintDocument Yazdir0_2(const UretimListesi &liste)
{
    UretimSayfalari pages(liste);
    for (const UretimBlogu &blok : liste.bloklar)
        pages.put(textBlock(blok));
    return pages.finish();
}

QSize modelDots()
{
    return dots(modelWidth, modelHeight);
}

QSize moldDots()
{
    return dots(moldWidth, moldHeight);
}

} // namespace kuyum
