// bench_model [RUNS]: finding a model of eight materials among 30,000. The
// baseline reads the same rows from the engine through its C interface, with
// prepared statements.

#include "Measured.h"
#include "ModelStore.h"
#include "Oturum.h"
#include "Schema.h"
#include "SqliteEngine.h"
#include "SqliteFunctions.h"

#include <cstdio>
#include <QCoreApplication>
#include <QTemporaryDir>
#include <sqlite3.h>
#include <stdexcept>

using namespace Qt::StringLiterals;

using namespace kuyum;

namespace {

constexpr int modelCount = 30'000;
constexpr int rowsPerModel = 8;
constexpr int findings = 200; ///< in a run, spread over the models

void addRows(const SqliteEngine &engine, const QString &into, const QString &values, int count)
{
    engine.run(u"WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < %3 - 1) "
               "INSERT INTO %1 SELECT %2 FROM n"_s.arg(into, values)
                   .arg(count));
}

void fill(Database &db)
{
    Transaction transaction(db);
    const SqliteEngine &engine = db.engine();
    addRows(engine, u"UrunTipi (TipID, UrunTipi, KisaAD)"_s, u"i + 1, 'Tip ' || i, 'T' || i"_s, 8);
    addRows(engine, u"Tas (TasID, Taskodu)"_s, u"i + 1, 'ZRK ' || i"_s, 400);
    addRows(engine, u"Kalip (KalipID, KalipKodu)"_s, u"i + 1, 'K-' || i"_s, 400);
    addRows(engine, u"Model (Model, M_Uruntip, M_Miktar, M_Tip, M_Kod, M_Adet)"_s,
            u"'A-' || (i / %1), i / %1 % 8 + 1, 2.5, i % 2, i % 400 + 1, 1"_s.arg(rowsPerModel),
            modelCount * rowsPerModel);
    transaction.commit();
}

int modelAt(int finding)
{
    return finding * 7919 % modelCount;
}

/// A prepared statement of the C interface.
class Statement
{
public:
    Statement(sqlite3 *db, const char *sql)
    {
        if (sqlite3_prepare_v2(db, sql, -1, &m_statement, nullptr) != SQLITE_OK)
            throw std::runtime_error(sqlite3_errmsg(db));
    }
    ~Statement() { sqlite3_finalize(m_statement); }
    Statement(const Statement &) = delete;
    Statement &operator=(const Statement &) = delete;

    sqlite3_stmt *get() const { return m_statement; }
    bool next() { return sqlite3_step(m_statement) == SQLITE_ROW; }
    void readAll()
    {
        for (int i = 0; i < sqlite3_column_count(m_statement); ++i)
            sqlite3_column_text(m_statement, i);
    }

private:
    sqlite3_stmt *m_statement = nullptr;
};

int findRaw(Statement &rows, Statement &stone, Statement &mold)
{
    int read = 0;
    for (int i = 0; i < findings; ++i) {
        const QByteArray code = "A-" + QByteArray::number(modelAt(i));
        sqlite3_reset(rows.get());
        sqlite3_bind_text(rows.get(), 1, code.constData(), int(code.size()), SQLITE_STATIC);
        sqlite3_bind_int(rows.get(), 2, modelAt(i) % 8 + 1);
        while (rows.next()) {
            rows.readAll();
            Statement &material = sqlite3_column_int(rows.get(), 4) == 0 ? stone : mold;
            sqlite3_reset(material.get());
            sqlite3_bind_int(material.get(), 1, sqlite3_column_int(rows.get(), 5));
            if (material.next())
                material.readAll();
            ++read;
        }
    }
    return read;
}

int findThrough(const ModelStore &store)
{
    qsizetype read = 0;
    for (int i = 0; i < findings; ++i)
        read += store.ModelBul(u"A-%1"_s.arg(modelAt(i)), modelAt(i) % 8 + 1)->satirlar.size();
    return int(read);
}

void check(int read)
{
    if (read != findings * rowsPerModel)
        throw std::runtime_error("not all rows were found");
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const int runs = arguments.size() > 1 ? arguments[1].toInt() : 15;
    const QTemporaryDir folder;
    Oturum oturum;
    oturum.Veritabani = createCompany(folder.filePath(u"atolye.kuyum"_s));
    fill(*oturum.Veritabani);

    sqlite3 *raw = nullptr;
    if (sqlite3_open(QFile::encodeName(oturum.Veritabani->path()).constData(), &raw) != SQLITE_OK)
        return 1;
    registerSqliteFunctions(raw);
    {
        Statement rows(raw, "SELECT * FROM Model INNER JOIN UrunTipi ON M_Uruntip = TipID "
                            "WHERE Model = ? AND M_Uruntip = ?");
        Statement stone(raw, "SELECT * FROM Tas WHERE TasID = ?");
        Statement mold(raw, "SELECT * FROM Kalip WHERE KalipID = ?");
        const ModelStore store(oturum);
        const double baseline =
            middleMilliseconds(runs, [&] { check(findRaw(rows, stone, mold)); });
        const double ours = middleMilliseconds(runs, [&] { check(findThrough(store)); });
        printMeasured(u"find a model, engine alone"_s, baseline / findings);
        printMeasured(u"find a model"_s, ours / findings);
        printRatio(u"find a model"_s, ours, baseline);
    }
    sqlite3_close(raw);
    return 0;
}
