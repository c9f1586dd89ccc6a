// bench_lookup [RUNS]: the first page of the lookup list over lists of 200 to
// 200,000 rows; the baseline fetches the rows of that page from the engine.

#include "Dialect.h"
#include "Liste_Combo.h"
#include "LookupModel.h"
#include "Measured.h"
#include "Messages.h"
#include "Oturum.h"
#include "Schema.h"
#include "SqliteEngine.h"

#include <cstdio>
#include <QApplication>
#include <QElapsedTimer>
#include <QTableView>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

using namespace kuyum;

namespace {

constexpr int page = 64;

void addRows(const SqliteEngine &engine, const QString &into, const QString &values, int count)
{
    engine.run(u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < %3) "
               "INSERT INTO %1 SELECT %2 FROM n"_s.arg(into, values)
                   .arg(count));
}

/// So many orders of 50 customers, and so many models in two rows each.
void fill(Database &db, int count)
{
    Transaction transaction(db);
    const SqliteEngine &engine = db.engine();
    addRows(engine, u"UrunTipi (TipID, UrunTipi, KisaAD, Sirano)"_s,
            u"i, 'Tip ' || i, 'T' || i, i"_s, 8);
    addRows(engine, u"Firma (Firkod, FirAdi)"_s, u"i, 'Kuyumculuk ' || i"_s, 50);
    addRows(engine, u"SiparisB (SipTrh, SipFirkod, Ayar, Patent, Aciklama)"_s,
            u"date('2020-01-01', (i / 100) || ' days'), i * 7919 % 50 + 1, 585, 'DAMGA', "
            "'Standart teslim, parlak cila'"_s,
            count);
    addRows(engine, u"Model (Model, M_Uruntip, M_Miktar, M_Tip, M_Kod, M_Adet)"_s,
            u"'A-' || (i * 7919 % %1), (i * 7919 % %1) % 8 + 1, 2.5, i % 2, i % 60, 1"_s.arg(count),
            2 * count);
    transaction.commit();
}

void fetchRaw(const SqliteEngine &engine, const QString &sql, int rows)
{
    QSqlQuery query = engine.run(sql);
    const int columns = int(SqliteEngine::columns(query).size());
    for (int row = 0; row < rows && engine.next(query); ++row) {
        for (int column = 0; column < columns; ++column)
            query.value(column);
    }
}

/// The longest time for which the window would not have answered a key.
double longestWait(LookupModel &model)
{
    double longest = 0;
    QElapsedTimer clock;
    while (!model.isComplete()) {
        clock.start();
        QCoreApplication::processEvents();
        longest = qMax(longest, double(clock.nsecsElapsed()) / 1e6);
    }
    return longest;
}

void measureOpening(Oturum &oturum, const QString &name, const QString &label, int runs)
{
    const LookupList &list = lookupList(name);
    const auto text = list.streamedSql != nullptr ? list.streamedSql : list.sql;
    const QString sql = translateSql(text({})).text;
    const SqliteEngine &engine = oturum.Veritabani->engine();
    const double raw = middleMilliseconds(runs, [&] { fetchRaw(engine, sql, page); });
    const double model = middleMilliseconds(runs, [&] {
        LookupModel rows;
        rows.open(openLookup(oturum, list, {}));
    });
    MessageBoxes messages;
    const double window = middleMilliseconds(runs, [&] {
        Liste_Combo dialog(oturum, messages, {name, {}});
        dialog.show();
        dialog.grab();
    });
    printMeasured(label + u", engine alone"_s, raw);
    printMeasured(label + u", first page"_s, model);
    printRatio(label + u", first page"_s, model, raw);
    printMeasured(label + u", window painted"_s, window);
}

void measureWaits(Oturum &oturum, const QString &label)
{
    const LookupList &list = lookupList(u"Siparis Listesi"_s);
    LookupModel model;
    QTableView grid;
    grid.setModel(&model);
    grid.show();
    model.open(openLookup(oturum, list, {}));
    QElapsedTimer clock;
    clock.start();
    printMeasured(label + u", longest wait while reading"_s, longestWait(model));
    printMeasured(label + u", all rows read"_s, double(clock.nsecsElapsed()) / 1e6);
    clock.start();
    model.narrow(u"bulunmaz"_s);
    printMeasured(label + u", narrowing, first answer"_s, double(clock.nsecsElapsed()) / 1e6);
    printMeasured(label + u", longest wait while narrowing"_s, longestWait(model));
    printMeasured(label + u", narrowed"_s, double(clock.nsecsElapsed()) / 1e6);
    model.narrow(QString());
    clock.start();
    model.sort(2);
    printMeasured(label + u", longest wait while sorting"_s, longestWait(model));
    printMeasured(label + u", sorted"_s, double(clock.nsecsElapsed()) / 1e6);
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const int runs = arguments.size() > 1 ? arguments[1].toInt() : 15;
    for (const int count : {200, 20'000, 200'000}) {
        const QTemporaryDir folder;
        Oturum oturum;
        oturum.Veritabani = createCompany(folder.filePath(u"atolye.kuyum"_s));
        fill(*oturum.Veritabani, count);
        measureOpening(oturum, u"Siparis Listesi"_s, u"%1 orders"_s.arg(count), runs);
        measureOpening(oturum, u"Model Listesi"_s, u"%1 models"_s.arg(count), runs);
        measureWaits(oturum, u"%1 orders"_s.arg(count));
    }
    return 0;
}
