#include "foundation/CalendarDateReader.h"

#include <QtGlobal>

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

namespace {

/// Words that may stand anywhere inside a date and say nothing: "the 1st of July".
constexpr auto fillingWords = QT_TRANSLATE_NOOP("RelativeDateFormatter", "st|nd|rd|th|of|the");

std::optional<Instant> noon(const Calendar& calendar, int year, int month, int day)
{
    return calendar.instant({.year = year, .month = month, .day = day, .hour = 12});
}

bool isUsual(std::u32string_view marks, bool betweenNumbers)
{
    // The stop of an abbreviation or an ordinal number stands before the mark that separates.
    if (marks.size() == 2 && marks.front() == U'.' && marks.back() != U'.') {
        marks.remove_prefix(1);
    }
    // "1,5" is a number and no date.
    const std::u32string_view separators = betweenNumbers ? U"./-" : U"./-,";
    return marks.empty() ||
           (marks.size() == 1 && separators.find(marks.front()) != std::u32string_view::npos);
}

} // namespace

CalendarDateReader::CalendarDateReader(std::u32string_view text, Instant today)
    : m_text(text)
    , m_today(today)
    , m_words(DateWords::current())
{
    for (const auto& word : DateWords::spellings(fillingWords)) {
        m_fillingWords.push_back({.text = TypedText::comparable(word), .value = 0});
    }
}

std::optional<Instant> CalendarDateReader::read() const
{
    if (const auto date = isoDate()) {
        return date;
    }
    const Months ownMonths{m_words.months, Calendar::current(), m_words.yearShift};
    const Months englishMonths{m_words.englishMonths, Calendar::gregorian(), 0};

    auto ownDayAndMonth = m_words.numericOrder;
    std::erase(ownDayAndMonth, 'y');
    for (const Layout layout : {Layout(m_words.numericOrder), Layout(ownDayAndMonth), Layout("YMd"),
                                Layout("MY"), Layout("YM")}) {
        if (const auto date = read(layout, ownMonths)) {
            return date;
        }
    }
    for (const auto& months : {ownMonths, englishMonths}) {
        for (const Layout layout :
             {Layout(m_words.namedOrder), Layout("dNy"), Layout("Ndy"), Layout("YNd"),
              Layout("YdN"), Layout("dN"), Layout("Nd"), Layout("NY"), Layout("YN"), Layout("N")}) {
            if (const auto date = read(layout, months)) {
                return date;
            }
        }
    }
    return std::nullopt;
}

/// A date of the form 2013-07-15, which is Gregorian everywhere. But where years are counted
/// otherwise, people also write their own dates so; they are told apart by the centuries between.
std::optional<Instant> CalendarDateReader::isoDate() const
{
    TypedText text(m_text);
    std::array<TypedText::Number, 3> numbers{};
    for (std::size_t index = 0; index < numbers.size(); ++index) {
        if (index > 0 && text.takeMarks() != U"-") {
            return std::nullopt;
        }
        const auto number = text.takeNumber();
        if (!number || number->digits != (index == 0 ? 4 : 2)) {
            return std::nullopt;
        }
        numbers.at(index) = *number;
    }
    if (!text.isAtEnd()) {
        return std::nullopt;
    }
    const auto& [year, month, day] = numbers;
    constexpr double century = 100 * 365.25 * 86'400;
    const auto own =
        noon(Calendar::current(), year.value - m_words.yearShift, month.value, day.value);
    if (own && std::abs(*own - m_today) < century) {
        return own;
    }
    return noon(Calendar::gregorian(), year.value, month.value, day.value);
}

std::optional<Instant> CalendarDateReader::read(Layout layout, const Months& months) const
{
    const bool hasDay = layout.find('d') != Layout::npos;
    for (const auto weekday : {Weekday::None, Weekday::First, Weekday::Last}) {
        if (weekday != Weekday::None && !hasDay) {
            break;
        }
        if (const auto found = fields(layout, months, weekday)) {
            return day(*found, months);
        }
    }
    return std::nullopt;
}

