#include "model/Calculations.h"

#include "foundation/Calendar.h"
#include "foundation/Clock.h"

namespace Calculations {

Instant beginningOfMonth(Instant date)
{
    return Calendar::current().monthStart(date).value_or(date);
}

Instant endOfMonth(Instant date)
{
    return Calendar::current().monthEnd(date).value_or(date);
}

std::int32_t daysInMonth(Instant date)
{
    return Calendar::current().daysInMonth(date).value_or(0);
}

std::optional<Instant> advance(Instant date, std::int32_t years, std::int32_t months,
                               std::int32_t weeks, std::int32_t days, std::int32_t hours,
                               std::int32_t minutes, std::int32_t seconds)
{
    return Calendar::current().adding(date, {.years = years,
                                             .months = months,
                                             .weeks = weeks,
                                             .days = days,
                                             .hours = hours,
                                             .minutes = minutes,
                                             .seconds = seconds});
}

std::optional<Instant> monthsSince(Instant date, std::int32_t months)
{
    return advance(date, 0, months, 0, 0, 0, 0, 0);
}

std::optional<Instant> nextMonth(Instant date)
{
    return monthsSince(date, 1);
}

std::optional<Instant> prevMonth(Instant date)
{
    return monthsSince(date, -1);
}

bool isSameMonth(Instant left, Instant right)
{
    const auto leftComponents = Calendar::current().components(left);
    const auto rightComponents = Calendar::current().components(right);
    return leftComponents && rightComponents && leftComponents->year == rightComponents->year &&
           leftComponents->month == rightComponents->month;
}

bool future(Instant date)
{
    return date >= Clock::now();
}

} // namespace Calculations
