#pragma once

#include <functional>
#include <vector>

namespace kuyum {

/// Puts the numbers 0..count-1 into an order in many short steps, so that a
/// long list can be sorted while the user works on. Equal ones keep their places.
class SlicedSort
{
public:
    using Less = std::function<bool(int, int)>;
    SlicedSort(int count, Less less);

    /// Does a little of the work (milliseconds for 200,000); true when done.
    bool step();
    const std::vector<int> &order() const { return m_order; }

private:
    std::vector<int> m_order;
    Less m_less;
    std::size_t m_run = 0; ///< length of the runs that are in order; 0: none yet
    std::size_t m_at = 0;
};

} // namespace kuyum
