#include "foundation/RelativeDateFormatter.h"

#include "foundation/Calendar.h"
#include "foundation/Clock.h"
#include "foundation/OASteppableTextFieldFormatter.h"
#include "foundation/RegionalSettings.h"
#include "tests/support/Utc.h"

#include <QCoreApplication>
#include <QDate>
#include <QTranslator>
#include <gtest/gtest.h>
#include <unicode/locid.h>
#include <unicode/smpdtfmt.h>

#include <cmath>
#include <map>
#include <memory>
#include <utility>
#include <vector>

namespace {

RegionalSettings at(const char* locale, const char* zone = "Europe/Berlin")
{
    return {locale, locale, zone};
}

/// The day and time that the text is read as, or "-".
std::string reading(const QString& text, const RelativeDateFormatter& formatter = {})
{
    const auto date = formatter.dateFromString(text);
    const auto components =
        date ? Calendar::gregorian().components(*date) : std::optional<Calendar::Components>();
    if (!components) {
        return "-";
    }
    const auto& [year, month, day, hour, minute, weekday] = *components;
    auto result = QDate(year, month, day).toString(Qt::ISODate);
    if (hour + minute > 0) {
        result += u" %1:%2"_qs.arg(hour).arg(minute, 2, 10, QChar(u'0'));
    }
    return result.toStdString();
}

using Rows = std::vector<std::pair<const char*, const char*>>;

/// Reads each row's text on Wednesday 17 July 2013, at noon.
void expectReadings(const char* locale, const Rows& rows)
{
    const ScopedRegionalSettings regional(at(locale));
    const FixedClock clock(utc(2013, 7, 17, 10));
    for (const auto& [text, expected] : rows) {
        EXPECT_EQ(reading(QString::fromUtf8(text)), expected) << locale << ": " << text;
    }
}

} // namespace

TEST(RelativeDateFormatterTest, ReadsWhatPeopleTypeInBritain)
{
    expectReadings("en_GB", {
                                {"15/07/2013", "2013-07-15"},
                                {" 15 - 7.2013 ", "2013-07-15"},
                                {"15 7 13", "2013-07-15"},
                                {"１５／０７／２０１３", "2013-07-15"},
                                {"15\n July,\r\n 2013", "2013-07-15"},
                                {"Monday, 15 July 2013", "2013-07-15"},
                                {"mon 15 jul", "2013-07-15"},
                                {"July the 15th 2013", "2013-07-15"},
                                {"15july13", "2013-07-15"},
                                {"3 Sept. 2012", "2012-09-03"},
                                {"2013-07-15", "2013-07-15"},
                                {"2013/7/5", "2013-07-05"},
                                {"1/2/0025", "0025-02-01"},
                                {"17/7", "2013-07-17"},
                                {"18/7", "2012-07-18"},
                                {"29 Feb", "2012-02-29"},
                                {"18/7/13", "1913-07-18"},
                                {"1/1/14", "1914-01-01"},
                                {"31/12/99", "1999-12-31"},
                                {"July", "2013-07-01"},
                                {"august", "2012-08-01"},
                                {"Aug 2014", "2014-08-01"},
                                {"8/2012", "2012-08-01"},
                                {"wednesday", "2013-07-17"},
                                {"Thu", "2013-07-11"},
                                {"last wednesday", "2013-07-10"},
                                {"LAST  TUE", "2013-07-16"},
                                {"Today", "2013-07-17"},
                                {"yesterday", "2013-07-16"},
                                {"tomorrow", "2013-07-18"},
                                {"last week", "2013-07-10"},
                                {"last month", "2013-06-17"},
                                {"last year", "2012-07-17"},
                                {"3 weeks ago", "2013-06-26"},
                                {"a month ago", "2013-06-17"},
                                {"3 years ago", "2010-07-17"},
                                {"-2d", "2013-07-15"},
                                {"\u2212 3 W", "2013-06-26"},
                                {"+1m", "2013-08-17"},
                                {"1y", "2014-07-17"},
                            });
}

