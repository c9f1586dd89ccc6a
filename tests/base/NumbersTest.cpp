#include "Numbers.h"
#include "TestRegistry.h"

#include <limits>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

class NumbersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsTyped_data();
    void readsTyped();
    void rounds_data();
    void rounds();
    void formats_data();
    void formats();
    void writesSqlNumbers();
};

void NumbersTest::readsTyped_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("leading");
    QTest::addColumn<bool>("numeric");
    QTest::newRow("empty") << u""_s << 0.0 << false;
    QTest::newRow("blank around") << u" 12 "_s << 12.0 << true;
    QTest::newRow("comma") << u"1,5"_s << 1.5 << true;
    QTest::newRow("point first") << u".5"_s << 0.5 << true;
    QTest::newRow("point alone") << u"."_s << 0.0 << false;
    QTest::newRow("sign alone") << u"-"_s << 0.0 << false;
    QTest::newRow("negative") << u"-3"_s << -3.0 << true;
    QTest::newRow("unit behind") << u"12a"_s << 12.0 << false;
    QTest::newRow("two points") << u"1.2.3"_s << 1.2 << false;
    QTest::newRow("exponent") << u"1e5"_s << 1.0 << false;
    QTest::newRow("label") << u"1600500012346"_s << 1600500012346.0 << true;
}

void NumbersTest::readsTyped()
{
    QFETCH(QString, text);
    QTEST(leadingNumber(text), "leading");
    QTEST(isNumeric(text), "numeric");
}

void NumbersTest::rounds_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<double>("rounded");
    QTest::newRow("half up though binary is below") << 2.675 << 2 << 2.68;
    QTest::newRow("half of a product") << 0.2 * 13.075 << 2 << 2.62;
    QTest::newRow("half away from zero") << -1.005 << 2 << -1.01;
    QTest::newRow("below half") << 1.0049 << 2 << 1.0;
    QTest::newRow("carry through") << 9.999 << 2 << 10.0;
    QTest::newRow("small") << 0.004 << 2 << 0.0;
    QTest::newRow("small carry") << 0.005 << 2 << 0.01;
    QTest::newRow("whole") << 2.5 << 0 << 3.0;
    QTest::newRow("large") << 123456789012.345 << 2 << 123456789012.35;
    QTest::newRow("huge") << 1e300 << 2 << 1e300;
}

void NumbersTest::rounds()
{
    QFETCH(double, value);
    QFETCH(int, decimals);
    QTEST(roundDecimal(value, decimals), "rounded");
}

void NumbersTest::formats_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("picture");
    QTest::addColumn<QString>("text");
    QTest::newRow("zero") << 0.0 << u"##0.00"_s << u"0.00"_s;
    QTest::newRow("grams") << 1234.5 << u"##0.00"_s << u"1234.50"_s;
    QTest::newRow("tie") << 13.075 << u"##0.00"_s << u"13.08"_s;
    QTest::newRow("negative") << -0.5 << u"##0.00"_s << u"-0.50"_s;
    QTest::newRow("no negative zero") << -0.001 << u"##0.00"_s << u"0.00"_s;
    QTest::newRow("coefficient") << 0.016131 << u"#0.000000"_s << u"0.016131"_s;
    QTest::newRow("thousands") << 1234567.0 << u"#,###"_s << u"1,234,567"_s;
    QTest::newRow("thousands of zero") << 0.0 << u"#,###"_s << u""_s;
    QTest::newRow("type number") << 5.0 << u"000"_s << u"005"_s;
    QTest::newRow("type number overflow") << 1234.0 << u"000"_s << u"1234"_s;
    QTest::newRow("karat") << 585.0 << u"#0.0"_s << u"585.0"_s;
    QTest::newRow("optional decimals") << 1.5 << u"0.##"_s << u"1.5"_s;
    QTest::newRow("not finite") << std::numeric_limits<double>::infinity() << u"0.00"_s << u"inf"_s;
}

void NumbersTest::formats()
{
    QFETCH(double, value);
    QFETCH(QString, picture);
    QTEST(formatNumber(value, picture), "text");
}

void NumbersTest::writesSqlNumbers()
{
    QCOMPARE(sqlNumber(12), u" 12"_s);
    QCOMPARE(sqlNumber(-12), u"-12"_s);
    QCOMPARE(sqlNumber(0.5), u" 0.5"_s);
    QCOMPARE(plainNumber(0.1 + 0.2), u"0.30000000000000004"_s);
    QCOMPARE(plainNumber(986.94), u"986.94"_s);
    QCOMPARE(plainNumber(1e-7), u"0.0000001"_s);
}

KUYUM_TEST(NumbersTest)

} // namespace kuyum

#include "NumbersTest.moc"
