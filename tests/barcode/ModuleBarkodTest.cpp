#include "ModuleBarkod.h"
#include "BarcodeReader.h"
#include "TestRegistry.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

class ModuleBarkodTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aSymbolErasesTheOneBelowIt()
    {
        BarkodYuzeyi surface(QSize(112, 46), 2);
        BarkodCiz(surface, u"999999999999"_s);
        BarkodCiz(surface, u"590123412345"_s);
        QCOMPARE(readBarcodes(surface.image()), QStringList{u"EAN-13:5901234123457"_s});
        // Bars from the eighth module on, one line right of the cursor.
        QCOMPARE(firstDark(surface.image(), 10), 2 * 8);
    }

    void heightsAndWidthsAreUnitsOfTheSurface()
    {
        BarkodYuzeyi surface(QSize(400, 120), 1);
        BarkodCiz(surface, u"590123412345"_s, {60, 70, 3});
        const QList<int> runs = runsOfDots(surface.image(), 20);
        QVERIFY(std::all_of(runs.begin(), runs.end(), [](int dots) { return dots % 3 == 0; }));
        QCOMPARE(std::accumulate(runs.begin(), runs.end(), 0), 95 * 3);
        const auto isDark = [&](int x, int y) { return qGray(surface.image().pixel(x, y)) < 128; };
        const int guard = 1 + 7 * 3;
        QVERIFY(isDark(guard, 70) && !isDark(guard, 71));
    }

    void captionsStandBelowTheirBars()
    {
        BarkodYuzeyi surface(QSize(112, 46), 2);
        BarkodCiz(surface, u"590123412345"_s);
        // The first digit stands in front of the symbol, below the quiet zone.
        const int below = 2 * 36 + 8;
        QVERIFY(firstDark(surface.image(), below) < 2 * 8);
        QVERIFY(firstDark(surface.image(), below) >= 2 * 2);
    }

    void stopsAtACharacterThatIsNoDigit()
    {
        BarkodYuzeyi whole(QSize(112, 46), 2);
        BarkodCiz(whole, u"123456789012"_s);
        BarkodYuzeyi surface(QSize(112, 46), 2);
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, BarkodCiz(surface, u"12345x789012"_s));
        const QRect drawn(0, 0, 2 * (7 + 3 + 4 * 7), 2 * 30);
        QCOMPARE(surface.image().copy(drawn), whole.image().copy(drawn));
        QVERIFY(surface.image() != whole.image());
    }

private:
    static int firstDark(const QImage &image, int row)
    {
        int x = 0;
        while (x < image.width() && qGray(image.pixel(x, row)) >= 128)
            ++x;
        return x;
    }
};

KUYUM_TEST(ModuleBarkodTest)

} // namespace kuyum

#include "ModuleBarkodTest.moc"
