#include "LookupModel.h"
#include "TestRegistry.h"

#include <QAbstractItemModelTester>
#include <QtTest>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

/// Rows made up as they are read, with a hidden column.
class MadeUpRows : public LookupRows
{
public:
    explicit MadeUpRows(int count, int failingAt = -1) : m_count(count), m_failingAt(failingAt)
    {
        m_columns = {{u"No"_s, 1000_tw}, {u"Ad"_s, 1000_tw}, {u"Gizli"_s, 0_tw}};
    }

    bool next(QVariantList &row) override
    {
        if (m_at == m_failingAt)
            throw std::runtime_error("disk");
        if (m_at == m_count)
            return false;
        static const QStringList names = {u"İnci"_s, u"ışık"_s, u"ÇATAL"_s, u"cam"_s, u"zincir"_s};
        const int number = (m_at * 7919) % m_count;
        row = {number, names[number % names.size()], u"gizli"_s};
        ++m_at;
        return true;
    }

private:
    int m_count;
    int m_failingAt;
    int m_at = 0;
};

QStringList texts(const LookupModel &model, int column)
{
    QStringList result;
    for (int row = 0; row < model.rowCount(); ++row)
        result.append(model.index(row, column).data().toString());
    return result;
}

} // namespace

class LookupModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hasItsFirstPageAtOnceAndTheRestLater()
    {
        LookupModel model;
        model.open(std::make_unique<MadeUpRows>(20000));
        QVERIFY(model.rowCount() >= 64);
        QVERIFY(model.readCount() < 1000);
        QVERIFY(model.canFetchMore({}));
        const QAbstractItemModelTester tester(
            &model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QTRY_VERIFY(model.isComplete());
        QCOMPARE(model.rowCount(), 20000);
    }

    void narrowsByEveryWordInShownColumns()
    {
        LookupModel model;
        const QAbstractItemModelTester tester(
            &model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        model.open(std::make_unique<MadeUpRows>(3000));
        model.narrow(u"INC"_s);
        model.waitForAll();
        QCOMPARE(model.rowCount(), 1200); // İnci and zincir
        model.narrow(u" inci 15 "_s);
        model.waitForAll();
        QVERIFY(model.rowCount() > 0);
        for (int row = 0; row < model.rowCount(); ++row) {
            QVERIFY(model.values(row)[0].toString().contains(u"15"_s));
            QVERIFY(model.values(row)[1].toString() != u"cam"_s);
        }
        model.narrow(u"gizli"_s);
        model.waitForAll();
        QCOMPARE(model.rowCount(), 0);
        model.narrow(QString());
        model.waitForAll();
        QCOMPARE(model.rowCount(), 3000);
    }

    void sortsTextsInTurkishOrderAndNumbersByValue()
    {
        LookupModel model;
        const QAbstractItemModelTester tester(
            &model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        model.open(std::make_unique<MadeUpRows>(2000));
        model.narrow(u"1"_s);
        model.sort(1);
        model.waitForAll();
        QStringList names = texts(model, 1);
        names.removeDuplicates();
        QCOMPARE(names, (QStringList{u"cam"_s, u"ÇATAL"_s, u"ışık"_s, u"İnci"_s, u"zincir"_s}));
        QVERIFY(model.rowCount() < 2000);

        model.narrow(QString());
        model.sort(0, Qt::DescendingOrder);
        model.waitForAll();
        QCOMPARE(texts(model, 0).first(3), (QStringList{u"1999"_s, u"1998"_s, u"1997"_s}));
        QCOMPARE(texts(model, 0).last(), u"0"_s);

        model.append({5000, u"son"_s, QString()});
        QCOMPARE(texts(model, 0).last(), u"5000"_s);
    }

    void tellsWhenTheRowsBreakOff()
    {
        LookupModel model;
        QSignalSpy failed(&model, &LookupModel::failed);
        model.open(std::make_unique<MadeUpRows>(500, 200));
        QTRY_COMPARE(failed.size(), 1);
        QVERIFY(model.isComplete());
        QCOMPARE(model.rowCount(), 200);
    }
};

KUYUM_TEST(LookupModelTest)

} // namespace kuyum

#include "LookupModelTest.moc"
