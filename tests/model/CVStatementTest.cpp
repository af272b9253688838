#include "foundation/RegionalSettings.h"
#include "model/CardNetworks.h"
#include "tests/support/CardStore.h"
#include "tests/support/Utc.h"

#include <gtest/gtest.h>

#include <array>
#include <utility>

namespace {

NSDecimalNumber decimal(const char* text)
{
    return NSDecimalNumber::fromText(text).value();
}

std::string amounts(const CVStatement& statement)
{
    return statement.balance()->toPlainText() + ' ' + statement.limit()->toPlainText() + ' ' +
           statement.payment()->toPlainText();
}

} // namespace

TEST(CVStatementTest, WritesAmountsInTheCurrencyOfItsCard)
{
    struct Row
    {
        const char* locale;
        std::optional<QString> ccy;
        QString text;
    };
    const auto rows = std::to_array<Row>({
        {"en_GB", u"GBP"_qs, u"£1,234.50 ÷ £10,000.00 = 12.3%"_qs},
        {"en_GB", u"KWD"_qs, u"KWD 1,234.500 ÷ KWD 10,000.000 = 12.3%"_qs},
        {"en_GB", std::nullopt, u"£1,234.50 ÷ £10,000.00 = 12.3%"_qs},
        {"en_US", u"JPY"_qs, u"¥1,234 ÷ ¥10,000 = 12.3%"_qs},
        {"en_US", u"GOLD"_qs, u"1,234.50 GOLD ÷ 10,000.00 GOLD = 12.3%"_qs},
        {"de_DE", u"EUR"_qs, u"1.234,50 € ÷ 10.000,00 € = 12.3%"_qs},
        {"de_DE", u""_qs, u"1.234,50 ÷ 10.000,00 = 12.3%"_qs},
        {"fr_FR", u"GBP"_qs, u"1\u202f234,50 £GB ÷ 10\u202f000,00 £GB = 12.3%"_qs},
        {"ar_EG", u"EUR"_qs, u"\u200f١٬٢٣٤٫٥٠ € ÷ \u200f١٠٬٠٠٠٫٠٠ € = 12.3%"_qs},
        {"fa_IR", u"USD"_qs, u"\u200e$۱٬۲۳۴٫۵۰ ÷ \u200e$۱۰٬۰۰۰٫۰۰ = 12.3%"_qs},
    });
    CardStore store;
    auto& card = store.insertCard(u"Everyday"_qs);
    auto& statement =
        store.insertStatement(&card, utc(2013, 3, 15), {"1234.5", "10000", "0", 0.199});
    for (const auto& row : rows) {
        const ScopedRegionalSettings regional({row.locale, row.locale, "UTC"});
        card.setCcy(row.ccy);
        // The no-break space looks like the other one in the rows above.
        const auto text = card.formattedBalanceAndLimit()->replace(u'\u00a0', u' ');
        EXPECT_EQ(text, row.text) << row.locale << ' ' << text.toStdString();
        EXPECT_EQ(card.formattedAPR(), u"19.9% APR"_qs);
    }
    statement.setLimit(NSDecimalNumber());
    EXPECT_TRUE(statement.formattedBalanceAndLimit().endsWith(u" = 0.0%"));
    statement.setLimit(std::nullopt);
    EXPECT_TRUE(statement.formattedBalanceAndLimit().endsWith(u" ÷ – = 0.0%"));
}

TEST(CVStatementTest, CompoundsTheMonthlyRateToTheAnnualOne)
{
    CardStore store;
    auto& statement = store.insertStatement(nullptr, std::nullopt);
    statement.setValueForKey(0.01, "monthlyPercentageRate");
    EXPECT_EQ(statement.annualPercentageRate(), 0.12682503013196977);
    EXPECT_NEAR(statement.monthlyPercentageRate(), 0.01, 1e-15);
    statement.setAnnualPercentageRate(1.0);
    EXPECT_NEAR(statement.monthlyPercentageRate(), 0.0594630943592953, 1e-15);
    statement.setMonthlyPercentageRate(1e300);
    EXPECT_EQ(statement.annualPercentageRate(), std::nullopt);
    EXPECT_EQ(statement.valueForKey("monthlyPercentageRate"), PropertyValue());
}

