#include "ModelFoyu.h"

#include "Numbers.h"
#include "PictureFiles.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

constexpr double pictureDpi = 300;
constexpr QStringView fontName = u"Courier New Tur";

constexpr Twips left = 500_tw;
constexpr Twips right = 11400_tw;
constexpr Twips headerY = 500_tw;
constexpr double headerPoints = 14;
constexpr double factPoints = 10;
constexpr Twips factAdvance = 300_tw;

// The picture stands at the right, below the header and above the materials.
constexpr PagePoint pictureAt{7400_tw, 1300_tw};
constexpr Twips pictureWidth = Twips(10500 - 7400);
constexpr Twips pictureHeight = 6300_tw;

// The materials: four to a line, a line every 2000 twips. Where that runs out
// of page the lines of stones, which are one line of text, move together.
constexpr Twips materialsTop = 8000_tw;
constexpr Twips materialsBottom = 16400_tw;
constexpr Twips lineAdvance = 2000_tw;
constexpr Twips closeAdvance = 300_tw;
constexpr int perLine = 4;
constexpr Twips columnAdvance = Twips((11400 - 500) / perLine);
constexpr Twips moldWidth = 1950_tw;
constexpr Twips moldHeight = 1500_tw;
constexpr Twips captionSpace = 60_tw;
constexpr double smallPoints = 8;
constexpr int noLimit = 1000;
constexpr int keptMoldLines = 2; ///< that no number of stones takes away

/// How many characters of a size stand in a column, with a blank behind them.
int placesAt(double points)
{
    const Twips charWidth = Twips::fromPoints(points * 0.6);
    return int(columnAdvance.count() / charWidth.count()) - 1;
}

int linesFor(qsizetype entries)
{
    return int((entries + perLine - 1) / perLine);
}

/// Code and count in so many characters. A code that fills its eight places
/// still stands apart from its count; one that finds no room is shortened.
QString entryText(const ModelSatiri &row, qsizetype places)
{
    constexpr int codePlaces = 8;
    const QString count = plainNumber(row.M_Adet) + u" Ad"_s;
    QString code = row.isDangling() ? u"(silinmiş)"_s : row.Kod.trimmed();
    const qsizetype room = std::max<qsizetype>(1, places - count.size() - 1);
    if (code.size() > room)
        code = code.left(room - 1) + u'…';
    return code.leftJustified(std::max(codePlaces, int(code.size()) + 1)) + count;
}

class Sheet
{
public:
    Sheet(const Model &model, const ModelTipi &tip, const QString &ResimYolu)
        : m_model(model),
          m_tip(tip),
          m_ResimYolu(ResimYolu),
          m_document(u"Model Föyü "_s + model.ad)
    {
        for (const ModelSatiri &row : model.satirlar) {
            if (row.isStored() || (row.isDangling() && row.M_Adet > 0))
                (row.tip == MalzemeTipi::Tas ? m_stones : m_molds).append(row);
        }
        share();
    }

    ModelFoyu write()
    {
        header();
        picture(pictureAt, {pictureWidth, pictureHeight},
                modelPicturePath(m_ResimYolu, m_model.ad, m_tip.KisaAD), m_model.ad);
        stones();
        molds();
        return {m_document, leftOut(m_stones, m_stoneLines) + leftOut(m_molds, m_moldLines)};
    }

private:
    struct Box
    {
        Twips width;
        Twips height;
    };

    static qsizetype leftOut(const QList<ModelSatiri> &rows, int lines)
    {
        return std::max<qsizetype>(0, rows.size() - qsizetype(lines) * perLine);
    }
    static Twips column(qsizetype i) { return left + columnAdvance * double(i % perLine); }

    void share();
    void header();
    void stones();
    void molds();
    void picture(PagePoint at, Box box, const QString &path, const QString &code);
    void useFont(double points, bool bold = false)
    {
        m_document.setFont({fontName.toString(), points, bold});
    }
    double stonePoints() const;

    const Model &m_model;
    const ModelTipi &m_tip;
    const QString &m_ResimYolu;
    PrintDocument m_document;
    QList<ModelSatiri> m_stones;
    QList<ModelSatiri> m_molds;
    int m_stoneLines = 0;
    int m_moldLines = 0;
    Twips m_stoneAdvance = lineAdvance;
};

