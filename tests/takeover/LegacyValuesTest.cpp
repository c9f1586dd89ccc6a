#include "TestRegistry.h"

#include "LegacyValues.h"

#include <cmath>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

class LegacyValuesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void currencyStaysExact_data()
    {
        QTest::addColumn<qint64>("tenThousandths");
        QTest::addColumn<QString>("expected");
        QTest::newRow("price") << qint64(123456) << u"12.3456"_s;
        QTest::newRow("negative") << qint64(-5) << u"-0.0005"_s;
        QTest::newRow("last number") << qint64(999'999'999'999'999) << u"99999999999.9999"_s;
        QTest::newRow("first text") << qint64(1'000'000'000'000'000) << u"100000000000.0000"_s;
        QTest::newRow("largest") << std::numeric_limits<qint64>::max() << u"922337203685477.5807"_s;
        QTest::newRow("smallest") << std::numeric_limits<qint64>::min()
                                  << u"-922337203685477.5808"_s;
    }
    void currencyStaysExact()
    {
        QFETCH(qint64, tenThousandths);
        QFETCH(QString, expected);
        RawValue value;
        storeCurrency(tenThousandths, value);
        if (value.kind == RawValue::Kind::Real) {
            QCOMPARE(QString::number(value.real, 'f', 4), expected);
            QCOMPARE(std::llround(value.real * 10000), tenThousandths);
        } else {
            QCOMPARE(value.kind, RawValue::Kind::Text);
            QCOMPARE(QString::fromStdString(value.bytes), expected);
        }
    }

    void decimalIsANumberOnlyWhileThatHoldsIt()
    {
        RawValue value;
        storeDecimal("-12.3400", value);
        QCOMPARE(value.real, -12.34);
        storeDecimal("0.000000000000001", value);
        QCOMPARE(value.kind, RawValue::Kind::Real);
        storeDecimal("1234567890123456.7", value);
        QCOMPARE(value.bytes, std::string("1234567890123456.7"));
    }

    void datesCountFromTheirOrigin_data()
    {
        QTest::addColumn<double>("days");
        QTest::addColumn<QString>("expected");
        QTest::newRow("no date of the product") << 36526.0 << u"2000-01-01"_s;
        QTest::newRow("origin") << 0.0 << u"1899-12-30"_s;
        QTest::newRow("time only") << 0.4375 << u"1899-12-30T10:30:00"_s;
        QTest::newRow("time runs forward before the origin") << -1.25 << u"1899-12-29T06:00:00"_s;
        QTest::newRow("to the nearest second") << 36526.0 + 86399.6 / 86400 << u"2000-01-02"_s;
        QTest::newRow("last day") << 2958465.0 << u"9999-12-31"_s;
        QTest::newRow("first year") << -657434.0 << u"0100-01-01"_s;
    }
    void datesCountFromTheirOrigin()
    {
        QFETCH(double, days);
        QFETCH(QString, expected);
        DateStorer dates;
        RawValue value;
        for (int again = 0; again < 2; ++again) {
            dates.store(days, value);
            QCOMPARE(value.kind, RawValue::Kind::Text);
            QCOMPARE(QString::fromStdString(value.bytes), expected);
        }
    }

    void whatIsNoDateStaysItsNumber()
    {
        DateStorer dates;
        RawValue value;
        for (const double days : {3e6, -1e300, 2958466.0}) {
            dates.store(days, value);
            QCOMPARE(value.kind, RawValue::Kind::Real);
            QCOMPARE(value.real, days);
        }
    }

    void guidReadsItsBytesInTheirOrder()
    {
        RawValue value;
        storeGuid("\x33\x22\x11\x00\x55\x44\x77\x66\x88\x99\xaa\xbb\xcc\xdd\xee\xff", value);
        QCOMPARE(value.bytes, std::string("{00112233-4455-6677-8899-AABBCCDDEEFF}"));
    }

    void minusZeroIsZeroAndOtherBitsStay()
    {
        RawValue value;
        storeReal(-0.0, value);
        QVERIFY(!std::signbit(value.real));
        const double odd = std::nextafter(0.1, 1.0);
        storeReal(odd, value);
        QCOMPARE(std::memcmp(&value.real, &odd, sizeof odd), 0);
    }

    void defaultsAreTakenWhenTheyArePlainValues()
    {
        QCOMPARE(defaultValueOf(FieldType::Integer, u"=0"_s), QVariant(0));
        QCOMPARE(defaultValueOf(FieldType::Double, u"1.5"_s), QVariant(1.5));
        QCOMPARE(defaultValueOf(FieldType::Text, u"\"a\"\"b\""_s), QVariant(u"a\"b"_s));
        QCOMPARE(defaultValueOf(FieldType::Boolean, u"Yes"_s), QVariant(1));
        QVERIFY(!defaultValueOf(FieldType::Date, u"Date()"_s).isValid());
        QVERIFY(!defaultValueOf(FieldType::Text, u"Left(\"a\",1)"_s).isValid());
    }
};

KUYUM_TEST(LegacyValuesTest)

} // namespace kuyum

#include "LegacyValuesTest.moc"
