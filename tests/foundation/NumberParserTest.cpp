#include "foundation/NumberParser.h"

#include "foundation/Currency.h"
#include "foundation/NSDecimalNumber.h"
#include "foundation/NumberFormatter.h"
#include "foundation/RegionalSettings.h"

#include <gtest/gtest.h>

#include <array>

namespace {

struct Row
{
    const char* locale;
    const char* text;
    const char* number; ///< "-" when the text is refused.
};

/// Of an amount that could be another one too, both: "1.234|1234"; "?" when nobody can tell.
std::optional<std::string> readAmount(const QString& text)
{
    const auto amount = NumberParser::amount(text);
    if (!amount || !amount->numberInThousands) {
        return amount ? std::optional(amount->number) : std::nullopt;
    }
    return amount->number + (amount->areDecimalsSure ? "|" : "?") + *amount->numberInThousands;
}

void expectReading(std::optional<std::string> (*read)(const QString&), const Row& row)
{
    const ScopedRegionalSettings regional({"en_GB", row.locale, "Europe/London"});
    EXPECT_EQ(read(QString::fromUtf8(row.text)).value_or("-"), row.number)
        << row.locale << ": " << row.text;
}

} // namespace

TEST(NumberParserTest, ReadsWhatMarksDecimalsAndThousandsInTheLocaleOrOnlyCan)
{
    const auto rows = std::to_array<Row>({
        {"en_GB", "1,234.5", "1234.5"},
        {"de_DE", "1.234,5", "1234.5"},
        {"fr_FR", "1\u202f234,5", "1234.5"},
        {"de_CH", "1’234.5", "1234.5"},
        {"en_IN", "12,34,567.89", "1234567.89"},
        {"ar_EG", "١٬٢٣٤٫٥٠", "1234.50"},
        {"fa_IR", "۱۲۳۴٫۵", "1234.5"},
        {"en_GB", "1234.50", "1234.50"},
        {"en_GB", ".5", "0.5"},
        {"en_GB", "5.", "5"},
        // One sign that could mean either.
        {"en_GB", "1.234", "1.234|1234"},
        {"en_GB", "€ 4.000", "4.000|4000"},
        {"en_GB", "1,234", "1234"},
        {"de_DE", "1.234", "1234"},
        {"de_DE", "1,234", "1.234|1234"},
        {"de_AT", "1.234", "1234"},
        {"fr_FR", "1.234", "1.234?1234"},
        // One that could not.
        {"de_DE", "0.125", "0.125"},
        {"de_DE", "12.50", "12.50"},
        {"en_GB", "1,5", "1.5"},
        {"de_DE", "1,234.50", "1234.50"},
        {"en_GB", "1.234.567", "1234567"},
        {"en_GB", "1 234 567.8", "1234567.8"},
        // More than one number, or none.
        {"en_GB", "1,23,4", "-"},
        {"en_GB", "1,2345,678", "-"},
        {"en_GB", "1.234.5", "-"},
        {"en_GB", "1,234 567", "-"},
        {"en_GB", "1,,234", "-"},
        {"en_GB", "12 34", "-"},
        {"en_GB", "500\n600", "-"},
        {"en_GB", "500\t600", "-"},
        {"en_GB", "12.50 13.00", "-"},
        {"en_GB", "15/07/2013", "-"},
        {"en_GB", "1e5", "-"},
        {"en_GB", "0x10", "-"},
        {"en_GB", "½", "-"},
        {"en_GB", "5²", "-"},
        {"en_GB", "", "-"},
        {"en_GB", " - ", "-"},
        {"en_GB", ".", "-"},
        {"en_GB", "nan", "-"},
    });
    for (const auto& row : rows) {
        expectReading(readAmount, row);
    }
}

TEST(NumberParserTest, LooksPastBlanksSignsAndCurrenciesAroundAnAmount)
{
    const auto rows = std::to_array<Row>({
        {"en_GB", "  £1,234.50\r\n", "1234.50"},
        {"de_DE", "1.234,50\u00a0€", "1234.50"},
        {"en_GB", "usd 5", "5"},
        {"en_GB", "US$5", "5"},
        {"en_US", "R$ 5", "5"},
        {"da_DK", "kr. 500", "500"},
        {"da_DK", "500,25 kr.", "500.25"},
        {"pl_PL", "12,50 zł", "12.50"},
        {"en_GB", "£.50", "0.50"},
        {"en_GB", "-5", "-5"},
        {"en_GB", "\u22125", "-5"},
        {"en_GB", "£-5", "-5"},
        {"en_GB", "- £5", "-5"},
        {"en_GB", "5.00-", "-5.00"},
        {"en_GB", "(£1,234.50)", "-1234.50"},
        {"ar_EG", "\u061c-٥", "-5"},
        {"he_IL", "\u200e-5 \u200f₪", "-5"},
        {"en_GB", "+5", "5"},
        {"de_CH", "CHF 500.-", "500"},
        {"de_DE", "500,– €", "500"},
        {"en_GB", "--5", "-"},
        {"en_GB", "-(5)", "-"},
        {"en_GB", "(5", "-"},
        {"en_GB", "5 apples", "-"},
        {"en_GB", "$$5", "-"},
        {"en_GB", "5%", "-"},
    });
    for (const auto& row : rows) {
        expectReading(readAmount, row);
    }
}

