#pragma once

#include "foundation/Instant.h"

#include <array>
#include <cstdint>
#include <optional>

class Calendar;

/// A month on a calendar's page: weeks below each other, each of seven places, filled up with days
/// of the months before and after.
///
/// A day stands in the column of its weekday, always. Where a calendar or a time zone leaves out a
/// day, its place is empty, and so are the places of days outside the years 1 to 9999.
class OADateMonth
{
public:
    static constexpr int daysPerWeek = 7;
    /// Enough for every month.
    static constexpr int numberOfWeeks = 6;
    static constexpr int numberOfPlaces = daysPerWeek * numberOfWeeks;

    struct Day
    {
        Instant start; ///< The first instant of the day.
        bool isInMonth;
    };

    /// The month that `date` lies in; a page of empty places when the calendar cannot express it.
    /// Weeks begin with `firstWeekday`; 1 is Sunday, 7 is Saturday.
    OADateMonth(const Calendar& calendar, Instant date, int firstWeekday);

    /// The weekday that weeks begin with on a page, as the person's calendar has it. `preference`
    /// is what the user defaults say under "FirstDayOfTheWeek": 0 names no weekday and leaves the
    /// choice to the locale, any other number asks for the calendar's.
    static int firstWeekdayForPreference(std::int64_t preference);

    /// The first instant of the day that `date` lies in; absent when the calendar cannot express
    /// it.
    static std::optional<Instant> startOfDay(const Calendar& calendar, Instant date);
    /// Whether the date lies in the years 1 to 9999, which are those that a page shows.
    static bool isShowable(Instant date);

    /// The day at a place, counted from 0, week by week. Throws std::out_of_range for no place.
    const std::optional<Day>& dayAtPlace(int place) const;
    /// Where the day that `date` lies in is; absent when it is not on this page.
    std::optional<int> placeOfDate(Instant date) const;
    /// The places of the first and the last day of the month itself; absent on an empty page.
    std::optional<int> firstPlaceInMonth() const;
    std::optional<int> lastPlaceInMonth() const;

private:
    const Calendar& m_calendar;
    std::array<std::optional<Day>, numberOfPlaces> m_days;
};
