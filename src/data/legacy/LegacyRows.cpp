#include "LegacyRows.h"

#include "LegacyDefinition.h"

#include <cstring>
#include <QtEndian>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

// Marks beside a row's place on its page. A row that moved leaves a pointer to
// its new place; the new place is marked as deleted, so that it is found
// through the pointer only. A deleted row bears both marks.
constexpr int deletedMark = 0x8000;
constexpr int pointerMark = 0x4000;
constexpr int placeMask = 0x1fff;

constexpr int maxRowsOnPage = 1000;
constexpr int maxMoves = 16;

// The head of a long value: its length with two flags, then where it stands.
constexpr quint32 longLengthMask = 0x3fffffff;

} // namespace

LegacyRows::State::State(MdbHandle *handle, const MdbCatalogEntry &tableEntry,
                         qint64 &longValueBudget)
    : entry(tableEntry), m_handle(handle), m_budget(longValueBudget), m_texts(handle)
{
    table = readDefinition(entry);
    values.resize(table->num_cols);
    m_fields.resize(table->num_cols);
    m_piece.resize(2 * MDB_PGSIZE);
    mdb_rewind_table(table.get());
}

void LegacyRows::State::refuseRow() const
{
    refuseDamaged(u"\"%1\" tablosunun %2. kaydı okunamıyor."_s.arg(
        QString::fromUtf8(entry.object_name), QString::number(count + 1)));
}

/// Goes to the next place on which a row may stand.
bool LegacyRows::State::nextPlace()
{
    ++m_row;
    while (m_row >= m_rowsOnPage) {
        if (mdb_read_next_dpg(table.get()) == 0)
            return false;
        m_page = m_handle->cur_pg;
        m_row = 0;
        m_rowsOnPage = mdb_get_int16(m_handle->pg_buf, m_handle->fmt->row_count_offset);
        if (m_rowsOnPage > maxRowsOnPage)
            refuseRow();
    }
    // Following a moved row has put another page into the library's hands.
    if (m_handle->cur_pg != m_page && mdb_read_pg(m_handle, m_page) == 0)
        refuseRow();
    return true;
}

bool LegacyRows::State::next()
{
    while (nextPlace()) {
        int start = 0;
        size_t size = 0;
        const int found = mdb_find_row(m_handle, m_row, &start, &size);
        if ((start & deletedMark) != 0)
            continue;
        if (found != 0 || size == 0)
            refuseRow();
        if ((start & pointerMark) != 0)
            followMovedRow(start, size);
        readRow(start & placeMask, size);
        ++count;
        return true;
    }
    // A file that was not closed properly says 0.
    if (table->num_rows != 0 && count != qint64(table->num_rows)) {
        refuseDamaged(u"\"%1\" tablosunda %2 kayıt olmalı, %3 kayıt okundu."_s.arg(
            QString::fromUtf8(entry.object_name), QString::number(table->num_rows),
            QString::number(count)));
    }
    return false;
}

void LegacyRows::State::followMovedRow(int &start, size_t &size)
{
    for (int moves = 0; moves < maxMoves; ++moves) {
        const int place = start & placeMask;
        if (size < 4)
            refuseRow();
        const auto pointer = qFromLittleEndian<quint32>(m_handle->pg_buf + place);
        const int row = int(pointer & 0xff);
        const bool isOurs = mdb_read_pg(m_handle, pointer >> 8) != 0 &&
                            m_handle->pg_buf[0] == MDB_PAGE_DATA &&
                            qFromLittleEndian<quint32>(m_handle->pg_buf + 4) == entry.table_pg;
        if (!isOurs || row >= mdb_get_int16(m_handle->pg_buf, m_handle->fmt->row_count_offset) ||
            mdb_find_row(m_handle, row, &start, &size) != 0)
            refuseRow();
        if ((start & pointerMark) == 0)
            return;
    }
    refuseRow();
}

