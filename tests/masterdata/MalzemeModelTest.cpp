#include "MalzemeModel.h"
#include "ModelStore.h"
#include "TestRegistry.h"

#include <QAbstractItemModelTester>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

class MalzemeModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void alwaysHasARow()
    {
        MalzemeModel model;
        const QAbstractItemModelTester tester(
            &model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QCOMPARE(model.rowCount(), 1);
        model.fill({{MalzemeTipi::Tas, u"ZRK"_s, 7, 2}, {MalzemeTipi::YariMamul, u"K"_s, 8, 1}});
        model.addRow();
        QCOMPARE(model.rowCount(), 3);
        model.removeRow(1);
        model.removeRow(1);
        QCOMPARE(model.rowAt(0).Kod, u"ZRK"_s);
        model.removeRow(0); // the last one is blanked
        QCOMPARE(model.satirlar(), QList<ModelSatiri>({{}}));
        model.fill({});
        QCOMPARE(model.rowCount(), 1);
    }

    void anotherKindEmptiesCodeAndCount()
    {
        MalzemeModel model;
        const ModelSatiri stone{MalzemeTipi::Tas, u"ZRK"_s, 7, 2};
        model.fill({stone});
        model.setTip(0, MalzemeTipi::Tas);
        QCOMPARE(model.rowAt(0), stone); // passing through with Enter costs nothing
        model.setTip(0, MalzemeTipi::YariMamul);
        QCOMPARE(model.rowAt(0), ModelSatiri({MalzemeTipi::YariMamul, {}, 0, 0}));
        QVERIFY(model.setData(model.index(0, MalzemeModel::adetColumn), u"1,5"_s));
        QCOMPARE(model.rowAt(0).M_Adet, 1.5);

        model.fill({});
        model.setMalzeme(0, {9, u"K-9"_s});
        QCOMPARE(model.index(0, MalzemeModel::tipColumn).data().toString(), u"Yarı Mamul"_s);
    }
};

KUYUM_TEST(MalzemeModelTest)

} // namespace kuyum

#include "MalzemeModelTest.moc"
