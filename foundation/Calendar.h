#pragma once

#include "foundation/Instant.h"

#include <cstdint>
#include <memory>
#include <optional>

/// What an instant is called where the person is, and arithmetic with such names.
///
/// Every operation reads the instant in the calendar's own time zone. It answers nothing for an
/// instant that no calendar expresses, and where its result would be one.
class Calendar
{
public:
    struct Components
    {
        /// Counts on through all eras, so that two years are the same year exactly when their
        /// numbers are equal. It is not always the number that a date shows.
        int year = 0;
        int month = 1; ///< From 1.
        int day = 1;   ///< Of the month, from 1.
        int hour = 0;
        int minute = 0;
        int weekday = 1; ///< 1 is Sunday, 7 is Saturday.
    };

    /// Amounts to move an instant by; negative ones move it back.
    struct Amounts
    {
        std::int32_t years = 0;
        std::int32_t months = 0;
        std::int32_t weeks = 0;
        std::int32_t days = 0;
        std::int32_t hours = 0;
        std::int32_t minutes = 0;
        std::int32_t seconds = 0;
    };

    class MonthStarts;

    /// The calendar that people use in the locale of the dates, in the time zone in force. It
    /// follows the regional settings each time it is asked for.
    static const Calendar& current();
    /// The Gregorian calendar in the time zone in force.
    static const Calendar& gregorian();

    /// Whether calendars have a name for the instant: it is a number, and less than some 300,000
    /// years away.
    static bool expresses(Instant instant);

    Calendar(const Calendar&) = delete;
    Calendar& operator=(const Calendar&) = delete;
    ~Calendar();

    std::optional<Components> components(Instant date) const;

    /// The instant with these components, at second 0; their weekday is not looked at. Absent when
    /// there is no such day or time. A time that the clocks leave out on that day moves forward, of
    /// one that they repeat it is the first.
    std::optional<Instant> instant(const Components& components) const;

    /// The first instant of the month that `date` lies in. It is midnight, or the time that the
    /// clocks went forward to when they left midnight out.
    std::optional<Instant> monthStart(Instant date) const;

    /// The last whole second of the month that `date` lies in.
    std::optional<Instant> monthEnd(Instant date) const;

    /// The number of the last day of the month that `date` lies in.
    std::optional<int> daysInMonth(Instant date) const;

    /// `date` moved by all the amounts in one step: first by the years and months together, where a
    /// day that the month reached does not have becomes that month's last day; then by the weeks
    /// and days, at the same time of day; then by the rest, as elapsed time. Fractions of a second
    /// stay as they are.
    std::optional<Instant> adding(Instant date, const Amounts& amounts) const;

    /// The day that weeks begin with where the person is; 1 is Sunday, 7 is Saturday.
    int firstWeekday() const;

private:
    enum class Kind
    {
        Preferred,
        Gregorian
    };
    struct Engine;

    explicit Calendar(Kind kind);
    void followSettings();
    std::optional<Instant> startOfMonth(int year, int month) const;

    Kind m_kind;
    std::unique_ptr<Engine> m_engine;
};

/// Walks from month to month, cheaply enough to draw an axis with: a step sets the month of the
/// calendar's one engine instead of adding to an instant, and so never drifts from midnight.
class Calendar::MonthStarts
{
public:
    /// Starts with the month that `date` lies in. The calendar must outlive the walk.
    MonthStarts(const Calendar& calendar, Instant date);

    /// The first instant of the month, the next month's when called again. Absent when the
    /// calendar cannot express it.
    std::optional<Instant> next();

private:
    const Calendar& m_calendar;
    std::optional<Components> m_first;
    int m_steps = 0;
};
