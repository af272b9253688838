#pragma once

#include "foundation/Calendar.h"
#include "foundation/DateWords.h"
#include "foundation/Instant.h"
#include "foundation/TypedText.h"

#include <optional>
#include <string_view>

/// Reads a text that names a day by its place in the calendar: "15/7", "July 15, 2013",
/// "2013-07-15", "July".
///
/// A day without a year is the latest such day that is not in the future, and so is one whose year
/// has two digits. A month without a day is its first day.
class CalendarDateReader
{
public:
    /// `text` is in comparable form and outlives the reader; `today` is any time of the day that
    /// the text is relative to.
    CalendarDateReader(std::u32string_view text, Instant today);

    /// Noon of the day that the text names; absent when it names none, or one that does not exist.
    std::optional<Instant> read() const;

private:
    /// The day, month (M: its number, N: its name) and year (Y: in full, y: also in two digits)
    /// that a text is made of, in their order.
    using Layout = std::string_view;

    enum class Place
    {
        Start,
        BetweenNumbers,
        Between,
        End
    };

    /// Names of months and the calendar that they belong to.
    struct Months
    {
        const TypedText::Names& names;
        const Calendar& calendar;
        int yearShift;
    };

    /// What a text says of a day, as it says it.
    struct Fields
    {
        std::optional<TypedText::Number> year;
        int month = 0;
        int day = 1;
        std::optional<int> weekday;
    };

    enum class Weekday
    {
        None,
        First,
        Last
    };

    std::optional<Instant> isoDate() const;
    std::optional<Instant> read(Layout layout, const Months& months) const;
    std::optional<Fields> fields(Layout layout, const Months& months, Weekday weekday) const;
    bool takeField(TypedText& text, char field, const Months& months, Fields& fields) const;
    bool takeSeparation(TypedText& text, Place place, char before, char behind) const;
    bool takeParticle(TypedText& text, char before, char behind) const;

    std::optional<Instant> day(const Fields& fields, const Months& months) const;

    std::u32string_view m_text;
    Instant m_today;
    const DateWords& m_words;
    TypedText::Names m_fillingWords;
};
