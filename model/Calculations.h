#pragma once

#include "foundation/Instant.h"

#include <cstdint>
#include <optional>

/// Arithmetic with months, in the person's calendar and time zone as they are at the call.
namespace Calculations {

/// The first day of the date's month at 00:00:00. A date that no calendar expresses is its own.
Instant beginningOfMonth(Instant date);
/// The last whole second of the date's month: its last day at 23:59:59. A date that no calendar
/// expresses is its own.
Instant endOfMonth(Instant date);
/// 28 to 31 in the Gregorian calendar; 0 for a date that no calendar expresses.
std::int32_t daysInMonth(Instant date);

/// The date moved by all the amounts in one step; negative ones move it back. Where the month
/// reached has fewer days, its last day. Absent when no calendar expresses the result.
std::optional<Instant> advance(Instant date, std::int32_t years, std::int32_t months,
                               std::int32_t weeks, std::int32_t days, std::int32_t hours,
                               std::int32_t minutes, std::int32_t seconds);
/// The date moved forward by a number of months (it is a shift, not a difference).
std::optional<Instant> monthsSince(Instant date, std::int32_t months);
std::optional<Instant> nextMonth(Instant date);
std::optional<Instant> prevMonth(Instant date);

/// Whether two dates lie in the same month of the same year.
bool isSameMonth(Instant left, Instant right);

/// Whether the date is not earlier than now.
bool future(Instant date);

} // namespace Calculations
