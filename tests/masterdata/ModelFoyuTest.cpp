#include "ModelFoyu.h"
#include "TestRegistry.h"

#include <QFontMetricsF>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

struct Item
{
    QRectF box;
    QString text; ///< empty for a picture
};

/// Everything on the page with the room that it takes, in twips. The lines of
/// a frame count as one box.
QList<Item> itemsOf(const PrintDocument &document)
{
    QList<Item> items;
    for (const PageItem &item : document.pages().first().items) {
        if (const auto *text = std::get_if<PageText>(&item)) {
            const double height = Twips::fromPoints(text->font.points * 1.2).count();
            const double width =
                Twips::fromPoints(text->font.points * 0.6).count() * double(text->text.size());
            items.append(
                {QRectF(text->at.x.count(), text->at.y.count(), width, height), text->text});
        } else if (const auto *picture = std::get_if<PagePicture>(&item)) {
            items.append({QRectF(picture->at.x.count(), picture->at.y.count(),
                                 picture->width.count(), picture->height.count()),
                          {}});
        }
    }
    return items;
}

QList<ModelSatiri> stones(int count, const QString &code = u"ZRK"_s)
{
    QList<ModelSatiri> rows;
    for (int i = 1; i <= count; ++i)
        rows.append({MalzemeTipi::Tas, code + QString::number(i), i, double(i)});
    return rows;
}

QList<ModelSatiri> molds(int count)
{
    QList<ModelSatiri> rows;
    for (int i = 1; i <= count; ++i)
        rows.append({MalzemeTipi::YariMamul, u"K-%1"_s.arg(i), i, double(i)});
    return rows;
}

} // namespace

class ModelFoyuTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        m_folder = m_dir->path();
        QDir(m_folder).mkpath(u"KLP"_s);
        QImage image(60, 40, QImage::Format_RGB32);
        image.fill(Qt::darkYellow);
        image.save(m_folder + u"/A75.jpg"_s);
        for (int i = 1; i <= 20; ++i)
            image.save(m_folder + u"/KLP/K-%1.jpg"_s.arg(i));
    }

    void standsAtItsPlaces();
    void neverOverlapsOrLeavesThePage_data();
    void neverOverlapsOrLeavesThePage();
    void countsWhatFindsNoRoom();
    void framesAMissingPicture();

private:
    ModelFoyu sheet(const QList<ModelSatiri> &rows, const QString &model = u"A75"_s) const
    {
        return modelFoyu({model, 1, 2.5, rows, 0}, {1, u"Yüzük"_s, u"YZK"_s}, m_folder);
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_folder;
};

void ModelFoyuTest::standsAtItsPlaces()
{
    const QList<Item> items = itemsOf(sheet(stones(5) + molds(1)).document);
    const auto place = [&](const QString &text) {
        const auto found = std::find_if(items.begin(), items.end(),
                                        [&](const Item &item) { return item.text == text; });
        return found == items.end() ? QPointF(-1, -1) : found->box.topLeft();
    };
    QCOMPARE(place(u"MODEL : A75"_s), QPointF(500, 500));
    QCOMPARE(place(u"ZRK1    1 Ad"_s), QPointF(500, 8000));
    QCOMPARE(place(u"ZRK4    4 Ad"_s).y(), 8000.0);
    QCOMPARE(place(u"ZRK5    5 Ad"_s), QPointF(500, 10000));
    QList<QRectF> pictures;
    for (const Item &item : items) {
        if (item.text.isEmpty())
            pictures.append(item.box);
    }
    QCOMPARE(pictures.size(), 2);
    QCOMPARE(pictures[0].left(), 7400.0);
    QCOMPARE(pictures[0].right(), 10500.0);
    QCOMPARE(pictures[1], QRectF(500, 12000, 1950, 1500));
}

void ModelFoyuTest::neverOverlapsOrLeavesThePage_data()
{
    QTest::addColumn<QList<ModelSatiri>>("rows");
    QTest::addColumn<qsizetype>("leftOut");
    QTest::newRow("nothing") << QList<ModelSatiri>() << qsizetype(0);
    QTest::newRow("a few") << stones(7) + molds(3) << qsizetype(0);
    QTest::newRow("the promised number") << molds(6) + stones(24) << qsizetype(0);
    QTest::newRow("molds only") << molds(16) << qsizetype(0);
    QTest::newRow("stones only") << stones(20) << qsizetype(0);
    QTest::newRow("long codes") << stones(24, u"ABCDEFGHİJKLMNOPQR"_s) + molds(6) << qsizetype(0);
    QTest::newRow("longer than a column")
        << stones(8, QString(48, u'W')) + molds(4) << qsizetype(0);
    QTest::newRow("too many") << stones(200) + molds(20) << qsizetype(156);
}

void ModelFoyuTest::neverOverlapsOrLeavesThePage()
{
    QFETCH(QList<ModelSatiri>, rows);
    const ModelFoyu result = sheet(rows);
    QTEST(result.leftOut, "leftOut");
    QCOMPARE(result.document.pages().size(), 1);
    const QRectF paper(0, 0, result.document.width().count(), result.document.height().count());
    constexpr double margin = 400;
    const QList<Item> items = itemsOf(result.document);
    for (qsizetype i = 0; i < items.size(); ++i) {
        const Item &item = items[i];
        QVERIFY2(paper.adjusted(margin, margin, -margin, -margin).contains(item.box),
                 qPrintable(item.text));
        for (qsizetype j = 0; j < i; ++j)
            QVERIFY2(!item.box.intersects(items[j].box),
                     qPrintable(item.text + u" / "_s + items[j].text));
    }
}

void ModelFoyuTest::countsWhatFindsNoRoom()
{
    // Many stones leave two lines to the molds; none of the promised is lost.
    const QList<Item> items = itemsOf(sheet(stones(200) + molds(6)).document);
    const auto pictures = std::count_if(items.begin(), items.end(),
                                        [](const Item &item) { return item.text.isEmpty(); });
    QCOMPARE(pictures, 7);
    QVERIFY(std::count_if(items.begin(), items.end(),
                          [](const Item &item) { return item.text.startsWith(u"ZRK"_s); }) >= 24);
}

void ModelFoyuTest::framesAMissingPicture()
{
    QFile broken(m_folder + u"/KLP/K-1.jpg"_s);
    QVERIFY(broken.open(QIODevice::WriteOnly));
    broken.write("kırık");
    broken.close();
    const ModelFoyu result = sheet(molds(2), u"Resimsiz"_s);
    int lines = 0;
    QStringList texts;
    for (const PageItem &item : result.document.pages().first().items) {
        lines += std::holds_alternative<PageLine>(item) ? 1 : 0;
        if (const auto *text = std::get_if<PageText>(&item))
            texts.append(text->text);
    }
    QCOMPARE(lines, 8); // the model's frame and that of K-1
    QVERIFY(texts.contains(u"Resimsiz"_s));
    QVERIFY(texts.contains(u"K-1"_s));
    QVERIFY(!texts.contains(u"K-2"_s));
}

KUYUM_TEST(ModelFoyuTest)

} // namespace kuyum

#include "ModelFoyuTest.moc"
