#include "editors/OADateMonth.h"

#include "foundation/Calendar.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr int firstYear = 1;
constexpr int lastYear = 9999;

/// The first instant of the first day after (`step` 1) or before (-1) the one that begins at
/// `start`.
std::optional<Instant> startOfNextDay(const Calendar& calendar, Instant start, int step)
{
    // Where a time zone had a day twice, the next one is two days away.
    for (const int days : {step, 2 * step}) {
        const auto moved = calendar.adding(start, {.days = days});
        const auto found = moved ? OADateMonth::startOfDay(calendar, *moved) : std::nullopt;
        if (found && *found != start) {
            return found;
        }
    }
    return std::nullopt;
}

} // namespace

OADateMonth::OADateMonth(const Calendar& calendar, Instant date, int firstWeekday)
    : m_calendar(calendar)
{
    const auto monthStart = calendar.monthStart(date);
    const auto month = monthStart ? calendar.components(*monthStart) : std::nullopt;
    if (!month) {
        return;
    }
    const auto columnOf = [&](const Calendar::Components& day) {
        return (day.weekday - firstWeekday + daysPerWeek) % daysPerWeek;
    };

    auto start = *monthStart;
    for (int column = columnOf(*month); column > 0;) {
        const auto previous = startOfNextDay(calendar, start, -1);
        const auto day = previous ? calendar.components(*previous) : std::nullopt;
        // Also when the day that the week should begin with was left out.
        if (!day || columnOf(*day) >= column) {
            break;
        }
        start = *previous;
        column = columnOf(*day);
    }

    int week = 0;
    int lastColumn = -1;
    for (auto next = std::optional(start); next; next = startOfNextDay(calendar, *next, 1)) {
        const auto day = calendar.components(*next);
        if (!day) {
            return;
        }
        const int column = columnOf(*day);
        if (column <= lastColumn) {
            ++week;
        }
        if (week == numberOfWeeks) {
            return;
        }
        lastColumn = column;
        if (isShowable(*next)) {
            const bool isInMonth = day->year == month->year && day->month == month->month;
            const int place = week * daysPerWeek + column;
            m_days.at(static_cast<std::size_t>(place)) = Day{*next, isInMonth};
        }
    }
}

int OADateMonth::firstWeekdayForPreference(std::int64_t preference)
{
    // Both choices come to the same for as long as the person's calendar has the weeks of the
    // locale, which it has: the preference cannot name a weekday of its own.
    const int ofLocale = Calendar::current().firstWeekday();
    const int wanted = preference == 0 ? 0 : ofLocale;
    return wanted == 0 ? ofLocale : wanted;
}

std::optional<Instant> OADateMonth::startOfDay(const Calendar& calendar, Instant date)
{
    auto components = calendar.components(date);
    if (!components) {
        return std::nullopt;
    }
    components->hour = 0;
    components->minute = 0;
    return calendar.instant(*components);
}

bool OADateMonth::isShowable(Instant date)
{
    const auto day = date.isSupported() ? Calendar::gregorian().components(date) : std::nullopt;
    return day && day->year >= firstYear && day->year <= lastYear;
}

const std::optional<OADateMonth::Day>& OADateMonth::dayAtPlace(int place) const
{
    return m_days.at(static_cast<std::size_t>(place));
}

std::optional<int> OADateMonth::placeOfDate(Instant date) const
{
    const auto start = startOfDay(m_calendar, date);
    const auto found = std::ranges::find_if(
        m_days, [&](const auto& day) { return day && start && day->start == *start; });
    return found == m_days.end()
               ? std::nullopt
               : std::optional(static_cast<int>(std::distance(m_days.begin(), found)));
}

std::optional<int> OADateMonth::firstPlaceInMonth() const
{
    for (int place = 0; place < numberOfPlaces; ++place) {
        if (dayAtPlace(place) && dayAtPlace(place)->isInMonth) {
            return place;
        }
    }
    return std::nullopt;
}

std::optional<int> OADateMonth::lastPlaceInMonth() const
{
    for (int place = numberOfPlaces - 1; place >= 0; --place) {
        if (dayAtPlace(place) && dayAtPlace(place)->isInMonth) {
            return place;
        }
    }
    return std::nullopt;
}
