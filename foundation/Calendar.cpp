#include "foundation/Calendar.h"

#include "foundation/RegionalSettings.h"

#include <unicode/calendar.h>
#include <unicode/gregocal.h>

#include <cmath>

namespace {

// ICU counts days in 32 bits. Dates, and sums of a date and amounts, within these bounds stay well
// clear of where it would overflow, in every calendar that it has.
constexpr double farthestSeconds = 1e13;
constexpr std::int64_t mostMonths = 8'000'000;
constexpr std::int64_t mostDays = 250'000'000;

std::optional<Instant> ifExpressible(Instant instant)
{
    return Calendar::expresses(instant) ? std::optional(instant) : std::nullopt;
}

bool isWithin(std::int64_t most, std::int64_t amount)
{
    return amount >= -most && amount <= most;
}

/// ICU keeps whole milliseconds. It is given whole seconds only, towards the past so that the
/// second that an instant lies in is the right one before 1970 too.
UDate toIcu(Instant instant)
{
    return std::floor(instant.secondsSince1970()) * U_MILLIS_PER_SECOND;
}

Instant fromIcu(UDate date)
{
    return Instant(date / U_MILLIS_PER_SECOND);
}

} // namespace

/// One calendar of ICU serves all operations: each first sets it to what it needs, since making
/// another costs more than all of them together.
struct Calendar::Engine
{
    RegionalSettings settings;
    std::unique_ptr<icu::Calendar> calendar;

    static std::unique_ptr<icu::Calendar> make(Kind kind, const RegionalSettings& settings)
    {
        UErrorCode status = U_ZERO_ERROR;
        const icu::Locale locale(settings.datesLocale().c_str());
        icu::TimeZone* const zone =
            icu::TimeZone::createTimeZone(icu::UnicodeString::fromUTF8(settings.timeZone()));
        std::unique_ptr<icu::Calendar> calendar;
        if (kind == Kind::Gregorian) {
            calendar = std::make_unique<icu::GregorianCalendar>(zone, locale, status);
        } else {
            calendar.reset(icu::Calendar::createInstance(zone, locale, status));
        }
        if (U_FAILURE(status)) {
            return nullptr;
        }
        // The first of two midnights begins the day. One that the clocks leave out becomes the time
        // that they go forward to, which is what ICU does by itself.
        calendar->setRepeatedWallTimeOption(UCAL_WALLTIME_FIRST);
        return calendar;
    }

    /// Sets the calendar to the instant; a failure when it cannot be.
    void setTo(Instant instant, UErrorCode& status) const
    {
        if (!calendar || !expresses(instant)) {
            status = U_ILLEGAL_ARGUMENT_ERROR;
            return;
        }
        calendar->setTime(toIcu(instant), status);
    }
};

Calendar::Calendar(Kind kind)
    : m_kind(kind)
{
    followSettings();
}

Calendar::~Calendar() = default;

void Calendar::followSettings()
{
    const auto& settings = RegionalSettings::current();
    if (!m_engine || m_engine->settings != settings) {
        m_engine = std::make_unique<Engine>(Engine{settings, Engine::make(m_kind, settings)});
    }
}

const Calendar& Calendar::current()
{
    static Calendar calendar(Kind::Preferred);
    calendar.followSettings();
    return calendar;
}

const Calendar& Calendar::gregorian()
{
    static Calendar calendar(Kind::Gregorian);
    calendar.followSettings();
    return calendar;
}

bool Calendar::expresses(Instant instant)
{
    // Not a number compares false as well.
    return std::abs(instant.secondsSince1970()) <= farthestSeconds;
}

std::optional<Calendar::Components> Calendar::components(Instant date) const
{
    UErrorCode status = U_ZERO_ERROR;
    m_engine->setTo(date, status);
    if (U_FAILURE(status)) {
        return std::nullopt;
    }
    const auto& calendar = *m_engine->calendar;
    const Components components{
        .year = calendar.get(UCAL_EXTENDED_YEAR, status),
        .month = calendar.get(UCAL_MONTH, status) + 1,
        .day = calendar.get(UCAL_DAY_OF_MONTH, status),
        .hour = calendar.get(UCAL_HOUR_OF_DAY, status),
        .minute = calendar.get(UCAL_MINUTE, status),
        .weekday = calendar.get(UCAL_DAY_OF_WEEK, status),
    };
    return U_SUCCESS(status) ? std::optional(components) : std::nullopt;
}

