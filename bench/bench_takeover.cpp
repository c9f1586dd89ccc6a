// bench_takeover FILE.mdb [RUNS]: take-over of a legacy file against mdb-export
// of the same tables to nowhere plus raw SQLite inserts of the same rows.

#include "Database.h"
#include "Measured.h"
#include "ProcessMemory.h"

#include <cstdio>
#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <sqlite3.h>
#include <stdexcept>

using namespace Qt::StringLiterals;

using namespace kuyum;

namespace {

void require(bool good, const char *what)
{
    if (!good)
        throw std::runtime_error(what);
}

void runToNowhere(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(program, arguments);
    require(process.waitForFinished(-1) && process.exitCode() == 0, "a program failed");
}

/// Runs the take-over and gives the most memory it was seen to hold.
qint64 mostMemory(const QString &source, const QString &target)
{
    QProcess process;
    process.setStandardOutputFile(QProcess::nullDevice());
    process.start(QStringLiteral(KUYUM_PROGRAM), {u"aktar"_s, source, target});
    require(process.waitForStarted(), "kuyum does not start");
    qint64 most = 0;
    while (!process.waitForFinished(5))
        most = qMax(most, memoryOfTree(process.processId()));
    require(process.exitCode() == 0, "take-over failed");
    return most;
}

/// All rows of a database, ready to be inserted again.
class RawRows
{
public:
    explicit RawRows(const QString &path)
    {
        const std::unique_ptr<Database> db = Database::open(path, Database::Access::ReadOnly);
        const QStringList names = db->tableNames();
        sqlite3 *file = nullptr;
        require(sqlite3_open(path.toUtf8(), &file) == SQLITE_OK, "open");
        for (const QString &name : names)
            read(file, name.toUtf8());
        sqlite3_close(file);
    }
    ~RawRows()
    {
        for (const Table &table : m_tables) {
            for (sqlite3_value *value : table.values)
                sqlite3_value_free(value);
        }
    }
    RawRows(const RawRows &) = delete;
    RawRows &operator=(const RawRows &) = delete;

    /// Inserts them into a new file: plain tables, one transaction.
    void insertInto(const QString &path) const
    {
        sqlite3 *file = nullptr;
        require(sqlite3_open(path.toUtf8(), &file) == SQLITE_OK, "open");
        run(file, "BEGIN");
        for (const Table &table : m_tables)
            insert(file, table);
        run(file, "COMMIT");
        sqlite3_close(file);
    }

private:
    struct Table
    {
        QByteArray name;
        int columns = 0;
        std::vector<sqlite3_value *> values;
    };

    static void run(sqlite3 *file, const QByteArray &sql)
    {
        require(sqlite3_exec(file, sql, nullptr, nullptr, nullptr) == SQLITE_OK, "sql");
    }

    void read(sqlite3 *file, const QByteArray &name)
    {
        sqlite3_stmt *rows = nullptr;
        sqlite3_prepare_v2(file, "SELECT * FROM [" + name + "]", -1, &rows, nullptr);
        Table table{name, sqlite3_column_count(rows), {}};
        while (sqlite3_step(rows) == SQLITE_ROW) {
            for (int i = 0; i < table.columns; ++i)
                table.values.push_back(sqlite3_value_dup(sqlite3_column_value(rows, i)));
        }
        sqlite3_finalize(rows);
        m_tables.push_back(std::move(table));
    }

    static void insert(sqlite3 *file, const Table &table)
    {
        QByteArray fields;
        QByteArray marks;
        for (int i = 0; i < table.columns; ++i) {
            fields += (i > 0 ? ",f" : "f") + QByteArray::number(i);
            marks += i > 0 ? ",?" : "?";
        }
        run(file, "CREATE TABLE [" + table.name + "] (" + fields + ")");
        sqlite3_stmt *statement = nullptr;
        sqlite3_prepare_v2(file, "INSERT INTO [" + table.name + "] VALUES (" + marks + ")", -1,
                           &statement, nullptr);
        for (size_t at = 0; at < table.values.size(); at += size_t(table.columns)) {
            for (int i = 0; i < table.columns; ++i)
                sqlite3_bind_value(statement, i + 1, table.values[at + size_t(i)]);
            require(sqlite3_step(statement) == SQLITE_DONE, "insert");
            sqlite3_reset(statement);
        }
        sqlite3_finalize(statement);
    }

    std::vector<Table> m_tables;
};

void measure(const QString &source, int runs)
{
    const QTemporaryDir folder;
    const QString target = folder.filePath(u"hedef.kuyum"_s);
    const QString raw = folder.filePath(u"raw.db"_s);
    const auto takeOver = [&] {
        QFile::remove(target);
        return milliseconds([&] {
            runToNowhere(QStringLiteral(KUYUM_PROGRAM), {u"aktar"_s, source, target});
        });
    };
    takeOver();
    const QStringList tables = Database::open(target)->tableNames();
    const RawRows rows(target);

    // In turns, so that whatever else the machine does falls on all of them.
    std::vector<double> exported;
    std::vector<double> inserted;
    std::vector<double> whole;
    std::vector<double> ratios;
    for (int run = 0; run < runs; ++run) {
        exported.push_back(milliseconds([&] {
            for (const QString &table : tables)
                runToNowhere(u"mdb-export"_s, {source, table});
        }));
        QFile::remove(raw);
        inserted.push_back(milliseconds([&] { rows.insertInto(raw); }));
        whole.push_back(takeOver());
        ratios.push_back(whole.back() / (exported.back() + inserted.back()));
    }
    printMeasured(u"mdb-export of all tables to nowhere"_s, middle(exported));
    printMeasured(u"raw SQLite inserts of the same rows"_s, middle(inserted));
    printMeasured(u"take-over (copy, indexes, proof)"_s, middle(whole));
    printRatio(u"take-over to export + inserts"_s, middle(ratios), 1);
    QFile::remove(target);
    std::printf("%-52s %10.1f MB\n", "most memory, all processes",
                double(mostMemory(source, target)) / 1024);
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 2) {
        std::fprintf(stderr, "bench_takeover FILE.mdb [RUNS]\n");
        return 2;
    }
    measure(arguments[1], qMax(1, arguments.value(2, u"5"_s).toInt()));
    return 0;
}
