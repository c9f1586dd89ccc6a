#pragma once

#ifndef Q_MOC_RUN // which cannot read it
#include <compare>
#endif

namespace kuyum {

/// A distance on paper: 1/1440 inch. Its own type, so that twips, pixels and
/// points cannot be mixed up.
class Twips
{
public:
    constexpr Twips() = default;
    constexpr explicit Twips(double count) : m_count(count) {}
    static constexpr Twips fromPoints(double points) { return Twips(points * 20); }
    static constexpr Twips fromMillimetres(double mm) { return Twips(mm * 1440 / 25.4); }

    constexpr double count() const { return m_count; }
    constexpr double points() const { return m_count / 20; }
    constexpr double millimetres() const { return m_count * 25.4 / 1440; }
    constexpr double pixels(double dotsPerInch) const { return m_count * dotsPerInch / 1440; }

    constexpr Twips &operator+=(Twips other)
    {
        m_count += other.m_count;
        return *this;
    }
    friend constexpr Twips operator+(Twips a, Twips b) { return Twips(a.m_count + b.m_count); }
    friend constexpr Twips operator-(Twips a, Twips b) { return Twips(a.m_count - b.m_count); }
    friend constexpr Twips operator*(Twips a, double factor) { return Twips(a.m_count * factor); }
    friend constexpr auto operator<=>(Twips a, Twips b) = default;

private:
    double m_count = 0;
};

constexpr Twips operator""_tw(unsigned long long count)
{
    return Twips(static_cast<double>(count));
}

} // namespace kuyum
