#include "foundation/Log.h"
#include "foundation/RegionalSettings.h"
#include "tests/support/CardStore.h"
#include "tests/support/Utc.h"

#include <QRegularExpression>
#include <gtest/gtest.h>

#include <map>
#include <stdexcept>

TEST(CVCardTest, HasOneOrderOfStatementsWhetherTheyAreReadOrNot)
{
    CardStore store;
    auto* card = &store.insertCard(u"Everyday"_qs);
    store.insertStatement(card, utc(2013, 3, 15), {"3", "30", "0", 0.3});
    store.insertStatement(card, utc(2013, 1, 15));
    store.insertStatement(card, std::nullopt);
    store.insertStatement(card, utc(2013, 3, 15), {"2", "20", "0", 0.2});
    store.save();
    store.reopen();
    card = &store.cardAt(0);
    for (const char* const state : {"unread", "read", "changed"}) {
        const auto* const last = card->lastStatement();
        const auto sorted = card->sortedStatements();
        ASSERT_EQ(sorted.size(), 4U);
        EXPECT_EQ(last, sorted[3]) << state;
        EXPECT_EQ(card->lastStatementDate(), utc(2013, 3, 15));
        EXPECT_EQ(card->limit(), last->limit());
        EXPECT_EQ(card->lastStatementAPR(), last->annualPercentageRate());
        EXPECT_EQ(sorted[1]->date(), utc(2013, 1, 15));
        EXPECT_EQ(card->firstStatementDate(), std::nullopt);
        EXPECT_EQ(card->timeIntervalBetweenFirstAndLastStatements(), 0.0);
        sorted[1]->setPayment(NSDecimalNumber(1));
    }
    store.context().deleteObject(card->firstStatement());
    EXPECT_EQ(card->timeIntervalBetweenFirstAndLastStatements(), 59 * 86400.0);
}

TEST(CVCardTest, IsCalledByItsNameIfItHasOne)
{
    CardStore store;
    auto& card = store.insertCard(u"Everyday"_qs);
    int changes = 0;
    const auto observation =
        card.observe("displayName", [&changes](const ObservedChange&) { ++changes; });
    EXPECT_EQ(card.displayName(), u"Everyday"_qs);
    for (const auto& name :
         {std::optional(u""_qs), std::optional(u" "_qs), std::optional<QString>()}) {
        card.setName(name);
        EXPECT_EQ(card.valueForKey("displayName"), PropertyValue(u"Unnamed card"_qs));
        EXPECT_EQ(card.name(), name);
    }
    EXPECT_EQ(changes, 3);
}

TEST(CVCardTest, AnswersAbsentWithoutStatementsButThrowsForTheFirst)
{
    CardStore store;
    const auto& card = store.insertCard(u"New"_qs);
    EXPECT_THROW(card.firstStatement(), std::out_of_range);
    EXPECT_THROW(card.firstStatementDate(), std::out_of_range);
    EXPECT_THROW(card.timeIntervalBetweenFirstAndLastStatements(), std::out_of_range);
    EXPECT_FALSE(card.lastStatementDate() || card.limit() || card.lastStatementAPR());
    EXPECT_FALSE(card.formattedBalanceAndLimit() || card.formattedAPR());
    EXPECT_EQ(card.numberOfPaymentsToClear(), 0);
    EXPECT_EQ(card.formattedForecast(), QString());
}

TEST(CVCardTest, FindsTheStatementOfAMonthAsThePersonCountsThem)
{
    const ScopedRegionalSettings regional({"en_GB", "en_GB", "Europe/Berlin"});
    CardStore store;
    auto& card = store.insertCard(u"Everyday"_qs);
    store.insertStatement(&card, utc(2013, 3, 20));
    const auto& march = store.insertStatement(&card, utc(2013, 2, 28, 23));
    store.insertStatement(&card, utc(2012, 3, 31));
    store.insertStatement(&card, std::nullopt);
    EXPECT_EQ(card.statementForDate(utc(2013, 3, 31, 21, 59, 59)), &march);
    EXPECT_EQ(card.statementForDate(utc(2013, 3, 31, 22)), nullptr);
    EXPECT_EQ(card.statementForDate(utc(2013, 2, 28, 22, 59, 59)), nullptr);
    EXPECT_EQ(card.statementForDate(Instant(1e300)), nullptr);
}

TEST(CVCardTest, StepsToNeighboursAndLogsAStatementOfAnotherCard)
{
    CardStore store;
    auto& card = store.insertCard(u"Everyday"_qs);
    const auto& later = store.insertStatement(&card, utc(2013, 3, 15));
    const auto& earlier = store.insertStatement(&card, utc(2013, 1, 15));
    const auto& stranger = store.insertStatement(nullptr, utc(2013, 2, 15));
    const Log::Collector log;
    EXPECT_EQ(card.nextStatement(earlier), &later);
    EXPECT_EQ(card.nextStatement(later), nullptr);
    EXPECT_EQ(card.previousStatement(later), &earlier);
    EXPECT_EQ(card.previousStatement(earlier), nullptr);
    EXPECT_TRUE(log.lines().isEmpty());
    EXPECT_EQ(card.nextStatement(stranger), nullptr);
    EXPECT_EQ(card.previousStatement(stranger), nullptr);
    const QRegularExpression expected(
        u"^[^,]*CVCard\\.cpp\\(\\d+\\) -\\[CVCard\\(Utilities\\) nextStatement:\\]: Statement not "
        u"found,"
        "[^,]*CVCard\\.cpp\\(\\d+\\) -\\[CVCard\\(Utilities\\) previousStatement:\\]: Statement not found$"_qs);
    EXPECT_TRUE(expected.match(log.lines().join(u',')).hasMatch());
}

TEST(CVCardTest, TellsObserversWhenStatementsComeAndGoButNotWhenOneIsEdited)
{
    CardStore store;
    auto& card = store.insertCard(u"Everyday"_qs);
    std::map<std::string_view, int> told;
    std::vector<KeyValueObservation> observations;
    for (const std::string_view key :
         {"firstStatement", "lastStatement", "sortedStatements",
          "timeIntervalBetweenFirstAndLastStatements", "formattedBalanceAndLimit",
          "numberOfPaymentsToClear", "formattedForecast", "formattedAPR", "firstStatementDate",
          "limit", "lastStatementDate", "lastStatementAPR", "lastStatement.balance"}) {
        observations.push_back(
            card.observe(key, [&told, key](const ObservedChange&) { ++told[key]; }));
    }
    auto& statement = store.insertStatement(&card, utc(2013, 2, 15));
    EXPECT_EQ(told.size(), observations.size());
    told.clear();
    // The path runs through the statement that is the last one now.
    statement.setBalance(NSDecimalNumber(5));
    EXPECT_EQ(told, (std::map<std::string_view, int>{{"lastStatement.balance", 1}}));
    store.context().deleteObject(statement);
    EXPECT_EQ(told.size(), observations.size());
}
