#include "RaporGrid.h"
#include "RaporModel.h"
#include "TestRegistry.h"

#include <QAbstractItemModelTester>
#include <QClipboard>
#include <QHeaderView>
#include <QScrollBar>
#include <QTableView>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

using Kind = ReportColumnKind;

/// Two groups with their totals, the report's total, and a hidden column.
ReportTable groups()
{
    ReportTable table;
    table.columns = {{u"KOD"_s},
                     {u"gizli"_s, Kind::Number, {}, true},
                     {u"GR"_s, Kind::Number, u"##0.00"_s},
                     {u"TARİH"_s, Kind::Date}};
    const auto add = [&](const QString &code, const QVariant &grams, QDate date,
                         ReportRowKind kind = ReportRowKind::Line) {
        table.rows.append(ReportRow{{code, 7, grams, date.isValid() ? date : QVariant()}, kind});
    };
    add(u"Icerde ------>"_s, {}, {}, ReportRowKind::Caption);
    add(u"zincir"_s, 2.0, QDate(2012, 3, 1));
    add(u"İnci"_s, 10.0, QDate(2011, 12, 31));
    add(u"ışık"_s, {}, {});
    add(u"cam\tkesme"_s, 10.0, QDate(2012, 1, 5));
    add(u"Toplam"_s, 22.0, {}, ReportRowKind::Total);
    add(u"Disarda ----->"_s, {}, {}, ReportRowKind::Caption);
    add(u"b"_s, 1.0, {});
    add(u"a"_s, 3.0, {});
    add(u"Toplam"_s, 26.0, {}, ReportRowKind::Total);
    return table;
}

QStringList codes(const RaporGrid &grid)
{
    QStringList result;
    for (const ReportRow &row : grid.table().rows)
        result.append(row.values[0].toString());
    return result;
}

ReportTable longTable(int rows, int columns)
{
    ReportTable table;
    for (int column = 0; column < columns; ++column)
        table.columns.append({u"Sütun %1"_s.arg(column), Kind::Number, u"##0.00"_s});
    for (int row = 0; row <= rows; ++row) {
        const auto kind = row == rows ? ReportRowKind::Total : ReportRowKind::Line;
        table.rows.append(ReportRow{QVariantList(columns, double(row * 7919 % rows)), kind});
    }
    return table;
}

} // namespace

