#include "editors/OADateMonth.h"

#include "foundation/Calendar.h"
#include "foundation/DateFormatter.h"
#include "foundation/RegionalSettings.h"
#include "tests/support/Utc.h"

#include <QStringList>
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

namespace {

constexpr int sunday = 1;
constexpr int monday = 2;

/// The days on a page, "." for a place without one, those of other months in brackets.
std::string page(Instant date, int firstWeekday)
{
    const OADateMonth month(Calendar::current(), date, firstWeekday);
    QStringList days;
    for (int place = 0; place < OADateMonth::numberOfPlaces; ++place) {
        const auto& day = month.dayAtPlace(place);
        const auto number = day ? DateFormatter::text(day->start, u"d"_qs) : u"."_qs;
        days.append(day && !day->isInMonth ? QString(u'(' % number % u')') : number);
    }
    return days.join(u' ').toStdString();
}

} // namespace

TEST(OADateMonthTest, EveryDayStandsInTheColumnOfItsWeekday)
{
    struct Row
    {
        const char* name;
        const char* locale;
        const char* zone;
        Instant date;
        int firstWeekday;
        const char* page;
    };
    const std::vector<Row> rows = {
        {"a leap year's February", "en_GB", "UTC", utc(2024, 2, 29), monday,
         "(29) (30) (31) 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20 21 22 23 24 25 26 27 "
         "28 29 (1) (2) (3) (4) (5) (6) (7) (8) (9) (10)"},
        {"a month that needs all six weeks", "en_GB", "UTC", utc(2023, 10, 1), monday,
         "(25) (26) (27) (28) (29) (30) 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20 21 22 "
         "23 24 25 26 27 28 29 30 31 (1) (2) (3) (4) (5)"},
        {"the clocks change at midnight", "en_GB", "America/Sao_Paulo", utc(2018, 11, 20), sunday,
         "(28) (29) (30) (31) 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20 21 22 23 24 25 26 "
         "27 28 29 30 (1) (2) (3) (4) (5) (6) (7) (8)"},
        {"a zone without a 30th", "en_GB", "Pacific/Apia", utc(2011, 12, 15), monday,
         "(28) (29) (30) 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20 21 22 23 24 25 26 27 "
         "28 29 . 31 (1) (2) (3) (4) (5) (6) (7) (8)"},
        {"a week that begins with the day left out", "en_GB", "Pacific/Apia", utc(2012, 1, 10), 6,
         ". (31) 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20 21 22 23 24 25 26 27 28 29 30 "
         "31 (1) (2) (3) (4) (5) (6) (7) (8) (9)"},
        {"a zone with two Mondays in a row", "en_GB", "Pacific/Apia", utc(1892, 7, 20), monday,
         "(27) (28) (29) (30) 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20 21 22 23 24 25 26 "
         "27 28 29 30 31 (1) (2) (3) (4) (5) (6) (7)"},
        {"the change of calendars", "en_GB", "UTC", utc(1582, 10, 20), monday,
         "1 2 3 4 15 16 17 18 19 20 21 22 23 24 25 26 27 28 29 30 31 (1) (2) (3) (4) (5) (6) (7) "
         "(8) (9) (10) (11) (12) (13) (14) (15) (16) (17) (18) (19) (20) (21)"},
        {"the last month of all", "en_GB", "UTC", Instant::latest(), monday,
         "(29) (30) 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20 21 22 23 24 25 26 27 28 29 "
         "30 31 . . . . . . . . ."},
        {"another calendar's month", "fa_IR", "UTC", utc(2024, 3, 25), 7,
         "(۲۶) (۲۷) (۲۸) (۲۹) ۱ ۲ ۳ ۴ ۵ ۶ ۷ ۸ ۹ ۱۰ ۱۱ ۱۲ ۱۳ ۱۴ ۱۵ ۱۶ ۱۷ ۱۸ ۱۹ ۲۰ ۲۱ ۲۲ ۲۳ ۲۴ ۲۵ "
         "۲۶ ۲۷ ۲۸ ۲۹ ۳۰ ۳۱ (۱) (۲) (۳) (۴) (۵) (۶) (۷)"},
    };
    for (const auto& [name, locale, zone, date, firstWeekday, expected] : rows) {
        const ScopedRegionalSettings regional(RegionalSettings(locale, locale, zone));
        EXPECT_EQ(page(date, firstWeekday), expected) << name;
    }
}

TEST(OADateMonthTest, APageOfNoMonthIsEmpty)
{
    for (const double date : {std::nan(""), 1e300, -1e300, 1e12}) {
        const OADateMonth month(Calendar::current(), Instant(date), monday);
        EXPECT_FALSE(month.firstPlaceInMonth()) << date;
        EXPECT_FALSE(month.lastPlaceInMonth()) << date;
        EXPECT_FALSE(month.placeOfDate(Instant(date))) << date;
    }
}

TEST(OADateMonthTest, WeeksBeginAsInTheLocaleWhateverThePreference)
{
    const std::vector<std::pair<const char*, int>> rows = {
        {"en_GB", 2}, {"en_US", 1}, {"de_DE", 2}, {"ar_EG", 7}, {"pt_BR", 1}};
    for (const auto& [locale, weekday] : rows) {
        const ScopedRegionalSettings regional(RegionalSettings(locale, locale, "UTC"));
        for (const std::int64_t preference : {0, 1, 2, 7, -1}) {
            EXPECT_EQ(OADateMonth::firstWeekdayForPreference(preference), weekday) << locale;
        }
    }
}
