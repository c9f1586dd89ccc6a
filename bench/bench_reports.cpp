// bench_reports FILE [RUNS]: the order reports over one year and over ten, in a
// company of 105,000 orders and a million lines, which is made in FILE where it
// is not there yet. The baseline is SQL written by hand for the same figures,
// stepped through the engine's C interface: it groups the lines by the bytes of
// the model first, so that few texts are left to compare as the product does.

#include "DemoCustomers.h"
#include "DemoMasterData.h"
#include "DemoModels.h"
#include "DemoOrders.h"
#include "MaterialReport.h"
#include "Measured.h"
#include "ModelReport.h"
#include "Oturum.h"
#include "Schema.h"
#include "SqliteEngine.h"

#include <cstdio>
#include <QCoreApplication>
#include <QFileInfo>
#include <sqlite3.h>
#include <stdexcept>

using namespace Qt::StringLiterals;

using namespace kuyum;

namespace {

constexpr int materialScale = 10; ///< 3,000 models, 600 stones, 250 customers
constexpr int orders = 105'000;
constexpr int years = 10;

const ReportPeriod oneYear{QDate(2025, 11, 21), QDate(2026, 11, 20)};
const ReportPeriod tenYears{QDate(2016, 11, 21), QDate(2026, 11, 20)};

void makeCompany(const QString &file)
{
    const std::unique_ptr<Database> db = createCompany(file);
    Transaction transaction(*db);
    fillSettings(*db);
    const int customers = fillCustomers(*db, materialScale);
    const DemoMaterials materials = fillMaterials(*db, materialScale);
    const QList<DemoModel> models = fillModels(*db, materialScale, materials);
    fillOrders(*db, {.orders = orders, .customers = customers, .years = years}, models,
               [](int done, int all) { std::fprintf(stderr, "%d / %d\n", done, all); });
    transaction.commit();
}

QString lines(const QString &tables, const ReportPeriod &period)
{
    return u"WITH k AS MATERIALIZED (SELECT SipModel || '' AS m, SipUruntip AS u, Ayar AS a, "
           "sum(SipAdet) AS n FROM SiparisB, SiparisD%1 WHERE Sipnum = SipnumD AND SipTrh >= '%2' "
           "AND SipTrh <= '%3' GROUP BY 1, 2, 3)"_s.arg(tables, period.bas.toString(Qt::ISODate),
                                                        period.bit.toString(Qt::ISODate));
}

QString stonesByHand(const ReportPeriod &period)
{
    return lines({}, period) +
           u", i AS MATERIALIZED (SELECT M_Kod AS id, a, sum(n * M_Adet) AS t FROM k, Model "
           "WHERE Model = m AND M_Uruntip = u AND M_Tip = 0 GROUP BY M_Kod, a) "
           "SELECT sum(t), Taskodu, a, sum(t) * max(TasKatsayi) FROM i, Tas WHERE TasID = id "
           "GROUP BY Taskodu, a ORDER BY Taskodu, a"_s;
}

QString moldsByHand(const ReportPeriod &period)
{
    return lines({}, period) +
           u", i AS MATERIALIZED (SELECT M_Kod AS id, a, sum(n * M_Adet) AS t FROM k, Model "
           "WHERE Model = m AND M_Uruntip = u AND M_Tip = 1 GROUP BY M_Kod, a) "
           "SELECT sum(t), KalipKodu, KalipAck, a FROM i, Kalip WHERE KalipID = id "
           "GROUP BY KalipKodu, KalipAck, a ORDER BY KalipKodu, KalipAck, a"_s;
}

/// Without the lines of undefined models that the report takes along: this
/// company has none.
QString modelsByHand(const ReportPeriod &period, const QString &split)
{
    return lines(u", Firma"_s, period)
               .replace("WHERE Sipnum"_L1, "WHERE SipFirkod = Firkod AND Sipnum"_L1) +
           u" SELECT sum(n), m, %1 FROM k WHERE EXISTS (SELECT 1 FROM Model WHERE Model = m "
           "AND M_Uruntip = u) GROUP BY m COLLATE TURKCE, %1"_s.arg(split);
}

/// The sum of the first column.
double runByHand(const Database &db, const QString &sql)
{
    sqlite3_stmt *rows = nullptr;
    if (sqlite3_prepare_v2(db.engine().handle(), sql.toUtf8().constData(), -1, &rows, nullptr) !=
        SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(db.engine().handle()));
    double sum = 0;
    while (sqlite3_step(rows) == SQLITE_ROW)
        sum += sqlite3_column_double(rows, 0);
    sqlite3_finalize(rows);
    return sum;
}

/// The total of the pieces.
double run(OrderReport &&report)
{
    if (report.read([](int, int) { return true; }) != OrderReport::Outcome::Ready)
        throw std::runtime_error("nothing found");
    const ReportTable &table = report.table();
    for (qsizetype column = table.columns.size() - 1; column > 0; --column) {
        if (table.columns[column].heading == "TOPLAM ADET"_L1)
            return table.rows.last().values[column].toDouble();
    }
    return 0;
}

void compare(const QString &what, int runs, const std::function<double()> &byHand,
             const std::function<double()> &ours)
{
    if (byHand() != ours())
        throw std::runtime_error("the figures differ: " + what.toStdString());
    // In turns, so that both meet the same neighbours on the machine.
    std::vector<double> baseline;
    std::vector<double> report;
    for (int i = 0; i < runs; ++i) {
        baseline.push_back(milliseconds(byHand));
        report.push_back(milliseconds(ours));
    }
    printMeasured(what + u", by hand"_s, middle(baseline));
    printMeasured(what, middle(report));
    printRatio(what, middle(report), middle(baseline));
}

void comparePeriod(Oturum &oturum, const QString &name, const ReportPeriod &period, int runs)
{
    const Database &db = *oturum.Veritabani;
    const ModelReportRequest byKarat{period, ReportSplit::Ayar};
    const ModelReportRequest byType{period, ReportSplit::UrunTipi};
    compare(
        u"stones, "_s + name, runs, [&] { return runByHand(db, stonesByHand(period)); },
        [&] { return run(StoneReport(oturum, period)); });
    compare(
        u"molds, "_s + name, runs, [&] { return runByHand(db, moldsByHand(period)); },
        [&] { return run(MoldReport(oturum, period)); });
    compare(
        u"models by karat, "_s + name, runs,
        [&] { return runByHand(db, modelsByHand(period, u"a"_s)); },
        [&] { return run(ModelReport(oturum, byKarat)); });
    compare(
        u"models by type, "_s + name, runs,
        [&] { return runByHand(db, modelsByHand(period, u"u"_s)); },
        [&] { return run(ModelReport(oturum, byType)); });
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 2)
        return 2;
    const int runs = arguments.size() > 2 ? arguments[2].toInt() : 5;
    if (!QFileInfo::exists(arguments[1]))
        makeCompany(arguments[1]);
    Oturum oturum;
    oturum.Veritabani = Database::open(arguments[1], Database::Access::ReadOnly);
    comparePeriod(oturum, u"one year"_s, oneYear, runs);
    comparePeriod(oturum, u"ten years"_s, tenYears, runs);
    return 0;
}
