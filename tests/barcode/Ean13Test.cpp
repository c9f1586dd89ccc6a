#include "Ean13.h"
#include "ProductLabel.h"
#include "TestRegistry.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

class Ean13Test : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fillsCutsAndChecks_data()
    {
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("digits");
        QTest::newRow("twelve digits") << u"590123412345"_s << u"5901234123457"_s;
        QTest::newRow("filled from the left") << u"12345"_s << u"0000000123457"_s;
        QTest::newRow("wrong check digit") << u"5901234123450"_s << u"5901234123457"_s;
        QTest::newRow("too long") << u"160050001234567"_s << u"1600500012344"_s;
        QTest::newRow("check digit 0") << u"160010000042"_s << u"1600100000420"_s;
        QTest::newRow("nothing") << QString() << u"0000000000000"_s;
    }
    void fillsCutsAndChecks()
    {
        QFETCH(QString, code);
        QString captions;
        QString modules;
        encodeEan13(code, [&](const BarPart &part) {
            captions += part.caption;
            modules += part.modules;
        });
        QTEST(captions, "digits");
        QCOMPARE(modules.size(), 102);
    }

    void partsStandInTheirPlaces()
    {
        QStringList parts;
        encodeEan13(u"900000000000"_s, [&](const BarPart &part) {
            parts.append(part.modules + (part.guard ? u"|"_s : part.caption));
        });
        // 9 is told by the parities ABBABA of the left half.
        const QString a = u"OOOXXOX0"_s;
        const QString b = u"OXOOXXX0"_s;
        const QString c = u"XXXOOXO0"_s;
        QCOMPARE(parts, (QStringList{u"OOOOOOO9"_s, u"XOX|"_s, a, b, b, a, b, a, u"OXOXO|"_s, c, c,
                                     c, c, c, u"XXOOXXO1"_s, u"XOX|"_s}));
    }

    void takesTheFirstCharacterForZeroAndRefusesLaterOnes()
    {
        QString withLetter = ean13Modules(u"A23456789012"_s);
        QCOMPARE(withLetter, ean13Modules(u"023456789012"_s));

        QString captions;
        const auto take = [&](const BarPart &part) { captions += part.caption; };
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, encodeEan13(u"1234x6789012"_s, take));
        QCOMPARE(captions, u"1234"_s);
    }

    void numbersAndLabelsReadEachOther()
    {
        QCOMPARE(barcodeNumber({5, 1234}), u"160050001234"_s);
        QCOMPARE(barcodeNumber({1234, 12345678}), u"16123412345678"_s);
        const std::optional<ProductLabel> label = readLabel(barcodeNumber({5, 1234}) + u'9');
        QVERIFY(label);
        QCOMPARE(label->TipID, 5);
        QCOMPARE(label->Model_ID, 1234);
    }
};

KUYUM_TEST(Ean13Test)

} // namespace kuyum

#include "Ean13Test.moc"
