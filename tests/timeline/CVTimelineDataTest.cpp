#include "timeline/CVTimelineData.h"

#include "foundation/Calendar.h"
#include "foundation/RegionalSettings.h"
#include "tests/support/CardStore.h"
#include "tests/support/Utc.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

/// A store with a statement at each of the dates.
class CVTimelineDataTest : public testing::Test
{
protected:
    void store(const std::vector<Instant>& dates)
    {
        auto& card = m_store.insertCard(QStringLiteral("Everyday"));
        for (const auto date : dates) {
            m_store.insertStatement(&card, date);
        }
        m_store.save();
    }

    CVTimelineData axis(double width)
    {
        CVTimelineData data;
        data.calculateTimelineWithContext(m_store.context(), QRectF(50, 7, width, 30));
        return data;
    }

    CardStore m_store;
};

std::vector<QRectF> years(const CVTimelineData& data)
{
    std::vector<QRectF> rects;
    data.enumerateYearsUsingBlock([&](Instant /*date*/, const QRectF& rect) {
        rects.push_back(rect);
        return true;
    });
    return rects;
}

} // namespace

TEST_F(CVTimelineDataTest, IsEmptyWithoutStatements)
{
    store({});
    const auto data = axis(416);
    EXPECT_TRUE(data.tickOffsets().empty() && data.tickRectangles().empty());
    EXPECT_TRUE(data.tickDates().empty() && !data.monthTicksHidden());
    EXPECT_TRUE(data.enumerateYearsUsingBlock([](Instant, const QRectF&) { return false; }));
}

TEST_F(CVTimelineDataTest, SpansTheOnlyMonthOfAllStatements)
{
    store({utc(2013, 12, 15, 9), utc(2013, 12, 20)});
    const auto data = axis(416);
    EXPECT_EQ(data.tickOffsets(), (std::vector<CVTickOffset>{{8.5, false}, {408.5, true}}));
    EXPECT_EQ(data.tickRectangles(), std::vector{QRectF(9, 7, 400, 30)});
    EXPECT_EQ(data.tickDates(), std::vector{utc(2013, 12, 1)});
    EXPECT_EQ(data.description(),
              QStringLiteral("tickOffsets: (8.5, 408.5 (year)), tickRectangles: ({{9, 7}, {400, "
                             "30}}), tickDates: (2013-12-01)"));
}

TEST_F(CVTimelineDataTest, PutsEachMonthWhereItsSecondsSay)
{
    store({utc(2012, 2, 3), utc(2010, 3, 9), utc(2011, 7, 1)});
    const auto start = utc(2010, 3, 1);
    const auto end = utc(2012, 2, 29, 23, 59, 59);
    for (const double width : {116.5, 700.0, 1100.0, 11'000.0}) {
        const auto data = axis(width);
        const auto& ticks = data.tickOffsets();
        ASSERT_TRUE(ticks.size() == 25 && data.tickRectangles().size() == 24);
        const auto length = [&](double seconds) {
            return std::floor(seconds / ((end - start) / (width - 16)));
        };
        for (unsigned month = 0; month < 24; ++month) {
            const auto date = utc(2010 + int(month + 2) / 12, (month + 2) % 12 + 1, 1);
            const double left = ticks[month].offset;
            const double right =
                month < 23 ? ticks[month + 1].offset : left + length(end - utc(2012, 2, 1));
            EXPECT_EQ(data.tickDates()[month], date);
            EXPECT_EQ(ticks[month],
                      (CVTickOffset{length(date - start) + 8.5, month == 10 || month == 22}));
            EXPECT_EQ(data.tickRectangles()[month], QRectF(left + 0.5, 7, right - left, 30));
        }
        EXPECT_EQ(ticks.back(), (CVTickOffset{length(end - start) + 8.5, false}));

        ASSERT_EQ(years(data).size(), 3U);
        EXPECT_EQ(years(data)[0], QRectF(9, 7, ticks[10].offset - 8.5, 30));
        EXPECT_EQ(years(data)[1].right(), years(data)[2].left());
        int calls = 0;
        EXPECT_FALSE(
            data.enumerateYearsUsingBlock([&](Instant, const QRectF&) { return ++calls == 5; }));
        EXPECT_EQ(calls, 1);
    }
}

TEST_F(CVTimelineDataTest, HidesMonthsWhenOneBesidesTheLastIsNarrow)
{
    store({utc(2011, 1, 1), utc(2011, 2, 28)});
    EXPECT_FALSE(axis(24).monthTicksHidden()) << "4 points for January, 3 for February";
    EXPECT_TRUE(axis(23).monthTicksHidden());
    store({utc(2012, 12, 31)});
    EXPECT_TRUE(axis(100).monthTicksHidden());
    EXPECT_TRUE(axis(100).tickOffsets().front().isYear && axis(100).tickOffsets().back().isYear);
    EXPECT_FALSE(axis(1000).monthTicksHidden());
}

TEST_F(CVTimelineDataTest, FollowsTheCalendarAndZoneOfThePerson)
{
    const std::vector<std::tuple<const char*, const char*, std::size_t, Instant>> rows = {
        {"en_GB", "Europe/Berlin", 14, utc(2013, 3, 31, 22)},
        {"es_CU", "America/Havana", 14, utc(2013, 4, 1, 4)},
        {"fa_IR", "Asia/Tehran", 13, utc(2013, 4, 20, 19, 30)},
    };
    store({utc(2013, 3, 27), utc(2014, 4, 12)});
    for (const auto& [locale, zone, months, second] : rows) {
        const ScopedRegionalSettings regional({locale, locale, zone});
        const auto data = axis(1416);
        ASSERT_EQ(data.tickDates().size(), months) << zone;
        EXPECT_EQ(data.tickDates()[1], second) << zone;
        for (std::size_t index = 0; index < months; ++index) {
            const auto components = Calendar::current().components(data.tickDates()[index]);
            EXPECT_TRUE(components->day == 1 && components->hour == 0) << zone << index;
            // Years are Gregorian: the tenth month after the first begins in January.
            EXPECT_EQ(data.tickOffsets()[index].isYear, index == 10) << zone << index;
            EXPECT_NEAR(data.tickRectangles()[index].width(), 100, 10) << zone << index;
        }
        EXPECT_EQ(years(data).size(), 2U) << zone;
    }
}

TEST_F(CVTimelineDataTest, TakesAnyWidthAndAnySpan)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    store({utc(2013, 1, 15), utc(2013, 3, 15)});
    for (const double width : {16.0, 15.0, 0.0, -1e300, 1e308, infinity, -infinity, double(NAN)}) {
        EXPECT_EQ(axis(width).tickOffsets().size(), 4U) << width;
        EXPECT_EQ(axis(width).tickRectangles().size(), 3U) << width;
    }
    EXPECT_EQ(axis(16).tickOffsets().back().offset, 8.5);
    EXPECT_TRUE(axis(16).monthTicksHidden());
    EXPECT_LT(axis(10).tickOffsets().back().offset, 8.5) << "a negative scale runs to the left";

    store({Instant::earliest() + 3e6, Instant::latest()});
    const auto data = axis(1100);
    EXPECT_EQ(data.tickDates().size(), 9'998U * 12 + 11);
    EXPECT_EQ(years(data).size(), 9'999U);
}
