#include "NumberRange.h"
#include "TestRegistry.h"

#include <limits>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

class NumberRangeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesWhatTheFieldHolds_data()
    {
        QTest::addColumn<FieldType>("type");
        QTest::addColumn<double>("most");
        QTest::addColumn<double>("tooMuch");
        QTest::newRow("byte") << FieldType::Byte << 255.0 << 256.0;
        QTest::newRow("no sign") << FieldType::Byte << 0.0 << -1.0;
        QTest::newRow("16 bits") << FieldType::Integer << -32768.0 << -32769.0;
        QTest::newRow("32 bits") << FieldType::Long << 2147483647.0 << 2147483648.0;
        QTest::newRow("fraction") << FieldType::Long << 7.0 << 7.5;
        QTest::newRow("single") << FieldType::Single << 1e38 << 1e39;
        QTest::newRow("double") << FieldType::Double << 1e308
                                << std::numeric_limits<double>::infinity();
    }

    void takesWhatTheFieldHolds()
    {
        QFETCH(FieldType, type);
        QFETCH(double, most);
        QFETCH(double, tooMuch);
        QCOMPARE(whyNumberDoesNotFit({u"alan"_s, type}, most), QString());
        QVERIFY(!whyNumberDoesNotFit({u"alan"_s, type}, tooMuch).isEmpty());
    }
};

KUYUM_TEST(NumberRangeTest)

} // namespace kuyum

#include "NumberRangeTest.moc"
