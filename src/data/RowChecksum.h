#pragma once

#include "RawValue.h"

#include <string>

namespace kuyum {

/// A sum over all values of a table's rows that does not depend on the order
/// of the rows. Two tables have the same one only when they hold the same
/// rows the same number of times. It means something within one process only.
class RowChecksum
{
public:
    /// A row's values, in order; then endRow().
    void add(const RawValue &value);
    void endRow();

    qint64 rowCount() const { return m_rows; }
    bool operator==(const RowChecksum &other) const
    {
        return m_rows == other.m_rows && m_sum == other.m_sum;
    }

private:
    std::string m_row;
    quint64 m_sum = 0;
    qint64 m_rows = 0;
};

} // namespace kuyum
