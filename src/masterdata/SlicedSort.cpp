#include "SlicedSort.h"

#include <algorithm>
#include <numeric>

namespace kuyum {

namespace {

constexpr std::size_t firstRun = 512;

} // namespace

SlicedSort::SlicedSort(int count, Less less) : m_order(std::size_t(count)), m_less(std::move(less))
{
    std::iota(m_order.begin(), m_order.end(), 0);
}

bool SlicedSort::step()
{
    const std::size_t count = m_order.size();
    const auto place = [&](std::size_t at) {
        return m_order.begin() + std::ptrdiff_t(std::min(at, count));
    };
    if (m_run >= count)
        return true;
    if (m_run == 0) {
        std::stable_sort(place(m_at), place(m_at + firstRun), m_less);
        m_at += firstRun;
    } else {
        std::inplace_merge(place(m_at), place(m_at + m_run), place(m_at + 2 * m_run), m_less);
        m_at += 2 * m_run;
    }
    if (m_at >= count) {
        m_run = m_run == 0 ? firstRun : 2 * m_run;
        m_at = 0;
    }
    return m_run >= count;
}

} // namespace kuyum