std::optional<CalendarDateReader::Fields>
CalendarDateReader::fields(Layout layout, const Months& months, Weekday weekday) const
{
    TypedText text(m_text);
    Fields fields;
    const bool isNumeric = layout.find('N') == Layout::npos;
    std::string order(layout);
    if (weekday != Weekday::None) {
        order.insert(weekday == Weekday::First ? 0 : order.size(), 1, 'E');
    }
    char before = '\0';
    for (const char field : order) {
        const auto place = before == '\0'                               ? Place::Start
                           : isNumeric && before != 'E' && field != 'E' ? Place::BetweenNumbers
                                                                        : Place::Between;
        if (!takeSeparation(text, place, before, field) ||
            !takeField(text, field, months, fields)) {
            return std::nullopt;
        }
        before = field;
    }
    const bool isAll = takeSeparation(text, Place::End, before, '\0') && text.isAtEnd();
    return isAll ? std::optional(fields) : std::nullopt;
}

bool CalendarDateReader::takeField(TypedText& text, char field, const Months& months,
                                   Fields& fields) const
{
    if (field == 'E') {
        fields.weekday = text.takeName(m_words.weekdays);
        return fields.weekday.has_value();
    }
    if (field == 'N') {
        const auto month = text.takeName(months.names);
        fields.month = month.value_or(0);
        return month.has_value();
    }
    const auto number = text.takeNumber();
    if (!number) {
        return false;
    }
    if (field == 'Y' || field == 'y') {
        fields.year = number;
        return number->digits == 4 || number->value > 9999 || (field == 'y' && number->digits == 2);
    }
    (field == 'M' ? fields.month : fields.day) = number->value;
    return number->digits <= 2;
}

bool CalendarDateReader::takeSeparation(TypedText& text, Place place, char before,
                                        char behind) const
{
    constexpr int mostParticles = 3;
    for (int particles = 0; particles <= mostParticles; ++particles) {
        const auto marks = text.takeMarks();
        const bool isAllowed = place == Place::Start ? marks.empty()
                               : place == Place::End ? marks.empty() || marks == U"."
                                                     : isUsual(marks, place != Place::Between);
        if (!isAllowed) {
            return false;
        }
        if (!takeParticle(text, before, behind)) {
            return true;
        }
    }
    return false;
}

bool CalendarDateReader::takeParticle(TypedText& text, char before, char behind) const
{
    const auto found = [](const std::map<char, TypedText::Names>& particles, char field) {
        const auto names = particles.find(field == 'N' ? 'M' : field == 'Y' ? 'y' : field);
        return names == particles.end() ? nullptr : &names->second;
    };
    std::size_t longest = 0;
    const TypedText::Names* taken = nullptr;
    for (const auto* const names : {found(m_words.particlesBehind, before),
                                    found(m_words.particlesBefore, behind), &m_fillingWords}) {
        if (const auto length = names ? text.lengthOfName(*names) : 0; length > longest) {
            longest = length;
            taken = names;
        }
    }
    // It may be but the beginning of a name.
    const bool isParticle = taken && longest >= text.lengthOfName(m_words.months) &&
                            longest >= text.lengthOfName(m_words.weekdays) &&
                            longest >= text.lengthOfName(m_words.englishMonths);
    return isParticle && text.takeName(*taken).has_value();
}

std::optional<Instant> CalendarDateReader::day(const Fields& fields, const Months& months) const
{
    const auto& calendar = months.calendar;
    const auto today = calendar.components(m_today);
    if (!today) {
        return std::nullopt;
    }
    // The first of the years to try, how far it is to the one before, and how many there are: 20
    // are enough to meet a leap day, in any calendar.
    int year = today->year;
    int stride = 1;
    int tries = 20;
    const bool isFullYear = fields.year && fields.year->digits > 2;
    if (isFullYear) {
        year = fields.year->value - months.yearShift;
        tries = 1;
    } else if (fields.year) {
        stride = 100;
        tries = 2;
        const int yearsSince = (year + months.yearShift - fields.year->value) % stride;
        year -= yearsSince < 0 ? yearsSince + stride : yearsSince;
    }
    for (; tries > 0; --tries, year -= stride) {
        const auto day = noon(calendar, year, fields.month, fields.day);
        if (day && (isFullYear || *day <= m_today)) {
            const auto found = calendar.components(*day);
            const bool isThatWeekday =
                found && fields.weekday.value_or(found->weekday) == found->weekday;
            return isThatWeekday ? day : std::nullopt;
        }
    }
    return std::nullopt;
}
