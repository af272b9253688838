#include "foundation/Currency.h"
#include "foundation/DateFormatter.h"
#include "foundation/NumberFormatter.h"
#include "foundation/RegionalSettings.h"
#include "tests/support/Utc.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

namespace {

/// The text with a stand-in for each character that cannot be seen: no-break spaces wide (~) and
/// narrow (_), and marks of the writing direction.
std::string visible(QString text)
{
    const std::vector<std::pair<char16_t, char16_t>> standIns = {{u'\u00a0', u'~'},
                                                                 {u'\u202f', u'_'},
                                                                 {u'\u061c', u'<'},
                                                                 {u'\u200f', u'>'},
                                                                 {u'\u200e', u'^'}};
    for (const auto& [invisible, standIn] : standIns) {
        text.replace(QChar(invisible), QChar(standIn));
    }
    return text.toStdString();
}

RegionalSettings at(const char* locale)
{
    return {locale, locale, "Europe/Berlin"};
}

} // namespace

TEST(NumberFormatterTest, WritesMoneyAsTheLocaleDoes)
{
    const std::vector<std::optional<QString>> codes = {u"GBP"_qs,  u"EUR"_qs, u"USD"_qs,
                                                       u"JPY"_qs,  u"kwd"_qs, u"XYZ"_qs,
                                                       u"GOLD"_qs, u""_qs,    std::nullopt};
    const std::vector<std::pair<const char*, std::string>> rows = {
        {"en_GB", "-£1,234.56 | -€1,234.56 | -US$1,234.56 | -JP¥1,235 | -KWD~1,234.565 | "
                  "-XYZ~1,234.56 | -1,234.56 GOLD | -1,234.56 | -£1,234.56"},
        {"en_US", "-£1,234.56 | -€1,234.56 | -$1,234.56 | -¥1,235 | -KWD~1,234.565 | "
                  "-XYZ~1,234.56 | -1,234.56 GOLD | -1,234.56 | -$1,234.56"},
        {"de_DE", "-1.234,56~£ | -1.234,56~€ | -1.234,56~$ | -1.235~¥ | -1.234,565~KWD | "
                  "-1.234,56~XYZ | -1.234,56 GOLD | -1.234,56 | -1.234,56~€"},
        {"fr_FR", "-1_234,56~£GB | -1_234,56~€ | -1_234,56~$US | -1_235~JPY | -1_234,565~KWD | "
                  "-1_234,56~XYZ | -1_234,56 GOLD | -1_234,56 | -1_234,56~€"},
        {"ar_EG",
         "<->١٬٢٣٤٫٥٦~UK£ | <->١٬٢٣٤٫٥٦~€ | <->١٬٢٣٤٫٥٦~US$ | <->١٬٢٣٥~JP¥ | <->١٬٢٣٤٫٥٦٥~د.ك.> | "
         "<->١٬٢٣٤٫٥٦~XYZ | <-١٬٢٣٤٫٥٦ GOLD | <-١٬٢٣٤٫٥٦ | <->١٬٢٣٤٫٥٦~ج.م.>"},
        {"fa_IR", "^−^£۱٬۲۳۴٫۵۶ | ^−^€۱٬۲۳۴٫۵۶ | ^−^$۱٬۲۳۴٫۵۶ | ^−^¥۱٬۲۳۵ | ^−^KWD~۱٬۲۳۴٫۵۶۵ | "
                  "^−^XYZ~۱٬۲۳۴٫۵۶ | ^−۱٬۲۳۴٫۵۶ GOLD | ^−۱٬۲۳۴٫۵۶ | ^−^ریال~۱٬۲۳۵"},
    };
    for (const auto& [locale, texts] : rows) {
        const ScopedRegionalSettings regional(at(locale));
        QStringList money;
        for (const auto& code : codes) {
            money.append(NumberFormatter::currencyText("-1234.565", code));
        }
        EXPECT_EQ(visible(money.join(u" | "_qs)), texts) << locale;
    }
}

TEST(NumberFormatterTest, NeverThrowsADigitAway)
{
    const ScopedRegionalSettings regional(at("en_GB"));
    EXPECT_EQ(NumberFormatter::numberText("-12345678901234567890123456.123456789012"),
              u"-12,345,678,901,234,567,890,123,456.123456789012"_qs);
    for (const char* text : {"", "-", "1.2.3", "1e999999999", "Infinity", "12 pounds"}) {
        EXPECT_EQ(NumberFormatter::currencyText(text, u"GBP"_qs), QString::fromUtf8(text));
        EXPECT_EQ(NumberFormatter::numberText(text), QString::fromUtf8(text));
    }
    EXPECT_EQ(NumberFormatter::currencyText("500", u"GBP"_qs), u"£500.00"_qs);
}

TEST(NumberFormatterTest, WritesPercentagesWithAPointEverywhere)
{
    const ScopedRegionalSettings regional(at("ar_EG"));
    QStringList texts;
    for (const double percent :
         {19.9, 0.25, 99.95, -0.04, 1e21, HUGE_VAL, -HUGE_VAL, std::nan("")}) {
        texts.append(NumberFormatter::percentText(percent));
    }
    EXPECT_EQ(visible(texts.join(u' ')),
              "19.9 0.2 100.0 -0.0 1000000000000000000000.0 inf -inf nan");
    EXPECT_EQ(NumberFormatter::percentText(std::numeric_limits<double>::lowest()).size(), 312);
}

