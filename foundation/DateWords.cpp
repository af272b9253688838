#include "foundation/DateWords.h"

#include "foundation/Calendar.h"
#include "foundation/DateFormatter.h"
#include "foundation/KeptForSettings.h"

#include <QCoreApplication>
#include <unicode/dtfmtsym.h>
#include <unicode/smpdtfmt.h>

#include <map>
#include <memory>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace {

using icu::DateFormatSymbols;
using Pattern = QString;

/// A run of one field letter, or the text between two of them.
struct PatternPiece
{
    bool isField = false;
    QString text;

    /// The letter of the field, the same one for all the letters that name the same thing.
    char field() const
    {
        if (!isField) {
            return '\0';
        }
        switch (const char letter = text.front().toLatin1()) {
        case 'L':
            return 'M';
        case 'c':
            return 'E';
        default:
            return letter;
        }
    }
};

std::vector<PatternPiece> pieces(const Pattern& pattern)
{
    std::vector<PatternPiece> pieces;
    bool isQuoted = false;
    for (const QChar character : pattern) {
        if (character == u'\'') {
            isQuoted = !isQuoted;
            continue;
        }
        const bool isField = !isQuoted && character.unicode() < 128 && character.isLetter();
        const bool goesOn = !pieces.empty() && pieces.back().isField == isField &&
                            (!isField || pieces.back().text.front() == character);
        if (goesOn) {
            pieces.back().text += character;
        } else {
            pieces.push_back({isField, character});
        }
    }
    return pieces;
}

QString toQString(const icu::UnicodeString& text)
{
    return QStringView(text.getBuffer(), text.length()).toString();
}

std::unique_ptr<icu::DateFormat> makeFormat(icu::DateFormat::EStyle style,
                                            const icu::Locale& locale)
{
    return std::unique_ptr<icu::DateFormat>(icu::DateFormat::createDateInstance(style, locale));
}

/// Empty when the style has no pattern.
Pattern patternOf(icu::DateFormat::EStyle style, const icu::Locale& locale)
{
    const auto format = makeFormat(style, locale);
    icu::UnicodeString pattern;
    if (const auto* const simple = dynamic_cast<const icu::SimpleDateFormat*>(format.get())) {
        simple->toPattern(pattern);
    }
    return toQString(pattern);
}

/// The day, month and year of the pattern in their order; `fallback` when one is missing.
std::string order(const Pattern& pattern, std::string_view fallback, char month)
{
    std::string order;
    for (const auto& piece : pieces(pattern)) {
        if (const char field = piece.field(); field == 'd' || field == 'M' || field == 'y') {
            order += field == 'M' ? month : field;
        }
    }
    return order.size() == 3 ? order : std::string(fallback);
}

Pattern withFourDigitYear(const Pattern& pattern)
{
    Pattern result;
    bool isQuoted = false;
    QChar before;
    for (const QChar character : pattern) {
        isQuoted = isQuoted != (character == u'\'');
        if (isQuoted || character != u'y') {
            result += character;
        } else if (before != u'y') {
            result += u"yyyy";
        }
        before = character;
    }
    return result.isEmpty() ? u"yyyy-MM-dd"_qs : result;
}

/// Names in several widths and grammatical cases; one that is the name of two things is of none.
class NameCollection
{
public:
    void add(const icu::UnicodeString* names, int32_t count, int firstValue)
    {
        for (int32_t index = 0; index < count; ++index) {
            const auto text = TypedText::comparable(toQString(names[index]));
            // Where months are called by their numbers alone, they are read as numbers.
            const bool isWord = text.find_first_not_of(U"0123456789 .,-/+") != std::u32string::npos;
            const auto [found, isNew] = m_values.emplace(text, firstValue + index);
            if (!isWord || (!isNew && found->second != firstValue + index)) {
                found->second = ofNothing;
            }
        }
    }

    bool contains(const std::u32string& name) const { return m_values.contains(name); }

    void addMonths(const DateFormatSymbols& symbols)
    {
        for (const auto context : {DateFormatSymbols::FORMAT, DateFormatSymbols::STANDALONE}) {
            for (const auto width : {DateFormatSymbols::WIDE, DateFormatSymbols::ABBREVIATED}) {
                int32_t count = 0;
                const auto* const names = symbols.getMonths(count, context, width);
                add(names, count, 1);
            }
        }
    }

    void addWeekdays(const DateFormatSymbols& symbols)
    {
        for (const auto context : {DateFormatSymbols::FORMAT, DateFormatSymbols::STANDALONE}) {
            for (const auto width : {DateFormatSymbols::WIDE, DateFormatSymbols::ABBREVIATED,
                                     DateFormatSymbols::SHORT}) {
                int32_t count = 0;
                const auto* const names = symbols.getWeekdays(count, context, width);
                // The first is none, so that the others are found by their numbers from 1.
                add(names, count, 0);
            }
        }
    }

    /// Adds those of the names that `isTaken` says nothing means yet.
    template <typename IsTaken>
    void addTo(TypedText::Names& names, const IsTaken& isTaken) const
    {
        for (const auto& [name, value] : m_values) {
            if (value != ofNothing && !isTaken(name)) {
                names.push_back({.text = name, .value = value});
            }
        }
    }

private:
    static constexpr int ofNothing = -1;

    std::map<std::u32string, int> m_values;
};