std::optional<Instant> Calendar::instant(const Components& components) const
{
    // ICU would count on from a field that is out of range.
    const auto& [year, month, day, hour, minute, weekday] = components;
    if (!m_engine->calendar || month < 1 || hour < 0 || hour > 23 || minute < 0 || minute > 59) {
        return std::nullopt;
    }
    auto& calendar = *m_engine->calendar;
    calendar.clear();
    calendar.set(UCAL_EXTENDED_YEAR, year);
    calendar.set(UCAL_MONTH, month - 1);
    calendar.set(UCAL_DAY_OF_MONTH, day);
    calendar.set(UCAL_HOUR_OF_DAY, hour);
    calendar.set(UCAL_MINUTE, minute);
    UErrorCode status = U_ZERO_ERROR;
    const auto instant = fromIcu(calendar.getTime(status));
    if (U_FAILURE(status)) {
        return std::nullopt;
    }
    const auto found = this->components(instant);
    const bool isThatDay =
        found && found->year == year && found->month == month && found->day == day;
    return isThatDay ? std::optional(instant) : std::nullopt;
}

std::optional<Instant> Calendar::startOfMonth(int year, int month) const
{
    auto& calendar = *m_engine->calendar;
    calendar.clear();
    calendar.set(UCAL_EXTENDED_YEAR, year);
    // From 0; past the last month it counts on into the next years.
    calendar.set(UCAL_MONTH, month - 1);
    calendar.set(UCAL_DAY_OF_MONTH, 1);
    UErrorCode status = U_ZERO_ERROR;
    const auto start = fromIcu(calendar.getTime(status));
    return U_SUCCESS(status) ? ifExpressible(start) : std::nullopt;
}

std::optional<Instant> Calendar::monthStart(Instant date) const
{
    return MonthStarts(*this, date).next();
}

std::optional<Instant> Calendar::monthEnd(Instant date) const
{
    MonthStarts months(*this, date);
    months.next();
    const auto nextMonth = months.next();
    return nextMonth ? ifExpressible(*nextMonth + -1.0) : std::nullopt;
}

std::optional<int> Calendar::daysInMonth(Instant date) const
{
    UErrorCode status = U_ZERO_ERROR;
    m_engine->setTo(date, status);
    if (U_FAILURE(status)) {
        return std::nullopt;
    }
    const int days = m_engine->calendar->getActualMaximum(UCAL_DAY_OF_MONTH, status);
    return U_SUCCESS(status) ? std::optional(days) : std::nullopt;
}

std::optional<Instant> Calendar::adding(Instant date, const Amounts& amounts) const
{
    // Every calendar that a locale prefers has twelve months to the year.
    const auto months = std::int64_t{12} * amounts.years + amounts.months;
    const auto days = std::int64_t{7} * amounts.weeks + amounts.days;
    const auto seconds =
        std::int64_t{3600} * amounts.hours + std::int64_t{60} * amounts.minutes + amounts.seconds;
    if (!isWithin(mostMonths, months) || !isWithin(mostDays, days)) {
        return std::nullopt;
    }

    UErrorCode status = U_ZERO_ERROR;
    m_engine->setTo(date, status);
    if (U_FAILURE(status)) {
        return std::nullopt;
    }
    // Adding nothing would still pick one of two equal times where the clocks go back.
    auto& calendar = *m_engine->calendar;
    if (months != 0) {
        calendar.add(UCAL_MONTH, static_cast<int32_t>(months), status);
    }
    if (days != 0) {
        calendar.add(UCAL_DAY_OF_MONTH, static_cast<int32_t>(days), status);
    }
    // A difference in whole seconds, added to the instant itself, leaves its fraction alone.
    const auto moved = (calendar.getTime(status) - toIcu(date)) / U_MILLIS_PER_SECOND;
    if (U_FAILURE(status)) {
        return std::nullopt;
    }
    return ifExpressible(date + (moved + static_cast<double>(seconds)));
}

int Calendar::firstWeekday() const
{
    UErrorCode status = U_ZERO_ERROR;
    if (m_engine->calendar) {
        const int weekday = m_engine->calendar->getFirstDayOfWeek(status);
        if (U_SUCCESS(status)) {
            return weekday;
        }
    }
    return UCAL_SUNDAY;
}

Calendar::MonthStarts::MonthStarts(const Calendar& calendar, Instant date)
    : m_calendar(calendar)
    , m_first(calendar.components(date))
{}

std::optional<Instant> Calendar::MonthStarts::next()
{
    if (!m_first) {
        return std::nullopt;
    }
    return m_calendar.startOfMonth(m_first->year, m_first->month + m_steps++);
}
