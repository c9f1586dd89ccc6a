#pragma once

#include "LegacyFile.h"
#include "LegacyLibrary.h"
#include "LegacyTexts.h"
#include "LegacyValues.h"

#include <vector>

namespace kuyum {

/// Walks through a table's rows. The library's own way through a table takes
/// every place where a row once stood after it had grown for a row of its own,
/// so a row that moved twice, or was deleted after it had moved, would come up
/// again: the rows are found here from their marks, and the library reads them.
struct LegacyRows::State
{
    /// longValueBudget: how many bytes of long values (Memo, OLE) the whole
    /// file can hold; what is read is taken off.
    State(MdbHandle *handle, const MdbCatalogEntry &tableEntry, qint64 &longValueBudget);
    State(const State &) = delete;
    State &operator=(const State &) = delete;

    bool next();

    MdbCatalogEntry entry; ///< the definition points to it
    MdbTablePointer table;
    std::vector<RawValue> values;
    qint64 count = 0;

private:
    bool nextPlace();
    void followMovedRow(int &start, size_t &size);
    void readRow(int start, size_t size);
    void readValue(const MdbColumn &column, const MdbField &field, RawValue &value);
    void readLongValue(MdbColumn &column, const MdbField &field);
    [[noreturn]] void refuseRow() const;

    MdbHandle *m_handle;
    qint64 &m_budget;
    quint32 m_page = 0;
    int m_row = 0;
    int m_rowsOnPage = 0;
    std::vector<MdbField> m_fields;
    std::string m_piece;     ///< takes one page's part of a long value
    std::string m_longValue; ///< the whole of it
    DateStorer m_dates;
    LegacyTexts m_texts;
};

} // namespace kuyum