TEST(RelativeDateFormatterTest, ReadsEachLocalesOwnWordsOrderDigitsAndCalendar)
{
    expectReadings("en_US", {{"7/15/2013", "2013-07-15"},
                             {"7/15", "2013-07-15"},
                             {"Jul 15, 13", "2013-07-15"},
                             {"15/7/2013", "-"}});
    expectReadings("de_DE", {{"15.07.13", "2013-07-15"},
                             {"15.7.", "2013-07-15"},
                             {"Mo., 15. Juli 2013", "2013-07-15"},
                             {"15. MARZ 2013", "2013-03-15"},
                             {"15. Dez", "2012-12-15"},
                             {"gestern", "2013-07-16"},
                             {"vor 3 Wochen", "2013-06-26"},
                             {"letzten Monat", "2013-06-17"},
                             {"Mittwoch", "2013-07-17"},
                             {"yesterday", "2013-07-16"},
                             {"May 3rd", "2013-05-03"}});
    expectReadings("sv_SE", {{"2013-07-15", "2013-07-15"},
                             {"13-07-15", "2013-07-15"},
                             {"7/15", "2013-07-15"},
                             {"måndag 15 juli 2013", "2013-07-15"},
                             {"lördag", "2013-07-13"},
                             {"igår", "-"},
                             {"i går", "2013-07-16"}});
    expectReadings("zh_CN", {{"2013年7月15日星期一", "2013-07-15"},
                             {"2013年07月15日", "2013-07-15"},
                             {"13年7月15日", "2013-07-15"},
                             {"７月１５日", "2013-07-15"},
                             {"十二月", "2012-12-01"},
                             {"周一", "2013-07-15"},
                             {"昨天", "2013-07-16"},
                             {"3周前", "2013-06-26"}});
    expectReadings("ja_JP", {{"2013年7月15日(月)", "2013-07-15"},
                             {"2013/7/15", "2013-07-15"},
                             {"7月15日月曜日", "2013-07-15"},
                             {"7月15日火曜日", "-"},
                             {"7日15", "-"},
                             {"12月", "2012-12-01"},
                             {"昨日", "2013-07-16"}});
    expectReadings("ar_EG", {{"١٥\u200f/٧\u200f/٢٠١٣", "2013-07-15"},
                             {"الاثنين، ١٥ يوليو ٢٠١٣", "2013-07-15"},
                             {"15/7", "2013-07-15"},
                             {"أمس", "2013-07-16"},
                             {"-٢d", "2013-07-15"}});
    expectReadings("fa_IR", {{"۱۳۹۲/۴/۲۴", "2013-07-15"},
                             {"1392-04-24", "2013-07-15"},
                             {"2013-07-15", "2013-07-15"},
                             {"92/4/24", "2013-07-15"},
                             {"۲۴ تیر", "2013-07-15"},
                             {"24 تیر ۱۳۹۲", "2013-07-15"},
                             {"15 July", "2013-07-15"},
                             {"last month", "2013-06-16"},
                             {"31/7", "-"}});
    expectReadings("th_TH", {{"15/7/56", "2013-07-15"}, {"15 ก.ค. 2556", "2013-07-15"}});
    expectReadings(
        "es_ES",
        {{"15 mar", "2013-03-15"}, {"mar, 16 de julio de 2013", "2013-07-16"}, {"mar", "-"}});
    expectReadings("vi_VN", {{"15 tháng 07, 2013", "2013-07-15"}, {"tháng 12", "2012-12-01"}});
}

