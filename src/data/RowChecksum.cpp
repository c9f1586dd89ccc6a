#include "RowChecksum.h"

#include <cmath>
#include <QHashFunctions>

namespace kuyum {

void RowChecksum::add(const RawValue &value)
{
    const auto append = [this](const void *data, size_t size) {
        m_row.append(static_cast<const char *>(data), size);
    };
    RawValue::Kind kind = value.kind;
    qint64 whole = value.integer;
    // A column for any number keeps a whole one as an integer.
    if (kind == RawValue::Kind::Real && std::abs(value.real) < 9e15 &&
        value.real == std::trunc(value.real)) {
        kind = RawValue::Kind::Integer;
        whole = qint64(value.real);
    }
    m_row.push_back(char(kind));
    switch (kind) {
    case RawValue::Kind::Null:
        break;
    case RawValue::Kind::Integer:
        append(&whole, sizeof whole);
        break;
    case RawValue::Kind::Real:
        append(&value.real, sizeof value.real);
        break;
    case RawValue::Kind::Text:
    case RawValue::Kind::Blob: {
        const size_t size = value.bytes.size();
        append(&size, sizeof size);
        append(value.bytes.data(), size);
        break;
    }
    }
}

void RowChecksum::endRow()
{
    m_sum += qHashBits(m_row.data(), m_row.size(), 0x9e3779b97f4a7c15);
    ++m_rows;
    m_row.clear();
}

} // namespace kuyum
