#include "foundation/NumberParser.h"

#include "foundation/Currency.h"
#include "foundation/KeptForSettings.h"

#include <unicode/dcfmtsym.h>

#include <algorithm>
#include <string_view>
#include <vector>

namespace {

constexpr char32_t arabicDecimals = U'\u066B';
constexpr char32_t arabicThousands = U'\u066C';

enum class Kind
{
    Amount,
    Rate
};

/// A text around its digits.
struct TypedNumber
{
    std::u32string before;
    std::u32string number;
    std::u32string behind;
};

/// Digits with a separator between each two groups of them; the first and the last group may be
/// empty.
struct Groups
{
    std::vector<std::string> digits;
    std::u32string separators;
};

bool isDigit(char32_t character)
{
    return QChar::category(character) == QChar::Number_DecimalDigit;
}

bool isOneOf(std::u32string_view characters, char32_t character)
{
    return characters.find(character) != std::u32string_view::npos;
}

bool isMinus(char32_t character)
{
    return isOneOf(U"-\u2010\u2011\u2012\u2013\u2212\uFE63\uFF0D", character);
}

bool isPlus(char32_t character)
{
    return isOneOf(U"+\uFF0B", character);
}

bool isPercentSign(char32_t character)
{
    return isOneOf(U"%\u066A\uFE6A\uFF05", character);
}

/// One character for all that mean the same between digits; 0 for one that means nothing there.
char32_t separator(char32_t character)
{
    if (isOneOf(U",\uFF0C", character)) {
        return U',';
    }
    if (isOneOf(U".\uFF0E", character)) {
        return U'.';
    }
    if (isOneOf(U"'\u2019\u02BC", character)) {
        return U'\'';
    }
    // Not a line break: that stands between two numbers.
    if (QChar::category(character) == QChar::Separator_Space) {
        return U' ';
    }
    return character == arabicDecimals || character == arabicThousands ? character : U'\0';
}

bool canMarkDecimals(char32_t separator)
{
    return isOneOf(U".,\u066B", separator);
}

/// Whether a separator marks decimals in the locale: yes, no (thousands), or neither.
std::optional<bool> marksDecimalsHere(char32_t wanted)
{
    using Symbols = icu::DecimalFormatSymbols;
    static KeptForSettings<int, std::optional<Symbols>> kept;
    const auto& symbols = kept.get(0, [](const RegionalSettings& settings) {
        UErrorCode status = U_ZERO_ERROR;
        const Symbols made(icu::Locale(settings.moneyLocale().c_str()), status);
        return U_SUCCESS(status) ? std::optional(made) : std::nullopt;
    });
    const auto isWanted = [&](Symbols::ENumberFormatSymbol symbol) {
        const auto text = symbols->getConstSymbol(symbol);
        return separator(static_cast<char32_t>(text.char32At(0))) == wanted;
    };
    if (!symbols) {
        return std::nullopt;
    }
    // What this program writes comes first: some locales have other signs for money.
    if (isWanted(Symbols::kDecimalSeparatorSymbol)) {
        return true;
    }
    if (isWanted(Symbols::kGroupingSeparatorSymbol)) {
        return false;
    }
    if (isWanted(Symbols::kMonetarySeparatorSymbol)) {
        return true;
    }
    return isWanted(Symbols::kMonetaryGroupingSeparatorSymbol) ? std::optional(false)
                                                               : std::nullopt;
}

/// Absent when there is no digit.
std::optional<TypedNumber> split(const QString& text)
{
    auto characters = text.toStdU32String();
    // Pasted texts come with marks of the writing direction.
    std::erase_if(characters, [](char32_t character) {
        return QChar::category(character) == QChar::Other_Format;
    });
    const auto first = std::find_if(characters.begin(), characters.end(), isDigit);
    if (first == characters.end()) {
        return std::nullopt;
    }
    auto last = characters.end();
    while (!isDigit(*(last - 1))) {
        --last;
    }
    TypedNumber typed{.before = {characters.begin(), first},
                      .number = {first, last},
                      .behind = {last, characters.end()}};
    std::erase_if(typed.before, static_cast<bool (*)(char32_t)>(QChar::isSpace));
    std::erase_if(typed.behind, static_cast<bool (*)(char32_t)>(QChar::isSpace));
    return typed;
}

/// Takes the sign off; whether it is a minus. Absent when there are several.
std::optional<bool> takeSign(TypedNumber& typed)
{
    // "500,-" are five hundred, without cents.
    if (!typed.behind.empty() && canMarkDecimals(separator(typed.behind.front()))) {
        const auto dashes = typed.behind.begin() + 1;
        typed.behind.erase(dashes, std::find_if_not(dashes, typed.behind.end(), isMinus));
    }
    auto minuses = std::erase_if(typed.before, isMinus) + std::erase_if(typed.behind, isMinus);
    const auto pluses = std::erase_if(typed.before, isPlus) + std::erase_if(typed.behind, isPlus);
    const auto opening = std::erase(typed.before, U'(');
    const auto closing = std::erase(typed.behind, U')');
    minuses += opening;
    if (opening != closing || minuses + pluses > 1) {
        return std::nullopt;
    }
    return minuses == 1;
}

/// Whether a text beside the digits adds nothing to them: a percent sign or a currency.
bool isUnit(const std::u32string& text, Kind kind)
{
    if (text.empty()) {
        return true;
    }
    return kind == Kind::Rate ? text.size() == 1 && isPercentSign(text.front())
                              : Currency::isSignOrCode(QString::fromStdU32String(text));
}

/// Takes off what stands beside the digits; a separator that touches them goes to them. False when
/// something else is there.
bool takeUnits(TypedNumber& typed, Kind kind)
{
    const auto canJoin = [](char32_t character) {
        return canMarkDecimals(separator(character));
    };
    if (!isUnit(typed.before, kind) && canJoin(typed.before.back())) {
        typed.number.insert(typed.number.begin(), typed.before.back());
        typed.before.pop_back();
    }
    if (!isUnit(typed.behind, kind) && canJoin(typed.behind.front())) {
        typed.number.push_back(typed.behind.front());
        typed.behind.erase(0, 1);
    }
    const bool hasTwoUnits = !typed.before.empty() && !typed.behind.empty();
    return isUnit(typed.before, kind) && isUnit(typed.behind, kind) &&
           !(kind == Kind::Rate && hasTwoUnits);
}

/// Absent when there is anything but digits with single separators between them.
std::optional<Groups> groupsOf(const std::u32string& number)
{
    Groups groups{.digits = {std::string()}, .separators = {}};
    for (const char32_t character : number) {
        if (isDigit(character)) {
            groups.digits.back() += static_cast<char>('0' + QChar::digitValue(character));
            continue;
        }
        const bool isDoubled = groups.digits.back().empty() && !groups.separators.empty();
        if (separator(character) == U'\0' || isDoubled) {
            return std::nullopt;
        }
        groups.separators += separator(character);
        groups.digits.emplace_back();
    }
    return groups;
}

/// Whether the digits are grouped as thousands are: by three, or, as in India, by two before the
/// last three.
bool isGrouped(const Groups& groups)
{
    constexpr std::size_t thousand = 3;
    const auto& first = groups.digits.front();
    const auto& separators = groups.separators;
    const auto hasSize = [](std::size_t size) {
        return [size](const std::string& group) {
            return group.size() == size;
        };
    };
    if (separators.empty()) {
        return true;
    }
    const bool isSame =
        std::ranges::all_of(separators, [&](char32_t mark) { return mark == separators.front(); });
    if (!isSame || separators.front() == arabicDecimals || first.empty() ||
        first.starts_with('0') || first.size() > thousand ||
        groups.digits.back().size() != thousand) {
        return false;
    }
    const auto begin = groups.digits.begin() + 1;
    const auto end = groups.digits.end() - 1;
    return std::all_of(begin, end, hasSize(thousand)) ||
           (first.size() < thousand && std::all_of(begin, end, hasSize(thousand - 1)));
}

/// What the last separator of a number marks.
struct LastMark
{
    bool isOfDecimals = false;
    /// Whether it could be the other as well, were it not for the locale.
    bool isAmbiguous = false;
    bool isOfLocale = true;
};

LastMark lastMark(const Groups& groups, Kind kind)
{
    const auto& separators = groups.separators;
    if (separators.empty() || !canMarkDecimals(separators.back()) ||
        std::ranges::count(separators, separators.back()) > 1) {
        return {};
    }
    if (separators.size() > 1 || kind == Kind::Rate || !isGrouped(groups)) {
        return {.isOfDecimals = true};
    }
    const auto isOfDecimals = marksDecimalsHere(separators.back());
    return {.isOfDecimals = isOfDecimals.value_or(true),
            .isAmbiguous = true,
            .isOfLocale = isOfDecimals.has_value()};
}

/// The number in plain notation; absent when the digits before its decimals are not grouped as
/// thousands are.
std::optional<std::string> plainNumber(Groups groups, bool isNegative, bool hasDecimals)
{
    std::string decimals;
    if (hasDecimals) {
        decimals = groups.digits.back();
        groups.digits.pop_back();
        groups.separators.pop_back();
    }
    if (!isGrouped(groups)) {
        return std::nullopt;
    }
    std::string plain(isNegative ? "-" : "");
    for (const auto& group : groups.digits) {
        plain += group;
    }
    if (groups.digits.front().empty()) {
        plain += '0';
    }
    return decimals.empty() ? plain : plain + '.' + decimals;
}

std::optional<NumberParser::Amount> parsed(const QString& text, Kind kind)
{
    auto typed = split(text);
    if (!typed) {
        return std::nullopt;
    }
    const auto isNegative = takeSign(*typed);
    if (!isNegative || !takeUnits(*typed, kind)) {
        return std::nullopt;
    }
    const auto groups = groupsOf(typed->number);
    if (!groups) {
        return std::nullopt;
    }
    const auto mark = lastMark(*groups, kind);
    const auto number = plainNumber(*groups, *isNegative, mark.isOfDecimals);
    if (!number) {
        return std::nullopt;
    }
    NumberParser::Amount amount{.number = *number,
                                .numberInThousands = std::nullopt,
                                .areDecimalsSure = mark.isOfLocale,
                                .currencies = {}};
    if (mark.isOfDecimals && mark.isAmbiguous) {
        amount.numberInThousands = plainNumber(*groups, *isNegative, false);
    }
    for (const auto& unit : {typed->before, typed->behind}) {
        if (!unit.empty()) {
            amount.currencies.append(QString::fromStdU32String(unit));
        }
    }
    return amount;
}

} // namespace

std::optional<NumberParser::Amount> NumberParser::amount(const QString& text)
{
    return parsed(text, Kind::Amount);
}

std::optional<std::string> NumberParser::rate(const QString& text)
{
    const auto rate = parsed(text, Kind::Rate);
    return rate ? std::optional(rate->number) : std::nullopt;
}