TEST(RelativeDateFormatterTest, ReadsTranslatedWordsBesideTheEnglishOnes)
{
    class Translator : public QTranslator
    {
    public:
        bool isEmpty() const override { return false; }
        QString translate(const char* context, const char* source, const char*, int) const override
        {
            const std::map<std::string, QString> words = {{"yesterday", u"igår|dagen innan"_qs},
                                                          {"%1 %2 ago", u"för %1 %2 sedan"_qs},
                                                          {"a|an|one", u"en|ett"_qs},
                                                          {"d|day|days", u"dag|dagar"_qs},
                                                          {"last %1|past %1", u"%1 senast"_qs}};
            const auto found = words.find(source);
            const bool isOurs = context == std::string("RelativeDateFormatter");
            return isOurs && found != words.end() ? found->second : QString();
        }
    };
    Translator translator;
    ASSERT_TRUE(QCoreApplication::installTranslator(&translator));
    expectReadings("sv_SE", {{"IGAR", "2013-07-16"},
                             {"dagen  innan", "2013-07-16"},
                             {"för 2 dagar sedan", "2013-07-15"},
                             {"för en dag sedan", "2013-07-16"},
                             {"måndag senast", "2013-07-15"},
                             {"a day ago", "2013-07-16"},
                             {"-2d", "2013-07-15"}});
}

TEST(RelativeDateFormatterTest, RefusesWhatItDoesNotUnderstand)
{
    const ScopedRegionalSettings regional(at("en_GB"));
    const FixedClock clock(utc(2013, 7, 17, 10));
    for (const char* text : {"",
                             " ",
                             ".",
                             "-",
                             "+",
                             "%1",
                             "|",
                             "15",
                             "2013",
                             "25",
                             "31/02",
                             "31/2/2012",
                             "29/02/2013",
                             "29/2/13",
                             "30 Feb",
                             "0/0/0",
                             "0/7/2013",
                             "15/0/2013",
                             "15/7/0",
                             "1/1/0000",
                             "1/1/025",
                             "1/1/10000",
                             "1/1/999999999",
                             "1/1/99999999999",
                             "2013-13-01",
                             "2013-02-30",
                             "15//7/2013",
                             "15/-7/2013",
                             "/15/7",
                             "15/7/2013/",
                             "15,7",
                             "15+7+2013",
                             "15:7:2013",
                             "15/7/2013 10:00",
                             "Tuesday 15 July 2013",
                             "Monday July 2013",
                             "July 45",
                             "julyish",
                             "15 julyish",
                             "mon day",
                             "todayish",
                             "last",
                             "last day",
                             "lastmonday",
                             "3 weeks",
                             "days ago",
                             "-d",
                             "--2d",
                             "2.5d",
                             "-2dd",
                             "2d 3w",
                             "-3 days ago",
                             "999999999999 weeks ago",
                             "999999999 weeks ago",
                             "9999 years ago",
                             "+7987y",
                             "-2013y",
                             "-999999999d",
                             "15\xD9\x9B/7/2013",
                             "15/7/2013\u0001"}) {
        EXPECT_EQ(reading(QString::fromUtf8(text)), "-") << text;
    }
    EXPECT_EQ(reading(u"15/7/2013"_qs + QString(191, u' ')), "2013-07-15");
    EXPECT_EQ(reading(u"15/7/2013"_qs + QString(192, u' ')), "-");
    EXPECT_EQ(reading(QString(200, u'1')), "-");
    EXPECT_EQ(reading(QString(200, QChar(0xFDFA))), "-");
    EXPECT_EQ(reading(QString(200, QChar(0xD835))), "-");
    EXPECT_EQ(reading(u"15/7/2013"_qs + QChar(u'\0')), "-");
}