TEST(CurrencyTest, KnowsWhoseASignIs)
{
    struct Sign
    {
        const char* locale;
        const char* sign;
        const char* code;     ///< What it means alone; "-" when that cannot be told.
        const char* signOf;   ///< Whose it may be as well,
        const char* noSignOf; ///< and whose it cannot be.
    };
    for (const auto& row : std::to_array<Sign>({
             {"en_GB", "£", "GBP", "GBP", "USD"},
             {"en_GB", "$", "USD", "AUD", "GBP"},
             {"en_US", "$", "USD", "CAD", "EUR"},
             {"en_CA", "$", "CAD", "USD", "EUR"},
             {"en_US", "US$", "USD", "USD", "CAD"},
             {"en_US", "C$", "NIO", "CAD", "USD"},
             {"sv_SE", "€", "EUR", "EUR", "SEK"},
             {"sv_SE", "kr", "SEK", "NOK", "EUR"},
             {"en_GB", "kr", "-", "DKK", "GBP"},
             {"da_DK", "kr.", "DKK", "DKK", "EUR"},
             {"ja_JP", "¥", "JPY", "CNY", "EUR"},
             {"en_GB", "jpy", "-", "JPY", "GBP"},
         })) {
        const ScopedRegionalSettings regional({"en_GB", row.locale, "Europe/London"});
        const auto sign = QString::fromUtf8(row.sign);
        SCOPED_TRACE(std::string(row.locale) + ' ' + row.sign);
        EXPECT_EQ(Currency::codeForSign(sign).value_or(u"-"_qs).toStdString(), row.code);
        EXPECT_TRUE(Currency::isSignOrCodeOf(sign, QString::fromLatin1(row.signOf)));
        EXPECT_FALSE(Currency::isSignOrCodeOf(sign, QString::fromLatin1(row.noSignOf)));
    }
    const ScopedRegionalSettings antarctica({"en_AQ", "en_AQ", "UTC"});
    EXPECT_EQ(Currency::localCode(), std::nullopt);
    const auto inUse = Currency::codesInUse();
    EXPECT_TRUE(inUse.contains(u"GBP"_qs));
    EXPECT_FALSE(inUse.contains(u"DEM"_qs) || inUse.contains(u"XAU"_qs));
}

TEST(NumberParserTest, ReadsAPercentageWithOrWithoutItsSignAndNeverInThousands)
{
    const auto rows = std::to_array<Row>({
        {"en_GB", "19.9", "19.9"},
        {"de_DE", "19,9\u00a0%", "19.9"},
        {"en_GB", "19,9 %", "19.9"},
        {"tr_TR", "%19,9", "19.9"},
        {"ar_EG", "١٩٫٩٪", "19.9"},
        {"de_DE", "12.125", "12.125"},
        {"fr_FR", "12.125 %", "12.125"},
        {"en_GB", "-1%", "-1"},
        {"en_GB", "19.9%%", "-"},
        {"en_GB", "%19.9%", "-"},
        {"en_GB", "£19.9", "-"},
    });
    for (const auto& row : rows) {
        expectReading(NumberParser::rate, row);
    }
}

TEST(NumberParserTest, ReadsWhateverTheFormatterWrites)
{
    const auto numbers = {"0",
                          "-0.5",
                          "999.999",
                          "1000",
                          "-1234567.5",
                          "99999999999999999999999",
                          "12345678901234567890.123456789012345678"};
    for (const auto* const locale :
         {"en_GB", "de_DE", "de_AT", "de_CH", "fr_FR", "fr_CH", "es_ES", "en_IN", "hi_IN", "sv_SE",
          "pt_BR", "ar_EG", "fa_IR", "he_IL", "tr_TR", "my_MM", "ja_JP"}) {
        const ScopedRegionalSettings regional({locale, locale, "Europe/London"});
        for (const auto* const number : numbers) {
            SCOPED_TRACE(testing::Message() << locale << ": " << number);
            const auto value = NSDecimalNumber::fromText(number);
            const auto valueOf = [](const std::optional<std::string>& read) {
                return NSDecimalNumber::fromText(read.value_or(""));
            };
            for (const auto& currency : {u"GBP"_qs, u"JPY"_qs, u"KWD"_qs}) {
                const auto text = NumberFormatter::amountText(number, currency);
                EXPECT_EQ(valueOf(NumberParser::amount(text).value().number), value);
            }
            EXPECT_EQ(valueOf(NumberParser::rate(NumberFormatter::rateText(number))), value);
        }
        for (const auto& code : Currency::isoCodes()) {
            const auto text = NumberFormatter::currencyText("-1234.5", code);
            const auto amount = NumberParser::amount(text);
            ASSERT_TRUE(amount) << locale << ": " << text.toStdString();
            EXPECT_TRUE(std::ranges::all_of(
                amount->currencies,
                [&code](const QString& sign) { return Currency::isSignOrCodeOf(sign, code); }))
                << locale << ": " << text.toStdString();
        }
    }
}
