#include "foundation/NSDecimalNumber.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <random>
#include <sstream>
#include <string>
#include <vector>

namespace {

NSDecimalNumber number(const std::string& text)
{
    const auto read = NSDecimalNumber::fromText(text);
    EXPECT_TRUE(read.has_value()) << text;
    return read.value_or(NSDecimalNumber());
}

std::string withZeros(const char* text, std::size_t count)
{
    return std::string(text).append(count, '0');
}

} // namespace

TEST(NSDecimalNumberTest, ReadsWhatPeopleAndDatabasesWrite)
{
    struct Row
    {
        const char* name;
        std::string text;
        std::string plainText;
    };
    const std::vector<Row> rows = {
        {"trailing zeros", "1.10", "1.10"},
        {"leading zeros", withZeros("", 500) + "7.50", "7.50"},
        {"a plus sign", "+3", "3"},
        {"no digit before the point", "-.5", "-0.5"},
        {"no digit behind the point", "5.", "5"},
        {"a negative zero with places", "-0.00", "0.00"},
        {"a zero with any exponent", "0e999999999999999999999", "0"},
        {"an exponent", "1.25E+1", "12.5"},
        {"a negative exponent", "125e-4", "0.0125"},
        {"a database's real", "9.2233720368547758e+18", "9223372036854775800"},
        {"38 digits", "1234567890123456789012345678.9012345678",
         "1234567890123456789012345678.9012345678"},
        {"zeros in both halves", withZeros("1", 36) + "1", withZeros("1", 36) + "1"},
        {"more zeros than digits", withZeros("1", 60), withZeros("1", 60)},
        {"more zeros than digits behind the point", withZeros("1.", 60), withZeros("1.", 37)},
        {"the last place before the point", "9e127", withZeros("9", 127)},
        {"zeros behind the last place", withZeros("-9.", 9) + "e-128",
         withZeros("-0.", 127) + "9"}};
    for (const auto& row : rows) {
        EXPECT_EQ(number(row.text).toPlainText(), row.plainText) << row.name;
    }
}

TEST(NSDecimalNumberTest, RefusesEverythingElse)
{
    std::istringstream texts("- . 1..2 1.2.3 --1 1,000 nan inf -inf e5 1e 1e+ 1e1.5 1e5e5 0x10 "
                             "1e128 10e127 1e-129 1.5e-128 1e99999999999999999999 "
                             "100000000000000000000.000000000000000001");
    for (std::string text; texts >> text;) {
        EXPECT_FALSE(NSDecimalNumber::fromText(text)) << text;
    }
    EXPECT_FALSE(NSDecimalNumber::fromText(""));
    EXPECT_FALSE(NSDecimalNumber::fromText(" 1"));
    EXPECT_FALSE(NSDecimalNumber::fromText("1 "));
    EXPECT_FALSE(NSDecimalNumber::fromText(std::string(39, '9')));
    EXPECT_FALSE(NSDecimalNumber::fromText({"1\0", 2}));
}

TEST(NSDecimalNumberTest, ComparesByValue)
{
    std::istringstream order(
        "-9e127 < -2 = -2.00 < -1.9999999999999999999999999999999999999 < -1e-128 < 0 = -0.000 = "
        "0e5 < 1e-128 = 10e-129 < 0.1 = 0.10 = 1e-1 < 0.10000000000000000000000000000000000001 < 1 "
        "= 1.0000000000000000000000000000000000000 < 9.9999999999999999999999999999999999999 < 10 "
        "= 1e1 < 99999999999999999999999999999999999998 < 99999999999999999999999999999999999999 "
        "< 1e38 = 100000000000000000000000000000000000000 < 9e127");
    std::vector<std::pair<int, NSDecimalNumber>> numbers;
    int rank = 0;
    for (std::string word; order >> word;) {
        if (word == "<" || word == "=") {
            rank += word == "<" ? 1 : 0;
        } else {
            numbers.emplace_back(rank, number(word));
        }
    }
    for (const auto& [leftRank, left] : numbers) {
        for (const auto& [rightRank, right] : numbers) {
            EXPECT_TRUE((left <=> right) == (leftRank <=> rightRank))
                << left.toPlainText() << " and " << right.toPlainText();
        }
    }
}

TEST(NSDecimalNumberTest, ConvertsToTheNearestDouble)
{
    // The same numbers in every run. strtod reads the same text independently.
    std::mt19937_64 random(20);
    for (int i = 0; i < 50'000; ++i) {
        std::string text = std::to_string(random()) + std::to_string(random());
        text.resize(std::min(text.size(), 2 + random() % NSDecimalNumber::maximumDigits));
        text[random() % text.size()] = '.';
        text.append("e").append(std::to_string(static_cast<int>(random() % 160) - 80));
        const auto decimal = number(text);
        ASSERT_EQ(decimal.doubleValue(), std::strtod(text.c_str(), nullptr)) << text;
        ASSERT_EQ(number(decimal.toPlainText()), decimal) << text;
    }
}

TEST(NSDecimalNumberTest, TakesIntegersAndFiniteDoubles)
{
    EXPECT_EQ(NSDecimalNumber(), NSDecimalNumber(0));
    EXPECT_EQ(NSDecimalNumber(INT64_MAX).toPlainText(), "9223372036854775807");
    EXPECT_EQ(NSDecimalNumber(INT64_MIN).toPlainText(), "-9223372036854775808");
    EXPECT_EQ(NSDecimalNumber::fromDouble(0.1), number("0.1"));
    EXPECT_EQ(NSDecimalNumber::fromDouble(-2.0 / 3), number("-0.6666666666666666"));
    EXPECT_EQ(NSDecimalNumber::fromDouble(1e23), number("1e23"));
    for (const double value : {std::nan(""), HUGE_VAL, -HUGE_VAL, 1e128, 5e-324}) {
        EXPECT_FALSE(NSDecimalNumber::fromDouble(value)) << value;
    }
}
