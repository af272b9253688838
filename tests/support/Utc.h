#pragma once

#include "foundation/Instant.h"

#include <chrono>

/// An instant by its UTC date and time, reckoned without the calendars under test.
inline Instant utc(int year, unsigned month, unsigned day, int hour = 0, int minute = 0,
                   int second = 0)
{
    using namespace std::chrono;
    const sys_seconds time =
        sys_days(year_month_day(std::chrono::year(year), std::chrono::month(month),
                                std::chrono::day(day))) +
        hours(hour) + minutes(minute) + seconds(second);
    return Instant(static_cast<double>(time.time_since_epoch().count()));
}
