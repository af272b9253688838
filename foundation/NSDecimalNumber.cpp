#include "foundation/NSDecimalNumber.h"

#include <algorithm>
#include <charconv>
#include <tuple>
#include <type_traits>
#include <utility>

// There are hundreds of thousands of amounts in a long-lived store.
static_assert(sizeof(NSDecimalNumber) == 24);
static_assert(std::is_trivially_copyable_v<NSDecimalNumber>);

namespace {

constexpr int halfDigits = NSDecimalNumber::maximumDigits / 2;
constexpr std::int64_t smallestExponent = -NSDecimalNumber::maximumPlacesBehindPoint;

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

/// Takes an optional sign off the front of `text`; whether it was a minus.
bool takeSign(std::string_view& text)
{
    const bool isSigned = text.starts_with('-') || text.starts_with('+');
    const bool isNegative = text.starts_with('-');
    text.remove_prefix(isSigned ? 1 : 0);
    return isNegative;
}

/// The number behind the "e" of an exponent; absent when `text` is not an optional sign and digits.
/// Beyond any exponent that could matter it stops growing.
std::optional<std::int64_t> parseExponent(std::string_view text)
{
    constexpr std::int64_t enough = 1'000'000'000'000'000;
    const bool isNegative = takeSign(text);
    if (text.empty() || !std::ranges::all_of(text, isDigit)) {
        return std::nullopt;
    }
    std::int64_t exponent = 0;
    for (const char digit : text) {
        exponent = std::min(exponent * 10 + (digit - '0'), enough);
    }
    return isNegative ? -exponent : exponent;
}

/// Digits with an optional point, as a text states them.
struct Mantissa
{
    std::array<char, NSDecimalNumber::maximumDigits> digits{};
    int count = 0;
    std::int64_t exponent = 0;
};

/// Absent when `text` holds no digit, anything but digits and one point, or too many digits.
std::optional<Mantissa> parseMantissa(std::string_view text)
{
    Mantissa mantissa;
    bool hasDigit = false;
    bool isBehindPoint = false;
    for (const char character : text) {
        if (character == '.' && !isBehindPoint) {
            isBehindPoint = true;
            continue;
        }
        if (!isDigit(character)) {
            return std::nullopt;
        }
        hasDigit = true;
        const bool isFull = mantissa.count == NSDecimalNumber::maximumDigits;
        if (isFull && character != '0') {
            return std::nullopt;
        }
        if (isFull) {
            // One of many trailing zeros: before the point it still moves the other digits up.
            mantissa.exponent += isBehindPoint ? 0 : 1;
            continue;
        }
        if (mantissa.count > 0 || character != '0') {
            mantissa.digits.at(static_cast<std::size_t>(mantissa.count++)) = character;
        }
        mantissa.exponent -= isBehindPoint ? 1 : 0;
    }
    return hasDigit ? std::optional(mantissa) : std::nullopt;
}

std::uint64_t integerFromDigits(const char* first, const char* last)
{
    std::uint64_t integer = 0;
    std::from_chars(first, last, integer);
    return integer;
}

} // namespace

std::optional<NSDecimalNumber> NSDecimalNumber::fromText(std::string_view text)
{
    const bool isNegative = takeSign(text);
    const auto exponentMark = text.find_first_of("eE");
    auto mantissa = parseMantissa(text.substr(0, exponentMark));
    if (!mantissa) {
        return std::nullopt;
    }
    if (exponentMark != std::string_view::npos) {
        const auto exponent = parseExponent(text.substr(exponentMark + 1));
        if (!exponent) {
            return std::nullopt;
        }
        mantissa->exponent += *exponent;
    }

    NSDecimalNumber number;
    if (mantissa->count == 0) {
        number.m_exponent = static_cast<std::int32_t>(
            std::clamp<std::int64_t>(mantissa->exponent, smallestExponent, 0));
        return number;
    }
    // The first digit is not zero: it ends this at the latest.
    while (mantissa->exponent < smallestExponent &&
           mantissa->digits.at(static_cast<std::size_t>(mantissa->count - 1)) == '0') {
        --mantissa->count;
        ++mantissa->exponent;
    }
    if (mantissa->exponent < smallestExponent ||
        mantissa->exponent + mantissa->count > maximumPlacesBeforePoint) {
        return std::nullopt;
    }
    const char* const first = mantissa->digits.data();
    const char* const last = first + mantissa->count;
    const char* const middle = last - std::min(mantissa->count, halfDigits);
    number.m_high = integerFromDigits(first, middle);
    number.m_low = integerFromDigits(middle, last);
    number.m_exponent = static_cast<std::int32_t>(mantissa->exponent);
    number.m_isNegative = isNegative;
    return number;
}

