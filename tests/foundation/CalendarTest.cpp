#include "foundation/Calendar.h"

#include "foundation/RegionalSettings.h"
#include "tests/support/Utc.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <utility>
#include <vector>

namespace {

constexpr auto largest = std::numeric_limits<std::int32_t>::max();
constexpr auto smallest = std::numeric_limits<std::int32_t>::min();

} // namespace

TEST(CalendarTest, KnowsWhereMonthsBeginAndEnd)
{
    struct Row
    {
        const char *name, *locale, *zone;
        Instant inside, start, end;
        int days;
    };
    const std::vector<Row> rows = {
        {"clocks go forward", "en_GB", "Europe/Berlin", utc(2013, 3, 31, 21, 30),
         utc(2013, 2, 28, 23), utc(2013, 3, 31, 21, 59, 59), 31},
        {"midnight left out", "es_PY", "America/Asuncion", utc(1995, 10, 1, 4), utc(1995, 10, 1, 4),
         utc(1995, 11, 1, 2, 59, 59), 31},
        {"first of two midnights", "es_CU", "America/Havana", utc(2026, 11, 1, 4, 30),
         utc(2026, 11, 1, 4), utc(2026, 12, 1, 4, 59, 59), 30},
        {"a fraction before 1970", "en_GB", "UTC", Instant(-0.25), utc(1969, 12, 1),
         utc(1969, 12, 31, 23, 59, 59), 31},
        {"Persian leap year", "fa_IR", "Asia/Tehran", utc(2013, 3, 1), utc(2013, 2, 18, 20, 30),
         utc(2013, 3, 20, 20, 29, 59), 30},
        {"Buddhist leap year", "th_TH", "Asia/Bangkok", utc(2012, 2, 10), utc(2012, 1, 31, 17),
         utc(2012, 2, 29, 16, 59, 59), 29},
    };
    for (const auto& row : rows) {
        const ScopedRegionalSettings regional({row.locale, row.locale, row.zone});
        EXPECT_EQ(Calendar::current().monthStart(row.inside), row.start) << row.name;
        EXPECT_EQ(Calendar::current().monthEnd(row.inside), row.end) << row.name;
        EXPECT_EQ(Calendar::current().daysInMonth(row.inside), row.days) << row.name;
    }
}

TEST(CalendarTest, WalksMonthsWithoutGapOrOverlap)
{
    const std::vector<std::pair<const char*, const char*>> rows = {
        {"en_GB", "Europe/Berlin"}, {"pt_BR", "America/Sao_Paulo"}, {"es_CU", "America/Havana"},
        {"en_WS", "Pacific/Apia"},  {"fa_IR", "Asia/Tehran"},       {"ar_SA", "Asia/Riyadh"}};
    for (const auto& [locale, zone] : rows) {
        const ScopedRegionalSettings regional({locale, locale, zone});
        const auto& calendar = Calendar::current();
        Calendar::MonthStarts months(calendar, utc(1950, 6, 15));
        auto before = calendar.components(utc(1950, 6, 15)).value();
        months.next();
        for (int step = 0; step < 1'000; ++step) {
            const auto start = months.next().value();
            const auto first = calendar.components(start).value();
            ASSERT_EQ(calendar.components(start + -1.0)->month, before.month) << zone << step;
            ASSERT_EQ(first.month, before.month % 12 + 1) << zone << step;
            ASSERT_EQ(first.year, before.year + before.month / 12) << zone << step;
            before = first;
        }
    }
}

