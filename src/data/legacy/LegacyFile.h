#pragma once

#include "DatabaseError.h"
#include "RawValue.h"
#include "TableDef.h"

#include <memory>
#include <QList>
#include <QString>

namespace kuyum {

/// A user table of a legacy database.
struct LegacyTable
{
    TableDef definition;     ///< in the file's own order of fields
    qint64 declaredRows = 0; ///< how many rows the file says the table has
    quint32 page = 0;        ///< where its definition stands
};

/// The rows of one table of a legacy database: every row that was not deleted,
/// once, in the order of the file.
class LegacyRows
{
public:
    LegacyRows(LegacyRows &&) noexcept;
    ~LegacyRows();

    /// Goes to the next row (at first to the first); false past the last.
    /// Throws DatabaseError for a row that cannot be read, and at the end when
    /// the table held another number of rows than the file says it has.
    bool next();
    const RawValue &value(qsizetype field) const;
    qsizetype fieldCount() const;
    qint64 rowCount() const; ///< rows read so far

    struct State;

private:
    friend class LegacyFile;
    explicit LegacyRows(std::unique_ptr<State> state);

    std::unique_ptr<State> m_state;
};

/// A legacy database (Jet 3 and 4), opened for reading. A damaged file gives a
/// DatabaseError where the reading library notices; where it does not, it can
/// end or hang the process: read in a process of its own (see TakeOver).
class LegacyFile
{
public:
    explicit LegacyFile(const QString &path);
    ~LegacyFile();
    LegacyFile(const LegacyFile &) = delete;
    LegacyFile &operator=(const LegacyFile &) = delete;

    /// The tables that are not the legacy engine's own.
    QList<LegacyTable> tables();
    /// Only one table's rows can be read at a time.
    LegacyRows rows(const LegacyTable &table);

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace kuyum
