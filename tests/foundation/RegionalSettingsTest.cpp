#include "foundation/RegionalSettings.h"

#include "tests/support/ScopedVariable.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

TEST(RegionalSettingsTest, ReadsLocalesAsTheEnvironmentNamesThem)
{
    const std::vector<std::pair<std::string, std::string>> rows = {
        {"de_DE.UTF-8@euro", "de_DE"},
        {"en_XX", "en_XX"},
        {"en_US_POSIX", "en_US"},
        {"sr_RS@latin", "sr_Latn_RS"},
        {"de_DE@" + std::string(1'000'000, '@'), "de_DE"}};
    for (const auto& [name, locale] : rows) {
        EXPECT_EQ(RegionalSettings(name, "", "").datesLocale(), locale) << name.substr(0, 40);
    }
}

TEST(RegionalSettingsTest, ReadsRubbishAsAmericanAndUtc)
{
    const RegionalSettings fallback("en_US", "en_US", "Etc/UTC");
    std::vector<std::string> names = {"",      "C",     "C.UTF-8", "POSIX",       "@euro",
                                      "xx_YY", "la_VA", "root",    "Etc/Unknown", "\xff\xfe\n%n"};
    names.emplace_back(1'000'000, 'a');
    for (const auto& name : names) {
        EXPECT_EQ(RegionalSettings(name, name, name), fallback) << name.substr(0, 40);
    }
}

TEST(RegionalSettingsTest, TakesTheFirstVariableThatIsSet)
{
    const ScopedVariable zone("TZ", "UTC");
    const ScopedVariable language("LANG", "fr_FR");
    const ScopedVariable time("LC_TIME", "en_GB");
    const ScopedVariable money("LC_MONETARY", "");
    const ScopedVariable empty("LC_ALL", "");
    EXPECT_EQ(RegionalSettings::fromEnvironment(), RegionalSettings("en_GB", "fr_FR", "UTC"));
    const ScopedVariable all("LC_ALL", "de_DE");
    EXPECT_EQ(RegionalSettings::fromEnvironment(), RegionalSettings("de_DE", "de_DE", "UTC"));
}

TEST(RegionalSettingsTest, RereadsTheZoneOnDemand)
{
    const auto before = RegionalSettings::current();
    {
        const ScopedRegionalSettings regional({"de_DE", "en_GB", "America/New_York"});
        const ScopedVariable name("TZ", "Europe/Berlin");
        EXPECT_TRUE(RegionalSettings::rereadTimeZone());
        EXPECT_FALSE(RegionalSettings::rereadTimeZone());
        EXPECT_EQ(RegionalSettings::current(), RegionalSettings("de_DE", "en_GB", "Europe/Berlin"));
        const ScopedVariable file("TZ", "/usr/share/zoneinfo/Asia/Tehran");
        EXPECT_TRUE(RegionalSettings::rereadTimeZone());
        EXPECT_EQ(RegionalSettings::current().timeZone(), "Asia/Tehran");
    }
    EXPECT_EQ(RegionalSettings::current(), before);
}