/// Shares the room between the stones, which come first, and the molds.
void Sheet::share()
{
    const double room = (materialsBottom - materialsTop).count();
    const auto fitting = [](double space, Twips advance) { return int(space / advance.count()); };

    m_stoneLines = linesFor(m_stones.size());
    m_moldLines = linesFor(m_molds.size());
    // A line of stones needs no more than its own height at the end.
    const double wanted = (m_stoneLines + m_moldLines) * lineAdvance.count() -
                          (m_moldLines == 0 ? (lineAdvance - closeAdvance).count() : 0);
    if (wanted <= room)
        return;
    m_stoneAdvance = closeAdvance;
    const double forMolds = std::min(m_moldLines, keptMoldLines) * lineAdvance.count();
    m_stoneLines = std::min(m_stoneLines, fitting(room - forMolds, closeAdvance));
    m_moldLines =
        std::min(m_moldLines, fitting(room - m_stoneLines * closeAdvance.count(), lineAdvance));
}

void Sheet::header()
{
    useFont(headerPoints, true);
    m_document.text({left, headerY}, u"MODEL : "_s + m_model.ad);
    useFont(factPoints);
    Twips y = pictureAt.y;
    for (const QString &fact :
         {u"ÜRÜN TİPİ : "_s + m_tip.UrunTipi, u"KISA AD   : "_s + m_tip.KisaAD,
          u"AĞIRLIK   : "_s + formatNumber(m_model.M_Miktar, u"##0.00") + u" gr"_s,
          u"TAŞ       : %1 çeşit"_s.arg(m_stones.size()),
          u"YARI MAMUL: %1 çeşit"_s.arg(m_molds.size())}) {
        m_document.text({left, y}, fact);
        y += factAdvance;
    }
}

/// The largest size in which every stone keeps to its column.
double Sheet::stonePoints() const
{
    const auto fits = [this](double points) {
        return std::all_of(m_stones.begin(), m_stones.end(), [points](const ModelSatiri &row) {
            return entryText(row, noLimit).size() <= placesAt(points);
        });
    };
    for (const double points : {10.0, 9.0}) {
        if (fits(points))
            return points;
    }
    return smallPoints;
}

void Sheet::stones()
{
    const double points = stonePoints();
    useFont(points);
    const qsizetype shown = std::min<qsizetype>(m_stones.size(), m_stoneLines * perLine);
    for (qsizetype i = 0; i < shown; ++i) {
        const Twips y = materialsTop + m_stoneAdvance * double(i / perLine);
        m_document.text({column(i), y}, entryText(m_stones[i], placesAt(points)));
    }
}

void Sheet::molds()
{
    const Twips top = materialsTop + m_stoneAdvance * double(m_stoneLines);
    const qsizetype shown = std::min<qsizetype>(m_molds.size(), m_moldLines * perLine);
    for (qsizetype i = 0; i < shown; ++i) {
        const ModelSatiri &row = m_molds[i];
        const PagePoint at{column(i), top + lineAdvance * double(i / perLine)};
        picture(at, {moldWidth, moldHeight}, moldPicturePath(m_ResimYolu, row.Kod), row.Kod);
        useFont(smallPoints);
        m_document.text({at.x, at.y + moldHeight + captionSpace},
                        entryText(row, placesAt(smallPoints)));
    }
}

void Sheet::picture(PagePoint at, Box box, const QString &path, const QString &code)
{
    const QSize dots(int(box.width.pixels(pictureDpi)), int(box.height.pixels(pictureDpi)));
    const QImage image = path.isEmpty() ? QImage() : loadPicture(path, dots).image;
    if (!image.isNull()) {
        m_document.picture(at, box.width, box.height, image);
        return;
    }
    m_document.frame(at, box.width, box.height);
    useFont(smallPoints);
    m_document.text({at.x + captionSpace, at.y + captionSpace}, code.trimmed());
}

} // namespace

ModelFoyu modelFoyu(const Model &model, const ModelTipi &tip, const QString &ResimYolu)
{
    return Sheet(model, tip, ResimYolu).write();
}

} // namespace kuyum
