#include "foundation/OASteppableTextFieldFormatter.h"

#include <algorithm>
#include <cstdlib>
#include <string>

namespace {

/// `left` plus or, with a sign of -1, minus `right`, digit by digit. Both have as many digits, and
/// the result has no more; a difference is not negative.
std::string sum(std::string left, const std::string& right, int sign)
{
    int carry = 0;
    for (auto index = left.size(); index-- > 0;) {
        const int digit = (left[index] - '0') + sign * (right[index] - '0') + carry;
        carry = digit > 9 ? 1 : digit < 0 ? -1 : 0;
        left[index] = static_cast<char>('0' + digit - 10 * carry);
    }
    return left;
}

/// The magnitude of `step` is one of 1 and 10.
NSDecimalNumber stepped(const std::optional<NSDecimalNumber>& value, int step)
{
    const auto from = value.value_or(NSDecimalNumber());
    auto digits = from.toPlainText();
    const bool isNegative = digits.starts_with('-');
    digits.erase(0, isNegative ? 1 : 0);
    const auto point = digits.find('.');
    const auto places = point == std::string::npos ? 0 : digits.size() - point - 1;
    std::erase(digits, '.');

    // With room for what is carried, and both of one length.
    auto stepDigits = std::to_string(std::abs(step)) + std::string(places, '0');
    const auto length = std::max(digits.size(), stepDigits.size()) + 1;
    digits.insert(0, length - digits.size(), '0');
    stepDigits.insert(0, length - stepDigits.size(), '0');

    std::string result;
    bool isResultNegative = isNegative;
    if (isNegative == (step < 0)) {
        result = sum(digits, stepDigits, 1);
    } else if (digits >= stepDigits) {
        result = sum(digits, stepDigits, -1);
    } else {
        result = sum(stepDigits, digits, -1);
        isResultNegative = !isNegative;
    }
    if (places > 0) {
        result.insert(result.size() - places, 1, '.');
    }
    return NSDecimalNumber::fromText((isResultNegative ? "-" : "") + result).value_or(from);
}

} // namespace

NSDecimalNumber
OASteppableTextFieldFormatter::stepUpValue(const std::optional<NSDecimalNumber>& value)
{
    return stepped(value, 1);
}

NSDecimalNumber
OASteppableTextFieldFormatter::largeStepUpValue(const std::optional<NSDecimalNumber>& value)
{
    return stepped(value, 10);
}

NSDecimalNumber
OASteppableTextFieldFormatter::stepDownValue(const std::optional<NSDecimalNumber>& value)
{
    return stepped(value, -1);
}

NSDecimalNumber
OASteppableTextFieldFormatter::largeStepDownValue(const std::optional<NSDecimalNumber>& value)
{
    return stepped(value, -10);
}