TEST(CurrencyTest, KnowsTheCurrenciesAndTheLocalOne)
{
    auto codes = Currency::isoCodes();
    EXPECT_TRUE(codes.contains(u"GBP"_qs) && codes.contains(u"DEM"_qs));
    EXPECT_EQ(codes.removeDuplicates(), 0);
    const ScopedRegionalSettings noCountry(at("de"));
    EXPECT_EQ(Currency::localCode(), std::nullopt);
    EXPECT_EQ(NumberFormatter::currencyText("1234.5", std::nullopt), u"1.234,50"_qs);
    EXPECT_EQ(NumberFormatter::currencyText("1234.5", u"£€$"_qs), u"1.234,50 £€$"_qs);
}

TEST(NumberFormatterTest, WritesAmountsAndRatesAsTheyAreTyped)
{
    struct Row
    {
        const char* locale;
        const char* pounds;
        const char* yen;
        const char* dinars;
        const char* rate;
    };
    for (const auto& row : {Row{"en_GB", "1,234.50", "1,234.5", "1,234.500", "1234.5%"},
                            Row{"de_DE", "1.234,50", "1.234,5", "1.234,500", "1234,5~%"},
                            Row{"tr_TR", "1.234,50", "1.234,5", "1.234,500", "%1234,5"}}) {
        const ScopedRegionalSettings regional(at(row.locale));
        EXPECT_EQ(visible(NumberFormatter::amountText("1234.5", u"GBP"_qs)), row.pounds);
        EXPECT_EQ(visible(NumberFormatter::amountText("1234.5", u"JPY"_qs)), row.yen);
        EXPECT_EQ(visible(NumberFormatter::amountText("1234.5", u"kwd"_qs)), row.dinars);
        EXPECT_EQ(visible(NumberFormatter::rateText("1234.5")), row.rate);
    }
}

TEST(CurrencyTest, NamesCurrenciesInTheLanguageOfThePerson)
{
    const ScopedRegionalSettings regional(at("de_DE"));
    EXPECT_EQ(Currency::name(u"GBP"_qs), u"Britisches Pfund"_qs);
    EXPECT_EQ(Currency::name(u"XQX"_qs), u"XQX"_qs);
    EXPECT_EQ(Currency::name(u"GOLD"_qs), u"GOLD"_qs);
    EXPECT_EQ(Currency::name(u""_qs), u""_qs);
}

TEST(DateFormatterTest, WritesDatesAsTheLocaleDoes)
{
    const std::vector<std::pair<const char*, std::string>> rows = {{"en_GB", "15/07/2013 Jul"},
                                                                   {"en_US", "7/15/13 Jul"},
                                                                   {"de_DE", "15.07.13 Juli"},
                                                                   {"fa_IR", "۱۳۹۲/۴/۲۴ تیر"},
                                                                   {"th_TH", "15/7/56 ก.ค."}};
    for (const auto& [locale, texts] : rows) {
        const ScopedRegionalSettings regional(at(locale));
        // The 14th in UTC, the 15th in the zone.
        const auto date = utc(2013, 7, 14, 23, 30);
        const auto month = DateFormatter::text(date, u"MMM"_qs);
        EXPECT_EQ(visible(DateFormatter::shortText(date) + u' ' + month), texts) << locale;
    }
}

TEST(DateFormatterTest, PutsFieldsInTheOrderAndTheWordsOfTheLocale)
{
    const auto date = utc(2013, 7, 15, 12);
    const std::vector<std::pair<const char*, const char*>> rows = {
        {"en_GB", "July 2013 | Monday, 15 July 2013"},
        {"en_US", "July 2013 | Monday, July 15, 2013"},
        {"de_DE", "Juli 2013 | Montag, 15. Juli 2013"},
        {"es_ES", "julio de 2013 | lunes, 15 de julio de 2013"},
        {"ja_JP", "2013年7月 | 2013年7月15日月曜日"},
    };
    for (const auto& [locale, texts] : rows) {
        const ScopedRegionalSettings regional(at(locale));
        EXPECT_EQ(visible(DateFormatter::textOfFields(date, u"yMMMM"_qs) + u" | " +
                          DateFormatter::textOfFields(date, u"yMMMMEEEEd"_qs)),
                  texts)
            << locale;
    }
}

TEST(DateFormatterTest, TakesPatternsAndShowsWhatItCannotFormat)
{
    const ScopedRegionalSettings regional(at("en_GB"));
    const auto date = utc(2013, 12, 30, 12);
    EXPECT_EQ(DateFormatter::text(date, u"YYYY"_qs), u"2014"_qs);
    EXPECT_EQ(DateFormatter::text(date, u"YY MMMM MM"_qs), u"14 December 12"_qs);
    EXPECT_EQ(DateFormatter::text(date, u"nonsense"_qs), u"2013-12-30"_qs);
    EXPECT_EQ(DateFormatter::text(date, u""_qs), u""_qs);
    EXPECT_EQ(DateFormatter::shortText(Instant(-0.5)), u"01/01/1970"_qs);
    EXPECT_EQ(DateFormatter::shortText(Instant(std::nan(""))), u"nan"_qs);
    EXPECT_EQ(DateFormatter::shortText(Instant(1e300)), u"1e+300"_qs);
}
