#pragma once

#include "foundation/Instant.h"

#include <QString>

#include <optional>

/// The formatter of a date field: writes a date as the locale of the dates does, and reads what
/// people type for one, in their locale, calendar and time zone, relative to the present day.
class RelativeDateFormatter
{
public:
    struct TimeOfDay
    {
        int hour = 0;
        int minute = 0;

        friend bool operator==(const TimeOfDay&, const TimeOfDay&) = default;
    };

    /// The time of day that a date read from a text has; midnight unless set. Where the clocks
    /// leave that time out on a day, they go forward from it.
    const TimeOfDay& defaultTimeDateComponents() const { return m_defaultTime; }
    /// Throws std::out_of_range when there is no such time.
    void setDefaultTimeDateComponents(const TimeOfDay& time);

    /// Today at the default time of day, in the person's calendar.
    Instant defaultDate() const;

    /// The date in the locale's short style, with a year of four digits ("15/07/2013"); in ISO
    /// form ("0600-07-15") when it lies before the first year of the person's calendar. Whatever
    /// this writes for a supported instant, dateFromString() reads as the same day.
    QString stringFromDate(Instant date) const;

    /// The day that the text names, at the default time. Absent for a text that is not understood,
    /// can mean two different days or names one that does not exist, when the year lies outside 1
    /// to 9999, and for a text of more than 200 characters.
    ///
    /// Understood, whatever the case, the blanks and the script of the digits, are:
    /// - the locale's full, long, medium and short dates, also with other usual separators and with
    ///   the month's name elsewhere; 2013-07-15; English names in every locale;
    /// - such dates without a year or with one of two digits: the latest that is not in the future;
    /// - a month and a year, or the name of a month, the latest past one: its first day;
    /// - weekdays, the latest one up to today, or with "last" up to yesterday;
    /// - "today", "yesterday", "tomorrow"; "last week" ("month", "year"); "3 weeks ago", "a month
    ///   ago"; "-2d", "+1m", "1y" (ahead); their translations and the locale's own such words.
    std::optional<Instant> dateFromString(const QString& text) const;

    /// One day, and one month, later or earlier in the person's calendar, at the same time of day;
    /// a month's step from a day that the other month does not have leads to its last day. An
    /// absent value, or one that is no supported date, steps from now. A step never leaves the
    /// years 1 to 9999: it ends at their first or last instant.
    Instant stepUpValue(std::optional<Instant> value) const;
    Instant largeStepUpValue(std::optional<Instant> value) const;
    Instant stepDownValue(std::optional<Instant> value) const;
    Instant largeStepDownValue(std::optional<Instant> value) const;

private:
    TimeOfDay m_defaultTime;
};
