#include "foundation/RelativePhraseReader.h"

#include "foundation/Calendar.h"
#include "foundation/DateWords.h"
#include "foundation/KeptForSettings.h"

#include <QtGlobal>
#include <unicode/reldatefmt.h>

#include <algorithm>
#include <array>
#include <utility>
#include <variant>

namespace {

//: Alternatives are separated by '|'; all of them are understood.
constexpr auto thisDay = QT_TRANSLATE_NOOP("RelativeDateFormatter", "today|now");
constexpr auto yesterday = QT_TRANSLATE_NOOP("RelativeDateFormatter", "yesterday");
constexpr auto tomorrow = QT_TRANSLATE_NOOP("RelativeDateFormatter", "tomorrow");
//: %1 is a weekday, or one of the words for week, month and year.
constexpr auto last = QT_TRANSLATE_NOOP("RelativeDateFormatter", "last %1|past %1");
//: %1 is a number or one of the words for one, %2 one of the words for days to years.
constexpr auto ago = QT_TRANSLATE_NOOP("RelativeDateFormatter", "%1 %2 ago");
constexpr auto one = QT_TRANSLATE_NOOP("RelativeDateFormatter", "a|an|one");
//: In the order of days, weeks, months and years: in all grammatical forms, and with a letter
//: that stands for it in "-2d".
constexpr std::array units{
    QT_TRANSLATE_NOOP("RelativeDateFormatter", "d|day|days"),
    QT_TRANSLATE_NOOP("RelativeDateFormatter", "w|week|weeks"),
    QT_TRANSLATE_NOOP("RelativeDateFormatter", "m|month|months"),
    QT_TRANSLATE_NOOP("RelativeDateFormatter", "y|year|years"),
};

bool takeSpaces(TypedText& text)
{
    return text.takeMarks().empty();
}

using Formatter = icu::RelativeDateTimeFormatter;

/// Null when the locale has no phrases.
const Formatter* phrasesOfLocale()
{
    static KeptForSettings<std::monostate, std::optional<Formatter>> formatters;
    const auto& formatter = formatters.get({}, [](const RegionalSettings& settings) {
        UErrorCode status = U_ZERO_ERROR;
        std::optional<Formatter> made(std::in_place, icu::Locale(settings.datesLocale().c_str()),
                                      status);
        return U_SUCCESS(status) ? made : std::nullopt;
    });
    return formatter ? &*formatter : nullptr;
}

/// Whether `text` is the phrase that the formatter has for what is asked of it.
template <typename... Question>
bool isLocalePhrase(std::u32string_view text, const Formatter& formatter, Question... question)
{
    icu::UnicodeString phrase;
    UErrorCode status = U_ZERO_ERROR;
    formatter.format(question..., phrase, status);
    return U_SUCCESS(status) &&
           TypedText::comparable(QStringView(phrase.getBuffer(), phrase.length()).toString()) ==
               text;
}

} // namespace

RelativePhraseReader::RelativePhraseReader(std::u32string_view text, Instant today)
    : m_text(text)
    , m_today(today)
{
    for (std::size_t unit = 0; unit < units.size(); ++unit) {
        for (const auto& word : DateWords::spellings(units.at(unit))) {
            m_units.push_back(
                {.text = TypedText::comparable(word), .value = static_cast<int>(unit)});
        }
    }
}

std::optional<Instant> RelativePhraseReader::read() const
{
    for (const auto reading : {&RelativePhraseReader::wordDate, &RelativePhraseReader::agoDate,
                               &RelativePhraseReader::signedDate}) {
        if (const auto date = (this->*reading)()) {
            return date;
        }
    }
    return std::nullopt;
}

bool RelativePhraseReader::isPhrase(const char* entry, const std::vector<Slot>& slots) const
{
    const auto takePart = [&](TypedText& text, const QString& part) {
        for (std::size_t index = 0; index < slots.size(); ++index) {
            if (part == u'%' + QString::number(index + 1)) {
                return slots[index](text);
            }
        }
        return text.takeWord(TypedText::comparable(part));
    };
    const auto isAlternative = [&](const QString& phrase) {
        TypedText text(m_text);
        const auto parts = phrase.split(u' ', Qt::SkipEmptyParts);
        return std::all_of(
                   parts.begin(), parts.end(),
                   [&](const QString& part) { return takePart(text, part) && takeSpaces(text); }) &&
               text.isAtEnd() && !parts.isEmpty();
    };
    const auto phrases = DateWords::spellings(entry);
    return std::any_of(phrases.begin(), phrases.end(), isAlternative);
}

std::optional<RelativePhraseReader::Unit> RelativePhraseReader::takeUnit(TypedText& text) const
{
    const auto unit = text.takeName(m_units);
    return unit ? std::optional(static_cast<Unit>(*unit)) : std::nullopt;
}

std::optional<Instant> RelativePhraseReader::wordDate() const
{
    for (const auto& [word, days] : {std::pair(thisDay, 0), {yesterday, -1}, {tomorrow, 1}}) {
        if (isPhrase(word)) {
            return distant(days, Unit::Day);
        }
    }
    std::optional<int> weekday;
    const Slot takeWeekday = [&](TypedText& text) {
        weekday = text.takeName(DateWords::current().weekdays);
        return weekday.has_value();
    };
    if (isPhrase("%1", {takeWeekday})) {
        return latestWeekday(*weekday, 0);
    }
    if (isPhrase(last, {takeWeekday})) {
        return latestWeekday(*weekday, 1);
    }
    std::optional<Unit> unit;
    const Slot takeLongUnit = [&](TypedText& text) {
        unit = takeUnit(text);
        return unit && *unit != Unit::Day;
    };
    return isPhrase(last, {takeLongUnit}) ? distant(-1, *unit) : std::nullopt;
}