TEST(CVStatementTest, TellsObserversOfWhatDerivesFromAValue)
{
    CardStore store;
    auto& statement = store.insertStatement(nullptr, std::nullopt);
    std::string told;
    std::vector<KeyValueObservation> observations;
    for (const std::string_view key : {"monthlyPercentageRate", "formattedBalance",
                                       "formattedLimit", "formattedBalanceAndLimit"}) {
        observations.push_back(statement.observe(
            key, [&told, key](const ObservedChange&) { told.append(key).append(" "); }));
    }
    statement.setAnnualPercentageRate(0.5);
    EXPECT_EQ(std::exchange(told, {}), "monthlyPercentageRate ");
    statement.setBalance(decimal("1"));
    EXPECT_EQ(std::exchange(told, {}), "formattedBalance formattedBalanceAndLimit ");
    statement.setLimit(decimal("1"));
    EXPECT_EQ(std::exchange(told, {}), "formattedLimit formattedBalanceAndLimit ");
    statement.setPayment(decimal("1"));
    EXPECT_EQ(told, "");
}

TEST(CVStatementTest, TakesRatePaymentAndDateFromAnotherStatement)
{
    CardStore store;
    auto& statement = store.insertStatement(nullptr, utc(2013, 1, 15), {"1", "2", "3", 0.1});
    statement.updateAttributesWithStatement(
        store.insertStatement(nullptr, utc(2013, 2, 15), {"10", "20", "30", 0.2}));
    EXPECT_EQ(amounts(statement), "1 2 30");
    EXPECT_EQ(statement.annualPercentageRate(), 0.2);
    EXPECT_EQ(statement.date(), utc(2013, 2, 15));
}

TEST(CVStatementTest, CorrectsItsAmountsWhenSavedAndUndoTakesTheCorrectionBack)
{
    struct Row
    {
        const char *name, *before, *key, *value, *after;
    };
    const auto rows = std::to_array<Row>({
        {"a balance raises the limit", "500 1000 50", "balance", "1500", "1500 1500 50"},
        {"a limit stays above the balance", "1000 2000 50", "limit", "800", "1000 1000 50"},
        {"no payment means all of it", "250 1000 50", "payment", "0", "250 1000 250"},
        {"in credit, nothing paid", "-5 1000 50", "payment", "0.00", "-5 1000 0.00"},
        {"all rules at once", "5 10 0", "balance", "20.50", "20.50 20.50 20.50"},
        {"equal as doubles", "5 9007199254740992 1", "balance", "9007199254740993",
         "9007199254740993 9007199254740992 1"},
        {"it was above its limit before", "2000 1000 50", "payment", "60", "2000 2000 60"},
        {"a tiny payment is one", "5 10 1", "payment", "1e-9", "5 10 0.000000001"},
    });
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const auto before = QByteArray(row.before).split(' ');
        CardStore store;
        auto& statement =
            store.insertStatement(nullptr, utc(2013, 1, 15), {before[0], before[1], before[2]});
        store.save();
        EXPECT_EQ(amounts(statement), row.before) << "a new statement is saved as it is";
        statement.setValueForKey(decimal(row.value), row.key);
        store.save();
        EXPECT_EQ(amounts(statement), row.after);
        const auto inFile = [&store] {
            NSManagedObjectContext fresh(store.context().persistentStoreCoordinator());
            const auto* const saved = fresh.executeFetchRequest({"Statement"}).at(0);
            return amounts(static_cast<const CVStatement&>(*saved));
        };
        store.context().undoManager().undo();
        store.save();
        EXPECT_EQ(inFile(), row.before);
        store.context().undoManager().redo();
        store.save();
        EXPECT_EQ(inFile(), row.after);
    }
}

TEST(CardNetworksTest, AreKnownByTheirExactTitles)
{
    EXPECT_EQ(CVAdditions::defaultCardImagePathForKind(u"Visa"_qs), u"visa.png"_qs);
    EXPECT_EQ(CVAdditions::defaultCardImagePathForKind(u"visa"_qs), std::nullopt);
}