void collectNames(DateWords& words, const DateFormatSymbols& symbols)
{
    NameCollection months;
    NameCollection weekdays;
    months.addMonths(symbols);
    weekdays.addWeekdays(symbols);

    NameCollection englishMonths;
    NameCollection englishWeekdays;
    for (const auto& english : {icu::Locale::getUS(), icu::Locale::getUK()}) {
        UErrorCode status = U_ZERO_ERROR;
        const DateFormatSymbols englishSymbols(english, status);
        if (U_SUCCESS(status)) {
            englishMonths.addMonths(englishSymbols);
            englishWeekdays.addWeekdays(englishSymbols);
        }
    }

    const auto isOfNothing = [](const std::u32string&) {
        return false;
    };
    const auto isTaken = [&](const std::u32string& name) {
        return months.contains(name) || weekdays.contains(name);
    };
    months.addTo(words.months, isOfNothing);
    weekdays.addTo(words.weekdays, isOfNothing);
    englishMonths.addTo(words.englishMonths, isTaken);
    englishWeekdays.addTo(words.weekdays, isTaken);
}

/// The words of a text between two fields, without the marks that stand among them.
std::vector<std::u32string> wordsOf(const QString& text)
{
    std::vector<std::u32string> words(1);
    for (const char32_t character : TypedText::comparable(text)) {
        if (std::u32string_view(U" .,-/+").find(character) == std::u32string_view::npos) {
            words.back() += character;
        } else if (!words.back().empty()) {
            words.emplace_back();
        }
    }
    if (words.back().empty()) {
        words.pop_back();
    }
    return words;
}

/// Adds the names with a prefix or a suffix.
void addForms(TypedText::Names& names, const std::u32string& prefix, const std::u32string& suffix)
{
    const auto plainNames = names;
    for (const auto& name : plainNames) {
        auto form = prefix;
        form.append(name.text).append(suffix);
        names.push_back({.text = std::move(form), .value = name.value});
    }
}

/// The field nearest to a piece of a pattern, going forward or back from it; none at its ends.
char neighbour(const std::vector<PatternPiece>& pieces, std::size_t index, int direction)
{
    const auto step = static_cast<std::size_t>(direction);
    for (index += step; index < pieces.size(); index += step) {
        if (const char field = pieces[index].field(); field != '\0' && field != 'G') {
            return field;
        }
    }
    return '\0';
}

/// Takes in what the pattern has beside its fields: words that stand by themselves, and endings and
/// prepositions that are written together with the name before or behind them.
void collectParticles(DateWords& words, const Pattern& pattern)
{
    const auto all = pieces(pattern);
    const auto namesOf = [&words](const PatternPiece& piece) -> TypedText::Names* {
        const char field = piece.text.size() < 3 ? '\0' : piece.field();
        return field == 'M' ? &words.months : field == 'E' ? &words.weekdays : nullptr;
    };
    for (std::size_t index = 0; index < all.size(); ++index) {
        const auto& piece = all[index];
        if (piece.isField && piece.field() != 'G') {
            continue;
        }
        // Nobody owes anything since before the era in which 1970 lies.
        const auto particles =
            piece.isField
                ? std::vector{TypedText::comparable(DateFormatter::text(Instant(0), piece.text))}
                : wordsOf(piece.text);
        if (particles.empty()) {
            continue;
        }
        const bool isSuffix = index > 0 && !piece.isField && !piece.text.front().isSpace();
        for (const auto& particle : particles) {
            const TypedText::Name name{.text = particle, .value = 0};
            words.particlesBehind[neighbour(all, index, -1)].push_back(name);
            if (!isSuffix) {
                words.particlesBefore[neighbour(all, index, 1)].push_back(name);
            }
        }
        if (auto* const names = isSuffix ? namesOf(all[index - 1]) : nullptr) {
            addForms(*names, {}, particles.front());
        }
        const bool isPrefix =
            index + 1 < all.size() && !piece.isField && !piece.text.back().isSpace();
        if (auto* const names = isPrefix ? namesOf(all[index + 1]) : nullptr) {
            addForms(*names, particles.back(), {});
        }
    }
}

int yearShift()
{
    const Instant date(0);
    const auto shown = TypedText::comparable(DateFormatter::text(date, u"y"_qs));
    const auto year = TypedText(shown).takeNumber();
    const auto components = Calendar::current().components(date);
    return year && components ? year->value - components->year : 0;
}

DateWords makeWords(const RegionalSettings& settings)
{
    const icu::Locale locale(settings.datesLocale().c_str());
    const auto shortPattern = patternOf(icu::DateFormat::kShort, locale);
    const auto longPattern = patternOf(icu::DateFormat::kLong, locale);

    DateWords words;
    words.writtenPattern = withFourDigitYear(shortPattern);
    words.numericOrder = order(shortPattern, "yMd", 'M');
    words.namedOrder = order(longPattern, "dNy", 'N');
    words.yearShift = yearShift();
    const auto format = makeFormat(icu::DateFormat::kShort, locale);
    if (const auto* const simple = dynamic_cast<const icu::SimpleDateFormat*>(format.get())) {
        collectNames(words, *simple->getDateFormatSymbols());
    }
    for (const auto& pattern : {shortPattern, patternOf(icu::DateFormat::kMedium, locale),
                                longPattern, patternOf(icu::DateFormat::kFull, locale)}) {
        collectParticles(words, pattern);
    }
    return words;
}

} // namespace

QStringList DateWords::spellings(const char* entry)
{
    auto all = QString::fromUtf8(entry).split(u'|');
    all += QCoreApplication::translate("RelativeDateFormatter", entry).split(u'|');
    all.removeDuplicates();
    return all;
}

const DateWords& DateWords::current()
{
    static KeptForSettings<std::monostate, DateWords> words;
    return words.get({}, makeWords);
}
