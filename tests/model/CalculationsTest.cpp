#include "model/Calculations.h"

#include "foundation/Clock.h"
#include "foundation/RegionalSettings.h"
#include "tests/support/Utc.h"

#include <gtest/gtest.h>

#include <array>

using namespace Calculations;

TEST(CalculationsTest, FollowTheClocksOfThePerson)
{
    struct Row
    {
        const char *name, *zone;
        Instant date, beginning, end, next, previous;
    };
    const auto rows = std::to_array<Row>({
        {"forward in this month", "Europe/Berlin", utc(2013, 3, 31, 21, 30), utc(2013, 2, 28, 23),
         utc(2013, 3, 31, 21, 59, 59), utc(2013, 4, 30, 21, 30), utc(2013, 2, 28, 22, 30)},
        {"back in this month", "Europe/Berlin", utc(2013, 10, 15, 8), utc(2013, 9, 30, 22),
         utc(2013, 10, 31, 22, 59, 59), utc(2013, 11, 15, 9), utc(2013, 9, 15, 8)},
        {"next midnight left out", "America/Sao_Paulo", utc(2017, 9, 15, 3), utc(2017, 9, 1, 3),
         utc(2017, 10, 1, 2, 59, 59), utc(2017, 10, 15, 3), utc(2017, 8, 15, 3)},
        {"leap day", "UTC", utc(2012, 1, 31, 10), utc(2012, 1, 1), utc(2012, 1, 31, 23, 59, 59),
         utc(2012, 2, 29, 10), utc(2011, 12, 31, 10)},
    });
    for (const auto& row : rows) {
        const ScopedRegionalSettings regional({"en_GB", "en_GB", row.zone});
        EXPECT_EQ(beginningOfMonth(row.date), row.beginning) << row.name;
        EXPECT_EQ(endOfMonth(row.date), row.end) << row.name;
        EXPECT_EQ(nextMonth(row.date), row.next) << row.name;
        EXPECT_EQ(prevMonth(row.date), row.previous) << row.name;
        EXPECT_EQ(monthsSince(row.date, 0), row.date) << row.name;
    }
}

TEST(CalculationsTest, MoveByAllAmountsAtOnceAndNotBeyondCalendars)
{
    EXPECT_EQ(advance(utc(2013, 1, 31, 10), 1, 1, 1, 2, 3, 4, 5), utc(2014, 3, 9, 13, 4, 5));
    EXPECT_EQ(monthsSince(utc(2013, 1, 31), 2'000'000'000), std::nullopt);
    EXPECT_EQ(daysInMonth(utc(2012, 2, 10)), 29);
    EXPECT_EQ(daysInMonth(Instant(1e300)), 0);
    EXPECT_EQ(beginningOfMonth(Instant(1e300)), Instant(1e300));
    EXPECT_EQ(endOfMonth(Instant(1e300)), Instant(1e300));
}

TEST(CalculationsTest, CountThePresentAsFuture)
{
    const FixedClock clock(utc(2013, 3, 15));
    EXPECT_FALSE(future(utc(2013, 3, 14, 23, 59, 59)));
    EXPECT_TRUE(future(utc(2013, 3, 15)));
}
