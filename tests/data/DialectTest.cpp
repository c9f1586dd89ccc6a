#include "Database.h"
#include "SampleCompany.h"
#include "TestRegistry.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

class DialectTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void evaluates_data();
    void evaluates();
    void refuses_data();
    void refuses();
    void usesIndexes_data();
    void usesIndexes();

private:
    QTemporaryDir m_folder;
    std::unique_ptr<Database> m_db;
};

void DialectTest::initTestCase()
{
    m_db = makeSampleCompany(m_folder.filePath(u"atolye.kuyum"_s));
}

void DialectTest::evaluates_data()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<QString>("result");
    QTest::newRow("apostrophe") << u"'O''Hara'"_s << u"O'Hara"_s;
    QTest::newRow("double quotes are a text") << u"\"a'b\"\"c\""_s << u"a'b\"c"_s;
    QTest::newRow("date literal, month first") << u"#3/5/2012#"_s << u"2012-03-05"_s;
    QTest::newRow("date value") << u"DateValue('5.3.2012')"_s << u"2012-03-05"_s;
    QTest::newRow("true quotient") << u"1/4"_s << u"0.25"_s;
    QTest::newRow("joined texts") << u"'a' & 'b'"_s << u"ab"_s;
    QTest::newRow("null test") << u"IIf(IsNull(Null), 'yok', 'var')"_s << u"yok"_s;
    QTest::newRow("nested functions") << u"Left(Mid('ABCDEF', 2), 2)"_s << u"BC"_s;
    QTest::newRow("computed text is blind to case")
        << u"IIf(Left('kolye',2) = 'KO', 'evet', 'hayır')"_s << u"evet"_s;
    QTest::newRow("turkish capitals") << u"UCase('iğne')"_s << u"İĞNE"_s;
    QTest::newRow("format half up") << u"Format(2.675,'0.00')"_s << u"2.68"_s;
    QTest::newRow("like") << u"IIf('Ilgın2609' Like 'ilg?n*', 1, 0)"_s << u"1"_s;
    QTest::newRow("like with more stars than one could try")
        << u"IIf('%1' Like '%2b', 1, 0)"_s.arg(QString(200, u'a'), u"a*"_s.repeated(60)) << u"0"_s;
    QTest::newRow("like that goes back to its last star")
        << u"IIf('Kolye 12 altın 7' Like 'kol*1# *n ?', 1, 0)"_s << u"1"_s;
    QTest::newRow("top in a sub-select")
        << u"(Select Top 1 Model From Model Order by Model_ID desc)"_s << u"boş"_s;
}

void DialectTest::evaluates()
{
    QFETCH(QString, expression);
    Recordset row = m_db->query(u"Select "_s + expression + u" as x"_s);
    QVERIFY(row.next());
    QTEST(row.text(u"x"), "result");
}

void DialectTest::refuses_data()
{
    QTest::addColumn<QString>("sql");
    QTest::newRow("empty") << u" ; "_s;
    QTest::newRow("open text") << u"Select * From Tas Where Taskodu = 'x"_s;
    QTest::newRow("open bracket") << u"Select * From (Select 1"_s;
    QTest::newRow("stray bracket") << u"Select 1)"_s;
    QTest::newRow("two statements") << u"Select 1; DELETE From Tas"_s;
    QTest::newRow("a statement in brackets") << u"Select [1; DELETE From Tas --](1) From Tas"_s;
    QTest::newRow("a function in brackets") << u"Select [abs(1), max](1)"_s;
    QTest::newRow("the engine's own quotes") << u"Select ` 'x` From Tas --' `"_s;
    QTest::newRow("an end in the middle")
        << u"Select * From Tas"_s + QChar(QChar::Null) + u" Where TasID = 1"_s;
    QTest::newRow("unknown field") << u"Select Yok From Tas"_s;
    QTest::newRow("unknown table") << u"Select * From Yok"_s;
    QTest::newRow("misspelt word") << u"Selekt * From Tas"_s;
    QTest::newRow("impossible date")
        << u"Select * From DovizD Where Tarih = DateValue('30.02.2012')"_s;
    QTest::newRow("a name that cannot be one") << u"Select 1 as t22 Ayar"_s;
    QTest::newRow("digits of another script") << u"Select * From Tas Where TasID = ١"_s;
    QTest::newRow("digits of two scripts") << u"Select * From Tas Where TasID = 1١"_s;
    QTest::newRow("not a select") << u"DELETE From Tas"_s;
}

void DialectTest::refuses()
{
    QFETCH(QString, sql);
    const auto run = [this, &sql] {
        Recordset rows = m_db->query(sql);
        while (rows.next()) {
        }
    };
    QVERIFY_THROWS_EXCEPTION(DatabaseError, run());
}

void DialectTest::usesIndexes_data()
{
    QTest::addColumn<QString>("sql");
    QTest::newRow("model of any case") << u"Select * From Model Where Model = 'a75'"_s;
    QTest::newRow("lines of an order") << u"Select * From SiparisD Where SipnumD =  1"_s;
    QTest::newRow("rates of a day")
        << u"Select * From DovizD WHERE Tarih = DateValue('02.03.2012')"_s;
    QTest::newRow("customer") << u"Select * From Firma Where Firkod = 10"_s;
    QTest::newRow("orders, newest first")
        << u"Select Siptrh, Sipnum, Firadi From SiparisB, Firma Where Sipfirkod = Firkod "
           "Order by Siptrh desc, Sipnum desc;"_s;
    QTest::newRow("stones from a key on")
        << u"Select TasID, Taskodu From Tas Where Taskodu >= 'm' Order by Taskodu;"_s;
    QTest::newRow("user of any case") << u"select * from Users where user_name = 'admin'"_s;
}

void DialectTest::usesIndexes()
{
    QFETCH(QString, sql);
    const QString plan = m_db->queryPlan(sql);
    QVERIFY2(plan.contains(u"USING"_s), qPrintable(plan));
    QVERIFY2(!plan.contains(u"TEMP B-TREE"_s), qPrintable(plan));
    for (const QString &step : plan.split(u'\n'))
        QVERIFY2(!step.startsWith(u"SCAN"_s) || step.contains(u"INDEX"_s), qPrintable(plan));
}

KUYUM_TEST(DialectTest)

} // namespace kuyum

#include "DialectTest.moc"
