#include "foundation/RelativeDateFormatter.h"

#include "foundation/Calendar.h"
#include "foundation/CalendarDateReader.h"
#include "foundation/Clock.h"
#include "foundation/DateFormatter.h"
#include "foundation/DateWords.h"
#include "foundation/RelativePhraseReader.h"
#include "foundation/TypedText.h"

#include <algorithm>
#include <stdexcept>

namespace {

constexpr qsizetype longestText = 200;
constexpr int firstYear = 1;
constexpr int lastYear = 9999;

using TimeOfDay = RelativeDateFormatter::TimeOfDay;

/// The time on the day that `date` lies in.
std::optional<Instant> at(const TimeOfDay& time, Instant date)
{
    const auto& calendar = Calendar::current();
    auto components = calendar.components(date);
    if (!components) {
        return std::nullopt;
    }
    components->hour = time.hour;
    components->minute = time.minute;
    return calendar.instant(*components);
}

/// The nearest supported instant in the years 1 to 9999, which begin and end with local time.
Instant withinYears(Instant date)
{
    const auto& calendar = Calendar::gregorian();
    const auto first = calendar.instant({.year = firstYear}).value_or(Instant::earliest());
    const auto last =
        calendar.instant({.year = lastYear, .month = 12, .day = 31, .hour = 23, .minute = 59})
            .value_or(Instant::latest());
    return std::clamp(date, std::max(first, Instant::earliest()),
                      std::min(last, Instant::latest()));
}

Instant stepped(std::optional<Instant> value, const Calendar::Amounts& amounts)
{
    const auto from = value && value->isSupported() ? *value : Clock::now();
    return withinYears(Calendar::current().adding(from, amounts).value_or(from));
}

} // namespace

void RelativeDateFormatter::setDefaultTimeDateComponents(const TimeOfDay& time)
{
    if (time.hour < 0 || time.hour > 23 || time.minute < 0 || time.minute > 59) {
        throw std::out_of_range("There is no such time of day");
    }
    m_defaultTime = time;
}

Instant RelativeDateFormatter::defaultDate() const
{
    const auto now = Clock::now();
    return at(m_defaultTime, now).value_or(now);
}

QString RelativeDateFormatter::stringFromDate(Instant date) const
{
    const auto& words = DateWords::current();
    const auto own = Calendar::current().components(date);
    if (own && own->year + words.yearShift < 1) {
        if (const auto day = Calendar::gregorian().components(date)) {
            return u"%1-%2-%3"_qs.arg(day->year, 4, 10, QChar(u'0'))
                .arg(day->month, 2, 10, QChar(u'0'))
                .arg(day->day, 2, 10, QChar(u'0'));
        }
    }
    return DateFormatter::text(date, words.writtenPattern);
}

std::optional<Instant> RelativeDateFormatter::dateFromString(const QString& text) const
{
    // Noon is there on all days, so that it leads from day to day safely.
    const auto today = at({.hour = 12}, Clock::now());
    if (!today || text.size() > longestText) {
        return std::nullopt;
    }
    const auto typed = TypedText::comparable(text);
    const RelativePhraseReader phrases(typed, *today);
    const auto date = CalendarDateReader(typed, *today).read();
    const auto distantDate = phrases.read();
    if (date && distantDate && *date != *distantDate) {
        return std::nullopt;
    }
    const auto found = date ? date : distantDate ? distantDate : phrases.readPhraseOfLocale();
    const auto result = found ? at(m_defaultTime, *found) : std::nullopt;
    if (!result) {
        return std::nullopt;
    }
    // The first and the last of the days are not whole everywhere.
    const auto supported = withinYears(*result);
    const bool isThatDay = at({.hour = 12}, supported) == at({.hour = 12}, *result);
    return isThatDay ? std::optional(supported) : std::nullopt;
}

Instant RelativeDateFormatter::stepUpValue(std::optional<Instant> value) const
{
    return stepped(value, {.days = 1});
}

Instant RelativeDateFormatter::largeStepUpValue(std::optional<Instant> value) const
{
    return stepped(value, {.months = 1});
}

Instant RelativeDateFormatter::stepDownValue(std::optional<Instant> value) const
{
    return stepped(value, {.days = -1});
}

Instant RelativeDateFormatter::largeStepDownValue(std::optional<Instant> value) const
{
    return stepped(value, {.months = -1});
}