std::optional<Instant> RelativePhraseReader::agoDate() const
{
    TypedText::Names ones;
    for (const auto& word : DateWords::spellings(one)) {
        ones.push_back({.text = TypedText::comparable(word), .value = 1});
    }
    std::optional<int> amount;
    const Slot takeAmount = [&](TypedText& text) {
        const auto number = text.takeNumber();
        amount = number ? number->value : text.takeName(ones);
        return amount.has_value();
    };
    std::optional<Unit> unit;
    const Slot takeAnyUnit = [&](TypedText& text) {
        unit = takeUnit(text);
        return unit.has_value();
    };
    return isPhrase(ago, {takeAmount, takeAnyUnit}) ? distant(-*amount, *unit) : std::nullopt;
}

/// "-2d", "+1 month", "1y". Without a sign it is ahead, and has no space: "3 weeks" is more likely
/// the beginning of something else.
std::optional<Instant> RelativePhraseReader::signedDate() const
{
    TypedText text(m_text);
    const auto sign = text.takeMarks();
    const auto amount = text.takeNumber();
    const bool isSigned = sign == U"+" || sign == U"-";
    if (!(isSigned || sign.empty()) || !amount || (isSigned && !takeSpaces(text))) {
        return std::nullopt;
    }
    const auto unit = takeUnit(text);
    if (!unit || !text.isAtEnd()) {
        return std::nullopt;
    }
    return distant(sign == U"-" ? -amount->value : amount->value, *unit);
}

std::optional<Instant> RelativePhraseReader::readPhraseOfLocale() const
{
    const auto* const formatter = phrasesOfLocale();
    if (!formatter) {
        return std::nullopt;
    }
    if (const auto start = m_text.find_first_of(U"0123456789"); start != m_text.npos) {
        const auto amount = TypedText(m_text.substr(start)).takeNumber();
        for (const auto& [unit, ofLocale] : {std::pair(Unit::Day, UDAT_RELATIVE_DAYS),
                                             {Unit::Week, UDAT_RELATIVE_WEEKS},
                                             {Unit::Month, UDAT_RELATIVE_MONTHS},
                                             {Unit::Year, UDAT_RELATIVE_YEARS}}) {
            if (amount && isLocalePhrase(m_text, *formatter, static_cast<double>(amount->value),
                                         UDAT_DIRECTION_LAST, ofLocale)) {
                return distant(-amount->value, unit);
            }
        }
        return std::nullopt;
    }
    for (const auto& [days, direction] :
         {std::pair(0, UDAT_DIRECTION_THIS), {-1, UDAT_DIRECTION_LAST}, {1, UDAT_DIRECTION_NEXT}}) {
        if (isLocalePhrase(m_text, *formatter, direction, UDAT_ABSOLUTE_DAY)) {
            return distant(days, Unit::Day);
        }
    }
    for (const auto& [unit, ofLocale] : {std::pair(Unit::Week, UDAT_ABSOLUTE_WEEK),
                                         {Unit::Month, UDAT_ABSOLUTE_MONTH},
                                         {Unit::Year, UDAT_ABSOLUTE_YEAR}}) {
        if (isLocalePhrase(m_text, *formatter, UDAT_DIRECTION_LAST, ofLocale)) {
            return distant(-1, unit);
        }
    }
    constexpr std::array weekdays{UDAT_ABSOLUTE_SUNDAY,   UDAT_ABSOLUTE_MONDAY,
                                  UDAT_ABSOLUTE_TUESDAY,  UDAT_ABSOLUTE_WEDNESDAY,
                                  UDAT_ABSOLUTE_THURSDAY, UDAT_ABSOLUTE_FRIDAY,
                                  UDAT_ABSOLUTE_SATURDAY};
    for (std::size_t index = 0; index < weekdays.size(); ++index) {
        if (isLocalePhrase(m_text, *formatter, UDAT_DIRECTION_LAST, weekdays.at(index))) {
            return latestWeekday(static_cast<int>(index) + 1, 1);
        }
    }
    return std::nullopt;
}

std::optional<Instant> RelativePhraseReader::distant(int amount, Unit unit) const
{
    Calendar::Amounts amounts;
    switch (unit) {
    case Unit::Week:
        amounts.weeks = amount;
        break;
    case Unit::Month:
        amounts.months = amount;
        break;
    case Unit::Year:
        amounts.years = amount;
        break;
    case Unit::Day:
        amounts.days = amount;
        break;
    }
    return Calendar::current().adding(m_today, amounts);
}

std::optional<Instant> RelativePhraseReader::latestWeekday(int weekday, int daysBefore) const
{
    const auto components = Calendar::current().components(m_today);
    if (!components) {
        return std::nullopt;
    }
    int days = (components->weekday - weekday + 7) % 7;
    if (days < daysBefore) {
        days += 7;
    }
    return distant(-days, Unit::Day);
}
