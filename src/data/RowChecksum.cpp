#include "RowChecksum.h"

#include <cmath>
#include <QHashFunctions>

void RowChecksum::add(const RawValue &value)
{
    const auto append = [this](const void *data, qsizetype size) {
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
    m_row.append(char(kind));
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
        const qsizetype size = value.bytes.size();
        append(&size, sizeof size);
        append(value.bytes.constData(), size);
        break;
    }
    }
}

void RowChecksum::endRow()
{
    m_first += qHashBits(m_row.constData(), size_t(m_row.size()), 0x9e3779b97f4a7c15);
    m_second += qHashBits(m_row.constData(), size_t(m_row.size()), 0x2545f4914f6cdd1d);
    ++m_rows;
    m_row.resize(0);
}
