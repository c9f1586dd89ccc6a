#include "Integrity.h"

#include "Cancelled.h"
#include "Database.h"
#include "Dialect.h"
#include "SqliteEngine.h"

#include <cmath>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <sqlite3.h>
#include <thread>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

/// While it lives, the engine asks the stage now and then whether to go on.
/// How long a check takes is not known before, so that it nears its end ever
/// more slowly.
class Watch
{
public:
    Watch(const SqliteEngine &engine, const WorkStage &stage)
        : m_engine(engine), m_stage(stage), m_expected(expectedCalls(engine))
    {
        sqlite3_progress_handler(engine.handle(), stepsPerCall, &Watch::call, this);
    }
    ~Watch() { sqlite3_progress_handler(m_engine.handle(), 0, nullptr, nullptr); }
    Watch(const Watch &) = delete;
    Watch &operator=(const Watch &) = delete;

    bool stopped() const { return m_stopped; }
    void rethrow() const
    {
        if (m_failure)
            std::rethrow_exception(m_failure);
    }

private:
    static constexpr int stepsPerCall = 20000;

    static double expectedCalls(const SqliteEngine &engine)
    {
        QSqlQuery pages = engine.run(u"PRAGMA page_count"_s);
        constexpr double stepsPerPage = 800;
        return engine.next(pages) ? 1 + pages.value(0).toDouble() * stepsPerPage / stepsPerCall : 1;
    }

    static int call(void *self)
    {
        auto &watch = *static_cast<Watch *>(self);
        // The engine is C and lets no exception through.
        try {
            watch.m_stopped =
                !watch.m_stage.tell(1 - std::exp(-1.5 * ++watch.m_calls / watch.m_expected));
        } catch (...) {
            watch.m_failure = std::current_exception();
            watch.m_stopped = true;
        }
        return watch.m_stopped ? 1 : 0;
    }

    const SqliteEngine &m_engine;
    const WorkStage &m_stage;
    double m_expected;
    double m_calls = 0;
    bool m_stopped = false;
    std::exception_ptr m_failure;
};

/// What the engine found, one fault a line. It puts a heading that names the
/// database within the connection before them, which tells a user nothing.
QStringList faultLines(const QString &found)
{
    QStringList lines = found.split(u'\n', Qt::SkipEmptyParts);
    lines.removeIf([](const QString &line) { return line.startsWith("*** in database"_L1); });
    return lines;
}

} // namespace

QStringList integrityFaults(const SqliteEngine &engine, const WorkStage &stage)
{
    const Watch watch(engine, stage);
    QStringList faults;
    try {
        QSqlQuery check = engine.run(u"PRAGMA integrity_check(20)"_s);
        while (engine.next(check))
            faults.append(faultLines(check.value(0).toString()));
    } catch (const DatabaseError &error) {
        watch.rethrow();
        if (watch.stopped())
            throw Cancelled();
        if (error.cause() != DatabaseError::Cause::FileDamaged)
            throw;
        faults.append(error.text());
    }
    return faults == QStringList{u"ok"_s} ? QStringList() : faults;
}

void refuseDamaged(const Database &db, std::chrono::milliseconds limit)
{
    const SqliteEngine &engine = db.engine();
    std::mutex mutex;
    std::condition_variable_any ended;
    // Within one table the engine asks nobody whether to go on, but it can be
    // interrupted from another thread.
    std::jthread watch([&](const std::stop_token &stop) {
        std::unique_lock lock(mutex);
        if (!ended.wait_for(lock, stop, limit, [] { return false; }) && !stop.stop_requested())
            sqlite3_interrupt(engine.handle());
    });
    try {
        QSqlQuery check = engine.run(u"PRAGMA quick_check(1)"_s);
        const QStringList faults =
            engine.next(check) ? faultLines(check.value(0).toString()) : QStringList();
        if (!faults.isEmpty() && faults != QStringList{u"ok"_s}) {
            throw DatabaseError(u"Veri tabanı dosyası bozuk. (%1)"_s.arg(faults[0]),
                                DatabaseError::Cause::FileDamaged);
        }
    } catch (const DatabaseError &error) {
        // Stopped: what was read is sound.
        if (error.cause() == DatabaseError::Cause::FileDamaged)
            throw;
    }
}

QMap<QString, qint64> rowCounts(const SqliteEngine &engine)
{
    QStringList names;
    QSqlQuery tables =
        engine.run(u"SELECT name FROM sqlite_master WHERE type = 'table' ORDER BY rowid"_s);
    while (engine.next(tables))
        names.append(tables.value(0).toString());
    QMap<QString, qint64> counts;
    for (const QString &name : names) {
        QSqlQuery rows = engine.run(u"SELECT count(*) FROM "_s + quotedName(name));
        engine.next(rows);
        counts.insert(name, rows.value(0).toLongLong());
    }
    return counts;
}

} // namespace kuyum
