#include "foundation/Clock.h"

#include <chrono>

std::optional<Instant> Clock::s_fixed;

Instant Clock::now()
{
    if (s_fixed) {
        return *s_fixed;
    }
    const auto sinceEpoch = std::chrono::system_clock::now().time_since_epoch();
    return Instant(std::chrono::duration<double>(sinceEpoch).count());
}

FixedClock::FixedClock(Instant now)
    : m_replaced(Clock::s_fixed)
{
    Clock::s_fixed = now;
}

FixedClock::~FixedClock()
{
    Clock::s_fixed = m_replaced;
}

void FixedClock::moveTo(Instant now)
{
    Clock::s_fixed = now;
}

void FixedClock::advance(double seconds)
{
    Clock::s_fixed = Clock::now() + seconds;
}
