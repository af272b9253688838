#pragma once

#include <QtGlobal> // Qt 6.4's moc does not understand <compare> without it.

#include <array>
#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// An exact decimal number: a sign, a coefficient of up to 38 digits and an exponent of ten.
///
/// It keeps the trailing zeros that it was given ("1.10" stays "1.10") and compares by value, so
/// that 1.1 and 1.10 are equal. The digits that count (the first to the last that is not zero) lie
/// within 128 places before the decimal point and 128 places behind it, which keeps the plain text
/// of any number short. There is no negative zero and nothing that is not a number.
class NSDecimalNumber
{
public:
    static constexpr int maximumDigits = 38;
    static constexpr int maximumPlacesBeforePoint = 128;
    static constexpr int maximumPlacesBehindPoint = 128;

    /// Zero.
    constexpr NSDecimalNumber() = default;
    constexpr explicit NSDecimalNumber(std::int64_t integer)
        : m_low(integer < 0 ? 0U - static_cast<std::uint64_t>(integer)
                            : static_cast<std::uint64_t>(integer))
        , m_isNegative(integer < 0)
    {}

    /// The number that `text` spells: an optional sign, digits with an optional point among them,
    /// and an optional exponent ("-12.50", ".5", "1e5"). Leading and trailing zeros do not count
    /// as digits. Absent when the text is anything else, blanks and grouping marks included, when
    /// it has more than 38 digits (nothing is ever rounded), or when it leaves the range above.
    static std::optional<NSDecimalNumber> fromText(std::string_view text);

    /// The number that the shortest text which reads back as `value` spells: 0.1 is one tenth.
    /// Absent when the value is not finite or leaves the range above.
    static std::optional<NSDecimalNumber> fromDouble(double value);

    /// The number without an exponent, with a leading zero before the point and with the trailing
    /// zeros it was given: "-0.50".
    std::string toPlainText() const;

    /// The double nearest to the number.
    double doubleValue() const;

    constexpr bool isZero() const { return m_high == 0 && m_low == 0; }

    /// By value: numbers that differ in their trailing zeros alone are equal.
    friend std::weak_ordering operator<=>(const NSDecimalNumber& left,
                                          const NSDecimalNumber& right);
    friend bool operator==(const NSDecimalNumber& left, const NSDecimalNumber& right)
    {
        return (left <=> right) == std::weak_ordering::equivalent;
    }

private:
    /// The digits of a coefficient, none for zero; what follows them is filled with zeros.
    struct Digits
    {
        std::array<char, maximumDigits> text;
        int count;
    };

    Digits digits() const;
    /// -1, 0 or 1.
    int sign() const;
    /// Of two numbers that are not zero.
    static std::weak_ordering compareMagnitudes(const NSDecimalNumber& left,
                                                const NSDecimalNumber& right);

    // The coefficient in two halves of 19 decimal digits: text goes in and out half by half, and
    // no arithmetic needs more than 64 bits.
    std::uint64_t m_high = 0;
    std::uint64_t m_low = 0;
    std::int32_t m_exponent = 0;
    bool m_isNegative = false;
};