TEST(RelativeDateFormatterTest, ReadsAMonthOrADayTheClocksOrTheCalendarCutShort)
{
    struct Row
    {
        const char *name, *zone, *text, *expected;
        Instant now;
    };
    const std::vector<Row> rows = {
        {"no midnight", "America/Sao_Paulo", "15/10", "2017-10-15 1:00", utc(2017, 10, 16, 4)},
        {"to no midnight", "America/Sao_Paulo", "-1d", "2017-10-15 1:00", utc(2017, 10, 16, 4)},
        {"from no midnight", "America/Sao_Paulo", "today", "2017-10-15 1:00", utc(2017, 10, 15, 3)},
        {"missing day", "Pacific/Apia", "30/12/2011", "-", utc(2012, 1, 5)},
        {"long day", "Europe/Berlin", "yesterday", "2013-10-27", utc(2013, 10, 28, 22, 59)},
        {"short day", "Europe/Berlin", "tomorrow", "2013-04-01", utc(2013, 3, 30, 23)},
        {"shorter month", "UTC", "last month", "2013-02-28", utc(2013, 3, 31, 23, 59)},
        {"common year", "UTC", "1 year ago", "2015-02-28", utc(2016, 2, 29)},
        {"leap day", "UTC", "29 Feb", "1896-02-29", utc(1904, 2, 28)},
        {"the first day", "Asia/Tokyo", "3/1/0001", "0001-01-03 9:18", utc(2013, 1, 1)},
        {"before the first day", "Asia/Tokyo", "2/1/0001", "-", utc(2013, 1, 1)},
        {"the last day", "America/New_York", "31/12/9999", "9999-12-31", utc(2013, 1, 1)},
    };
    for (const auto& row : rows) {
        const ScopedRegionalSettings regional(at("en_GB", row.zone));
        const FixedClock clock(row.now);
        EXPECT_EQ(reading(QString::fromUtf8(row.text)), row.expected) << row.name;
    }
}

TEST(RelativeDateFormatterTest, GivesWhatItReadsTheDefaultTimeOfDay)
{
    const ScopedRegionalSettings regional(at("en_GB"));
    const FixedClock clock(utc(2013, 3, 31, 21, 30));
    RelativeDateFormatter formatter;
    EXPECT_EQ(formatter.defaultDate(), utc(2013, 3, 30, 23));
    formatter.setDefaultTimeDateComponents({.hour = 2, .minute = 30});
    EXPECT_EQ(formatter.defaultDate(), utc(2013, 3, 31, 1, 30)) << "left out by the clocks";
    // Whole days count, not the time of day.
    formatter.setDefaultTimeDateComponents({.hour = 23, .minute = 45});
    for (const char* text : {"31/3", "31/3/13", "sunday", "today"}) {
        EXPECT_EQ(reading(QString::fromUtf8(text), formatter), "2013-03-31 23:45") << text;
    }
    EXPECT_THROW(formatter.setDefaultTimeDateComponents({.hour = 24}), std::out_of_range);
    EXPECT_EQ(formatter.defaultTimeDateComponents().hour, 23);
}