TEST(CalendarTest, AddsAllAmountsInOneStep)
{
    struct Row
    {
        const char* name;
        Instant from;
        Calendar::Amounts add;
        Instant expected;
        const char* zone = "UTC";
        const char* locale = "en_GB";
    };
    const auto third = 1.0 / 3.0;
    const std::vector<Row> rows = {
        {"to a shorter month", utc(2013, 1, 31, 10), {.months = 1}, utc(2013, 2, 28, 10)},
        {"years with months", utc(2012, 2, 29), {.years = 1, .months = 36}, utc(2016, 2, 29)},
        {"months before days", utc(2013, 1, 31), {.months = 1, .days = 1}, utc(2013, 3, 1)},
        {"all back", utc(2013, 3, 1), {-1, -1, -1, -1, -1, -1, -1}, utc(2012, 1, 23, 22, 58, 59)},
        {"fraction", utc(2013, 1, 1) + third, {.months = 1}, utc(2013, 2, 1) + third},
        {"fraction before 1970", Instant(-0.25), {.days = -1}, Instant(-86'400.25)},
        {"week", utc(2013, 3, 25, 9), {.weeks = 1}, utc(2013, 4, 1, 8), "Europe/Berlin"},
        {"hours", utc(2013, 3, 30, 11), {.hours = 24}, utc(2013, 3, 31, 11), "Europe/Berlin"},
        {"later of equal times", utc(2013, 10, 27, 1), {}, utc(2013, 10, 27, 1), "Europe/Berlin"},
        {"no midnight", utc(2017, 9, 15, 3), {.months = 1}, utc(2017, 10, 15, 3), "Brazil/East"},
        {"Persian", utc(2013, 9, 22), {.months = 1}, utc(2013, 10, 22), "UTC", "fa_IR"},
        {"Buddhist", utc(2012, 2, 29), {.years = 1}, utc(2013, 2, 28), "UTC", "th_TH"},
    };
    for (const auto& row : rows) {
        const ScopedRegionalSettings regional({row.locale, row.locale, row.zone});
        EXPECT_EQ(Calendar::current().adding(row.from, row.add), row.expected) << row.name;
    }
}

TEST(CalendarTest, NamesAnInstantAndFindsItAgain)
{
    const ScopedRegionalSettings regional({"fa_IR", "fa_IR", "Asia/Tehran"});
    const auto date = utc(2013, 7, 15, 20);
    const auto components = Calendar::current().components(date).value();
    const auto& [year, month, day, hour, minute, weekday] = components;
    EXPECT_EQ((std::array{year, month, day, hour, minute, weekday}),
              (std::array{1392, 4, 25, 0, 30, 3}));
    EXPECT_EQ(Calendar::current().firstWeekday(), 7);
    EXPECT_EQ(Calendar::current().instant(components), date);
    EXPECT_EQ(Calendar::gregorian().instant({2013, 7, 16, 0, 30}), date);
}

TEST(CalendarTest, FindsNothingForADayOrTimeThatDoesNotExist)
{
    const std::vector<Calendar::Components> rows = {
        {2013, 2, 29}, {2013, 13},          {2013, smallest},   {2013, 1, largest},
        {largest},     {2013, 1, 1, 24, 0}, {2013, 1, 1, 0, -1}};
    for (const auto& row : rows) {
        EXPECT_FALSE(Calendar::gregorian().instant(row)) << row.year << " " << row.month;
    }
}

TEST(CalendarTest, AnswersNothingBeyondWhatCalendarsExpress)
{
    const std::vector<Calendar::Amounts> tooMuch = {{largest}, {0, largest}, {0, 0, 0, smallest}};
    for (const char* locale : {"en_GB", "fa_IR", "th_TH", "ar_SA"}) {
        const ScopedRegionalSettings regional({locale, locale, "UTC"});
        const auto& calendar = Calendar::current();
        for (const double far : {std::nan(""), HUGE_VAL, -HUGE_VAL, 1e300, 1.1e13, -1.1e13}) {
            const Instant date(far);
            EXPECT_FALSE(calendar.components(date) || calendar.daysInMonth(date)) << far;
            EXPECT_FALSE(calendar.monthStart(date) || calendar.monthEnd(date)) << far;
            EXPECT_FALSE(calendar.adding(date, {})) << far;
        }
        for (const auto& amounts : tooMuch) {
            EXPECT_FALSE(calendar.adding(utc(2013, 1, 31), amounts)) << locale;
        }
        EXPECT_TRUE(calendar.adding(utc(2013, 1, 31), {.months = 100'000})) << locale;
    }
}