void LegacyRows::State::readRow(int start, size_t size)
{
    const int stored = size == 0 ? -1 : mdb_crack_row(table.get(), start, size, m_fields.data());
    if (stored < 0)
        refuseRow();
    for (unsigned i = 0; i < table->num_cols; ++i) {
        MdbColumn &column = *columnAt(table.get(), i);
        MdbField &field = m_fields[i];
        // A field that was added to the table after this row had been written.
        if (column.col_num >= stored)
            field.is_null = 1;
        RawValue &value = values[i];
        if (column.col_type == MDB_BOOL) {
            // The mark that tells a null elsewhere is the value itself here.
            value.setInteger(field.is_null != 0 ? 0 : 1);
            continue;
        }
        if (field.is_null != 0) {
            value.setNull();
            continue;
        }
        if (field.siz < 0 || field.start < start || field.start + field.siz > start + int(size))
            refuseRow();
        if (column.col_type == MDB_MEMO || column.col_type == MDB_OLE)
            readLongValue(column, field);
        readValue(column, field, value);
    }
}

void LegacyRows::State::readValue(const MdbColumn &column, const MdbField &field, RawValue &value)
{
    const auto *bytes = reinterpret_cast<const char *>(m_handle->pg_buf) + field.start;
    const auto need = [&](int size) {
        if (field.siz < size)
            refuseRow();
    };
    switch (column.col_type) {
    case MDB_BYTE:
        need(1);
        return value.setInteger(uchar(*bytes));
    case MDB_INT:
        need(2);
        return value.setInteger(qFromLittleEndian<qint16>(bytes));
    case MDB_LONGINT:
        need(4);
        return value.setInteger(qFromLittleEndian<qint32>(bytes));
    case MDB_MONEY:
        need(8);
        return storeCurrency(qFromLittleEndian<qint64>(bytes), value);
    case MDB_FLOAT:
        need(4);
        return storeReal(double(qFromLittleEndian<float>(bytes)), value);
    case MDB_DOUBLE:
        need(8);
        return storeReal(qFromLittleEndian<double>(bytes), value);
    case MDB_DATETIME:
        need(8);
        return m_dates.store(qFromLittleEndian<double>(bytes), value);
    case MDB_REPID:
        need(16);
        return storeGuid(bytes, value);
    case MDB_NUMERIC: {
        need(17);
        const std::unique_ptr<char, decltype(&g_free)> text(
            mdb_numeric_to_string(m_handle, field.start, column.col_scale, column.col_prec),
            g_free);
        return storeDecimal(text.get(), value);
    }
    case MDB_TEXT:
        return m_texts.store({bytes, size_t(field.siz)}, value);
    case MDB_MEMO:
        return m_texts.store(m_longValue, value);
    case MDB_OLE:
        return value.setBytes(RawValue::Kind::Blob, m_longValue.data(), m_longValue.size());
    default: // a Binary; other types were refused with the definition
        return value.setBytes(RawValue::Kind::Blob, bytes, size_t(field.siz));
    }
}

/// Gathers a Memo or OLE object from the pages over which it is spread. The
/// library gives an empty text for one it cannot follow; here that refuses.
void LegacyRows::State::readLongValue(MdbColumn &column, const MdbField &field)
{
    m_longValue.clear();
    if (field.siz == 0)
        return;
    if (field.siz < MDB_MEMO_OVERHEAD)
        refuseRow();
    char head[MDB_MEMO_OVERHEAD];
    std::memcpy(head, m_handle->pg_buf + field.start, sizeof head);
    const size_t length = qFromLittleEndian<quint32>(head) & longLengthMask;
    m_budget -= qint64(length);
    if (m_budget < 0)
        refuseRow();
    if (length == 0)
        return;

    column.bind_ptr = m_piece.data();
    column.cur_value_start = field.start;
    column.cur_value_len = field.siz;
    size_t got = mdb_ole_read(m_handle, &column, head, m_piece.size());
    while (got > 0 && m_longValue.size() < length) {
        m_longValue.append(m_piece.data(), std::min(got, length - m_longValue.size()));
        if (m_longValue.size() < length)
            got = mdb_ole_read_next(m_handle, &column, head);
    }
    column.bind_ptr = nullptr;
    if (m_longValue.size() != length)
        refuseRow();
}

LegacyRows::LegacyRows(std::unique_ptr<State> state) : m_state(std::move(state)) {}
LegacyRows::LegacyRows(LegacyRows &&) noexcept = default;
LegacyRows::~LegacyRows() = default;

bool LegacyRows::next()
{
    return m_state->next();
}

const RawValue &LegacyRows::value(qsizetype field) const
{
    return m_state->values[size_t(field)];
}

qsizetype LegacyRows::fieldCount() const
{
    return qsizetype(m_state->values.size());
}

qint64 LegacyRows::rowCount() const
{
    return m_state->count;
}

} // namespace kuyum
