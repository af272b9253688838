#pragma once

#include <QtGlobal> // Qt 6.4's moc does not understand <compare> without it.

#include <compare>

/// A point in absolute time, in seconds since 1970-01-01T00:00:00Z, fractions included.
///
/// It knows no calendar and no zone: local time appears only inside a Calendar or a formatter. The
/// difference of two instants is a plain number of seconds, and two instants cannot be added.
class Instant
{
public:
    constexpr explicit Instant(double secondsSince1970)
        : m_secondsSince1970(secondsSince1970)
    {}

    constexpr double secondsSince1970() const { return m_secondsSince1970; }

    /// The first and the last instant that the program works with: the years 1 to 9999 in UTC. A
    /// stored date outside them (or not a number) is no date anyone meant, and reads as absent.
    static constexpr Instant earliest() { return Instant(-62'135'596'800.0); }
    static constexpr Instant latest() { return Instant(253'402'300'799.0); }

    /// Whether the instant lies between earliest() and latest(). False for a value that is not a
    /// number.
    constexpr bool isSupported() const { return *this >= earliest() && *this <= latest(); }

    friend constexpr Instant operator+(Instant instant, double seconds)
    {
        return Instant(instant.m_secondsSince1970 + seconds);
    }
    /// The seconds from `right` to `left`; negative when `left` is earlier.
    friend constexpr double operator-(Instant left, Instant right)
    {
        return left.m_secondsSince1970 - right.m_secondsSince1970;
    }
    friend constexpr std::partial_ordering operator<=>(Instant left, Instant right)
    {
        return left.m_secondsSince1970 <=> right.m_secondsSince1970;
    }
    friend constexpr bool operator==(Instant left, Instant right)
    {
        return left.m_secondsSince1970 == right.m_secondsSince1970;
    }

private:
    double m_secondsSince1970;
};
