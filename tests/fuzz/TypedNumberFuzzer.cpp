// What is typed into an amount or a rate, and what stands in a store as a decimal. Input: a byte
// for the locale, and the text.

#include "foundation/NSDecimalNumber.h"
#include "foundation/NumberParser.h"
#include "tests/fuzz/FuzzTarget.h"
#include "tests/fuzz/TypedLocale.h"

#include <cmath>

namespace {

/// "-12.50": a sign, digits, and behind a point more of them.
bool isPlain(std::string_view text)
{
    constexpr std::string_view digits = "0123456789";
    if (text.starts_with('-')) {
        text.remove_prefix(1);
    }
    const auto whole = std::min(text.find_first_not_of(digits), text.size());
    text.remove_prefix(whole);
    if (text.starts_with('.')) {
        text.remove_prefix(1);
        return whole > 0 && !text.empty() && text.find_first_not_of(digits) == text.npos;
    }
    return whole > 0 && text.empty();
}

void checkDecimal(std::string_view text)
{
    const auto number = NSDecimalNumber::fromText(text);
    if (!number) {
        return;
    }
    const auto plain = number->toPlainText();
    require(isPlain(plain), "a decimal is written plainly");
    const bool isCanonical = isPlain(text) && !text.ends_with('0') &&
                             text.substr(text.starts_with('-') ? 1 : 0, 2).find('0') != 0;
    require(!isCanonical || plain == text, "a decimal is what was typed");
    const auto again = NSDecimalNumber::fromText(plain);
    require(again && *again == *number && again->toPlainText() == plain,
            "a decimal is read as it was written");
    const double value = number->doubleValue();
    require(std::isfinite(value), "a decimal has a finite value");
    require(std::signbit(value) == plain.starts_with('-') || value == 0.0, "it keeps its sign");
    for (const auto other : {-1e100, -1.0, 0.0, 0.1, 1.0, 1e30}) {
        const auto otherNumber = NSDecimalNumber::fromDouble(other).value();
        require(value == other || (*number < otherNumber) == (value < other),
                "decimals are in the order of their values");
        require((*number <=> otherNumber) == (0 <=> (otherNumber <=> *number)),
                "the order is one from both sides");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzInput input(data, size);
    useLocale(input.take<std::uint8_t>());
    const auto typed = input.takeRest();
    checkDecimal(typed);
    const auto text = QString::fromUtf8(typed.data(), static_cast<qsizetype>(typed.size()));
    const auto amount = NumberParser::amount(text);
    for (const auto& number :
         {amount ? std::optional(amount->number) : std::nullopt,
          amount ? amount->numberInThousands : std::nullopt, NumberParser::rate(text)}) {
        if (number) {
            require(isPlain(*number), "a number is answered plainly");
            checkDecimal(*number);
        }
    }
    return 0;
}