class RaporGridTest : public QObject
{
    Q_OBJECT

private:
    static void show(QWidget &grid)
    {
        grid.show();
        grid.activateWindow();
        grid.setFocus();
        QVERIFY(QTest::qWaitForWindowActive(&grid));
    }

private Q_SLOTS:
    void sortsLinesWithinTheirGroups()
    {
        RaporGrid grid;
        const QAbstractItemModelTester tester(
            grid.rows()->model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        grid.setTable(groups());
        show(grid);
        const QStringList own = codes(grid);
        const auto expect = [&](const QStringList &first, const QStringList &second) {
            QStringList wanted{u"Icerde ------>"_s};
            wanted += first;
            wanted.append({u"Toplam"_s, u"Disarda ----->"_s});
            wanted += second;
            wanted.append(u"Toplam"_s);
            QCOMPARE(codes(grid), wanted);
        };
        QTest::keyClick(grid.rows(), Qt::Key_F9);
        expect({u"cam\tkesme"_s, u"ışık"_s, u"İnci"_s, u"zincir"_s}, {u"a"_s, u"b"_s});
        QTest::keyClick(grid.rows(), Qt::Key_F9);
        expect({u"zincir"_s, u"İnci"_s, u"ışık"_s, u"cam\tkesme"_s}, {u"b"_s, u"a"_s});
        QTest::keyClick(grid.rows(), Qt::Key_F9);
        QCOMPARE(codes(grid), own);

        const auto clickHeading = [&](int column) {
            QHeaderView *heading = grid.rows()->horizontalHeader();
            QTest::mouseClick(heading->viewport(), Qt::LeftButton, {},
                              QPoint(heading->sectionViewportPosition(column) + 5, 5));
        };
        // Figures by value, alike ones in their order, empty ones last either way.
        clickHeading(2);
        expect({u"zincir"_s, u"İnci"_s, u"cam\tkesme"_s, u"ışık"_s}, {u"b"_s, u"a"_s});
        clickHeading(2);
        expect({u"İnci"_s, u"cam\tkesme"_s, u"zincir"_s, u"ışık"_s}, {u"a"_s, u"b"_s});
        clickHeading(3);
        expect({u"İnci"_s, u"cam\tkesme"_s, u"zincir"_s, u"ışık"_s}, {u"b"_s, u"a"_s});
    }

    void figuresAreActivatedByTheirOwnPlace()
    {
        RaporGrid grid;
        grid.setTable(groups());
        grid.resize(500, 500);
        show(grid);
        QList<std::pair<qsizetype, qsizetype>> activated;
        connect(&grid, &RaporGrid::figureActivated, &grid, [&](qsizetype row, qsizetype column) {
            activated.append({row, column});
        });
        const auto enter = [] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return); };
        grid.rows()->setCurrentIndex(grid.rows()->model()->index(1, 2));
        QTest::keyClick(grid.rows(), Qt::Key_F9);
        QTest::keyClick(grid.rows(), Qt::Key_F9);
        // The cursor went along with its line.
        QCOMPARE(grid.rows()->currentIndex().row(), 3);
        enter();
        for (const auto &[row, column] : {std::pair{0, 2}, {1, 0}, {4, 2}, {5, 2}}) {
            grid.rows()->setCurrentIndex(grid.rows()->model()->index(row, column));
            enter();
        }
        const QRect first = grid.rows()->visualRect(grid.rows()->model()->index(1, 2));
        QTest::mouseClick(grid.rows()->viewport(), Qt::LeftButton, {}, first.center());
        QTest::mouseDClick(grid.rows()->viewport(), Qt::LeftButton, {}, first.center());
        // Down from the last line lies the total, and up again the line.
        grid.rows()->setCurrentIndex(grid.rows()->model()->index(8, 2));
        QTest::keyClick(grid.rows(), Qt::Key_Down);
        enter();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Up);
        enter();
        const QList<std::pair<qsizetype, qsizetype>> expected{
            {1, 2}, {5, 2}, {2, 2}, {9, 2}, {7, 2}};
        QCOMPARE(activated, expected);
    }

    void copiesWhatIsSelected()
    {
        RaporGrid grid;
        grid.setTable(groups());
        show(grid);
        const auto copied = [&] {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_C, Qt::ControlModifier);
            return QGuiApplication::clipboard()->text();
        };
        grid.rows()->setCurrentIndex(grid.rows()->model()->index(1, 0));
        QTest::keyClick(grid.rows(), Qt::Key_Down, Qt::ShiftModifier);
        QTest::keyClick(grid.rows(), Qt::Key_Right, Qt::ShiftModifier);
        QCOMPARE(copied(), u"zincir\t2.00\nİnci\t10.00"_s);
        QTest::keyClick(grid.rows(), Qt::Key_A, Qt::ControlModifier);
        const QStringList all = copied().split(u'\n');
        QCOMPARE(all.size(), 11);
        QCOMPARE(all.first(), u"KOD\tGR\tTARİH"_s);
        QCOMPARE(all[3], u"İnci\t10.00\t31.12.2011"_s);
        QCOMPARE(all[5], u"cam kesme\t10.00\t05.01.2012"_s);
        QCOMPARE(all.last(), u"Toplam\t26.00\t"_s);
        grid.total()->setFocus();
        grid.total()->setCurrentIndex(grid.total()->model()->index(0, 2));
        QCOMPARE(copied(), u"26.00"_s);
    }

    void totalStaysBelowItsColumns()
    {
        RaporGrid grid;
        const QAbstractItemModelTester tester(
            grid.rows()->model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        grid.resize(400, 200);
        grid.setTable(longTable(100000, 9));
        show(grid);
        QCOMPARE(grid.rows()->model()->rowCount(), 100000);
        const auto inStep = [&](int column) {
            QCOMPARE(grid.total()->columnViewportPosition(column),
                     grid.rows()->columnViewportPosition(column));
            QCOMPARE(grid.total()->columnWidth(column), grid.rows()->columnWidth(column));
            QCOMPARE(grid.total()->viewport()->width(), grid.rows()->viewport()->width());
        };
        QTest::keyClick(grid.rows(), Qt::Key_End, Qt::ControlModifier);
        inStep(8);
        QVERIFY(grid.total()->columnViewportPosition(0) < 0);
        grid.rows()->setColumnWidth(8, 300);
        QTest::keyClick(grid.rows(), Qt::Key_Home);
        QTest::keyClick(grid.rows(), Qt::Key_End);
        inStep(8);
        QTest::keyClick(grid.rows(), Qt::Key_Down);
        QTest::keyClick(grid.total(), Qt::Key_Home);
        inStep(0);
        QCOMPARE(grid.rows()->columnViewportPosition(0), 0);
        // No figure is cut off, not even the widest of a hundred thousand.
        const int needed = grid.fontMetrics().horizontalAdvance(u"99999.00"_s);
        QVERIFY(grid.rows()->columnWidth(0) > needed);
        QVERIFY(grid.total()->geometry().bottom() < grid.height());
        QVERIFY(grid.total()->geometry().top() >= grid.rows()->geometry().bottom());

        grid.setTable({});
        QCOMPARE(grid.rows()->model()->rowCount(), 0);
        QTest::keyClick(grid.rows(), Qt::Key_Return);
        QTest::keyClick(grid.rows(), Qt::Key_F9);
        QTest::keyClick(grid.rows(), Qt::Key_C, Qt::ControlModifier);
    }
};

KUYUM_TEST(RaporGridTest)

} // namespace kuyum

#include "RaporGridTest.moc"
