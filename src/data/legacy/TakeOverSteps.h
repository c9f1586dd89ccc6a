#pragma once

#include <functional>
#include <QByteArray>
#include <QString>

namespace kuyum {

class Database;

/// The two steps of a take-over, each run in a process of its own, since a
/// damaged file can end or hang the library that reads it. What they tell goes
/// as lines over standard output to the process that started them:
///
///     progress DONE TOTAL TABLE      rows
///     table ROWS NAME                a table is done
///     waiting                        the proof has read the source and wants
///                                    a line back when the copy is complete
///     error REASON                   the last line of a step that refuses
namespace TakeOverSteps {

const QString &copyWord();  ///< the word of the command line that runs copy()
const QString &proveWord(); ///< the one that runs prove()

/// How far a step is; also tells the process that watches that it is alive.
class Reporter
{
public:
    /// wait blocks until the starting process has written a line.
    Reporter(std::function<void(const QByteArray &line)> write, std::function<void()> wait)
        : m_write(std::move(write)), m_wait(std::move(wait))
    {
    }
    void begin(qint64 totalRows) { m_total = totalRows; }
    /// Called for every row; writes a line now and then.
    void row(const QString &table);
    void alive(const QString &table);
    void tableDone(const QString &table, qint64 rows);
    void waitForCopy();

private:
    std::function<void(const QByteArray &)> m_write;
    std::function<void()> m_wait;
    qint64 m_total = 0;
    qint64 m_done = 0;
};

/// Makes the database file part, which must not exist, from the legacy file:
/// tables, rows, indexes, what the schema has beyond them, the stamp.
void copy(const QString &source, const QString &part, Reporter &reporter);

/// Notes what the copied company lacks, before it is completed: usual tables,
/// key fields, the rows that others refer to.
void noteWhatIsMissing(Database &db);

/// Reads the legacy file again, waits until the part is complete, and compares
/// every table's rows with the part's; a row that was given a new number counts
/// with the one it had. Throws DatabaseError at the first difference. Reading may run while copy()
/// does: the two share nothing.
void prove(const QString &source, const QString &part, Reporter &reporter);

} // namespace TakeOverSteps

} // namespace kuyum