TEST(RelativeDateFormatterTest, ReadsInEveryLocaleWhatItWritesThere)
{
    const FixedClock clock(utc(2013, 7, 17, 10));
    const RelativeDateFormatter formatter;
    int32_t count = 0;
    const auto* const locales = icu::Locale::getAvailableLocales(count);
    ASSERT_GT(count, 500);
    for (int32_t index = 0; index < count; ++index) {
        const auto& locale = locales[index];
        const ScopedRegionalSettings regional(at(locale.getName(), "America/Sao_Paulo"));
        for (const auto date : {utc(1, 2, 3), utc(25, 12, 1), utc(1582, 10, 16),
                                utc(2012, 2, 29, 12), utc(2017, 10, 15, 12), utc(9999, 11, 12)}) {
            const auto text = formatter.stringFromDate(date);
            const auto read = formatter.dateFromString(text);
            ASSERT_EQ(read ? formatter.stringFromDate(*read) : QString(), text) << locale.getName();
            ASSERT_LT(std::abs(*read - date), 86'400) << locale.getName();
        }
        // As other programs write it. Hawaiian dates have their months in Roman numerals there.
        for (const auto style : {icu::DateFormat::kShort, icu::DateFormat::kMedium,
                                 icu::DateFormat::kLong, icu::DateFormat::kFull}) {
            const auto date = utc(2012, 2, 29, 12);
            const std::unique_ptr<icu::DateFormat> format(icu::DateFormat::createDateInstance(
                style, icu::Locale(RegionalSettings::current().datesLocale().c_str())));
            icu::UnicodeString typed;
            format->format(date.secondsSince1970() * U_MILLIS_PER_SECOND, typed);
            const auto text = QStringView(typed.getBuffer(), typed.length()).toString();
            const bool isRoman = text == u"29/ii/12";
            EXPECT_EQ(reading(text), isRoman ? "-" : "2012-02-29")
                << locale.getName() << ": " << text.toStdString();
        }
    }
}

TEST(RelativeDateFormatterTest, StepsDatesByDaysAndMonthsOfTheCalendar)
{
    const RelativeDateFormatter formatter;
    {
        const ScopedRegionalSettings regional(at("en_GB"));
        const FixedClock clock(utc(2013, 3, 31, 9));
        EXPECT_EQ(formatter.stepUpValue(std::nullopt), utc(2013, 4, 1, 9));
        EXPECT_EQ(formatter.stepDownValue(Instant(std::nan(""))), utc(2013, 3, 30, 10));
        EXPECT_EQ(formatter.largeStepDownValue(Clock::now()), utc(2013, 2, 28, 10));
        EXPECT_EQ(formatter.largeStepUpValue(Clock::now()), utc(2013, 4, 30, 9));
    }
    for (const char* zone : {"Pacific/Honolulu", "UTC", "Asia/Tokyo"}) {
        for (const char* locale : {"en_GB", "fa_IR", "th_TH"}) {
            const ScopedRegionalSettings regional(at(locale, zone));
            const auto yearOf = [](Instant date) {
                return Calendar::gregorian().components(date).value().year;
            };
            const auto first = formatter.largeStepDownValue(utc(1, 1, 9));
            EXPECT_EQ(formatter.stepDownValue(first), first) << zone;
            EXPECT_EQ(yearOf(first), 1) << zone;
            const auto last = formatter.largeStepUpValue(utc(9999, 12, 9));
            EXPECT_EQ(formatter.stepUpValue(last), last) << zone;
            EXPECT_EQ(yearOf(last), 9999) << zone;
            for (const auto date : {first, last}) {
                const auto text = formatter.stringFromDate(date);
                const auto read = formatter.dateFromString(text);
                EXPECT_TRUE(read && formatter.stringFromDate(*read) == text) << text.toStdString();
            }
        }
    }
}

TEST(OASteppableTextFieldFormatterTest, StepsAmountsExactly)
{
    using namespace OASteppableTextFieldFormatter;
    const std::string nines(36, '9');
    const std::string zeros(36, '0');
    const std::vector<std::pair<std::string, std::string>> rows = {
        {"0", "1 10 -1 -10"},
        {"-0.50", "0.50 9.50 -1.50 -10.50"},
        {"9.99", "10.99 19.99 8.99 -0.01"},
        {"-10", "-9 0 -11 -20"},
        {nines + "99", '1' + zeros + "00 " + nines + "99 " + nines + "98 " + nines + "89"},
    };
    for (const auto& [text, expected] : rows) {
        const auto value = NSDecimalNumber::fromText(text);
        EXPECT_EQ(stepUpValue(value).toPlainText() + ' ' + largeStepUpValue(value).toPlainText() +
                      ' ' + stepDownValue(value).toPlainText() + ' ' +
                      largeStepDownValue(value).toPlainText(),
                  expected);
    }
    EXPECT_EQ(largeStepDownValue(std::nullopt), NSDecimalNumber(-10));
    const auto tooFine = NSDecimalNumber::fromText("0." + zeros + "001").value();
    EXPECT_EQ(stepDownValue(tooFine), tooFine);
}
