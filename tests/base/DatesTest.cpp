#include "Dates.h"
#include "TestRegistry.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

class DatesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsTyped_data();
    void readsTyped();
    void storesAndShows();
};

void DatesTest::readsTyped_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QDate>("date");
    QTest::newRow("full") << u"05.03.2011"_s << QDate(2011, 3, 5);
    QTest::newRow("short") << u"5.3.11"_s << QDate(2011, 3, 5);
    QTest::newRow("last century") << u"5.3.85"_s << QDate(1985, 3, 5);
    QTest::newRow("slashes") << u"5/3/2011"_s << QDate(2011, 3, 5);
    QTest::newRow("leap day") << u"29.02.2012"_s << QDate(2012, 2, 29);
    QTest::newRow("no leap day") << u"29.02.2011"_s << QDate();
    QTest::newRow("month first") << u"03.25.2011"_s << QDate();
    QTest::newRow("mask with blanks") << u"  .  .    "_s << QDate();
    QTest::newRow("half typed") << u"05.03."_s << QDate();
    QTest::newRow("sign") << u"-5.03.2011"_s << QDate();
    QTest::newRow("year of three digits") << u"5.3.011"_s << QDate();
    QTest::newRow("words") << u"5 Mart 2011"_s << QDate();
}

void DatesTest::readsTyped()
{
    QFETCH(QString, text);
    QTEST(parseDate(text), "date");
}

void DatesTest::storesAndShows()
{
    const QDateTime midnight(QDate(2011, 3, 5), QTime(0, 0), Qt::UTC);
    const QDateTime noon(QDate(2011, 3, 5), QTime(12, 30, 15), Qt::UTC);
    QCOMPARE(isoText(midnight), u"2011-03-05"_s);
    QCOMPARE(isoText(noon), u"2011-03-05T12:30:15"_s);
    QCOMPARE(parseIso(isoText(midnight)), midnight);
    QCOMPARE(parseIso(isoText(noon)), noon);
    QVERIFY(!parseIso(u"2011-13-05").isValid());
    QCOMPARE(formatDateTime(midnight), u"05.03.2011"_s);
    QCOMPARE(formatDateTime(noon), u"05.03.2011 12:30:15"_s);
    QCOMPARE(formatDate(QDate()), QString());
}

KUYUM_TEST(DatesTest)

} // namespace kuyum

#include "DatesTest.moc"