std::optional<NSDecimalNumber> NSDecimalNumber::fromDouble(double value)
{
    std::array<char, 32> text{};
    // Scientific: in plain notation a large double comes with more digits than it needs.
    const auto written =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::scientific);
    return fromText(std::string_view(text.data(), written.ptr));
}

NSDecimalNumber::Digits NSDecimalNumber::digits() const
{
    Digits digits{};
    digits.text.fill('0');
    if (isZero()) {
        return digits;
    }
    char* const first = digits.text.data();
    char* const last = first + digits.text.size();
    char* end = std::to_chars(first, last, m_high == 0 ? m_low : m_high).ptr;
    if (m_high != 0) {
        std::array<char, halfDigits + 1> low{};
        const auto* const lowEnd = std::to_chars(low.data(), low.data() + low.size(), m_low).ptr;
        end += halfDigits;
        std::copy_backward(std::as_const(low).data(), lowEnd, end);
    }
    digits.count = static_cast<int>(end - first);
    return digits;
}

std::string NSDecimalNumber::toPlainText() const
{
    const auto coefficient = digits();
    const auto pointPosition = coefficient.count + m_exponent;
    std::string text;
    if (m_isNegative) {
        text.append("-");
    }
    if (pointPosition <= 0) {
        text.append("0");
    }
    if (m_exponent < 0 && pointPosition <= 0) {
        text.append(".").append(static_cast<std::size_t>(-pointPosition), '0');
    }
    for (int i = 0; i < coefficient.count; ++i) {
        if (i > 0 && i == pointPosition) {
            text.append(".");
        }
        text.push_back(coefficient.text.at(static_cast<std::size_t>(i)));
    }
    if (m_exponent > 0) {
        text.append(static_cast<std::size_t>(m_exponent), '0');
    }
    return text;
}

double NSDecimalNumber::doubleValue() const
{
    const auto coefficient = digits();
    std::array<char, maximumDigits + 8> text{};
    char* const textEnd = text.data() + text.size();
    char* end = text.data();
    if (m_isNegative) {
        *end++ = '-';
    }
    end = std::copy_n(coefficient.text.data(), std::max(coefficient.count, 1), end);
    *end++ = 'e';
    end = std::to_chars(end, textEnd, m_exponent).ptr;
    double value = 0;
    std::from_chars(text.data(), end, value);
    return value;
}

int NSDecimalNumber::sign() const
{
    if (isZero()) {
        return 0;
    }
    return m_isNegative ? -1 : 1;
}

std::weak_ordering operator<=>(const NSDecimalNumber& left, const NSDecimalNumber& right)
{
    const int sign = left.sign();
    if (sign != right.sign() || sign == 0) {
        return sign <=> right.sign();
    }
    return sign < 0 ? NSDecimalNumber::compareMagnitudes(right, left)
                    : NSDecimalNumber::compareMagnitudes(left, right);
}

std::weak_ordering NSDecimalNumber::compareMagnitudes(const NSDecimalNumber& left,
                                                      const NSDecimalNumber& right)
{
    if (left.m_exponent == right.m_exponent) {
        return std::tie(left.m_high, left.m_low) <=> std::tie(right.m_high, right.m_low);
    }
    // With the first digits of both at the same place the rest compares as text: nothing has to be
    // scaled, and nothing can overflow.
    const auto leftDigits = left.digits();
    const auto rightDigits = right.digits();
    const int leftPlaces = leftDigits.count + left.m_exponent;
    const int rightPlaces = rightDigits.count + right.m_exponent;
    return std::tie(leftPlaces, leftDigits.text) <=> std::tie(rightPlaces, rightDigits.text);
}
