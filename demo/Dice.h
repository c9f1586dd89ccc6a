#pragma once

#include <QList>
#include <random>

namespace kuyum {

/// The chance in the demo company. The same stream rolls the same numbers on
/// every system: the generator is fixed to the bit by the language, and the
/// arithmetic on top of it is ours, since the library's distributions differ
/// from one compiler to the next.
class Dice
{
public:
    /// Each subject draws from a stream of its own, so that a change in one
    /// leaves the others as they were.
    explicit Dice(quint32 stream) : m_generator(stream) {}

    /// 0 to count - 1.
    int below(int count);
    /// Both ends can come up.
    int between(int least, int most);
    bool chance(int percent) { return below(100) < percent; }
    /// A number with so many decimals.
    double decimal(double least, double most, int decimals);

    template <typename List>
    const auto &oneOf(const List &list)
    {
        return list[below(int(std::size(list)))];
    }

private:
    std::mt19937 m_generator;
};

} // namespace kuyum
