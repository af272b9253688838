#include "model/CVManagedObjectContext.h"

#include "foundation/Log.h"
#include "foundation/RegionalSettings.h"
#include "model/DebtForecast.h"
#include "tests/support/CardStore.h"
#include "tests/support/Utc.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <gtest/gtest.h>

#include <limits>
#include <utility>

using namespace CVManagedObjectContext;

namespace {

class CVManagedObjectContextTest : public testing::Test
{
protected:
    double scaleForWidth(double width)
    {
        return timeIntervalPerPointInCellFrame(context, {100, 200, width, 90});
    }

    CardStore store;
    NSManagedObjectContext& context = store.context();
};

} // namespace

TEST_F(CVManagedObjectContextTest, SpansTheMonthsOfWhatIsSaved)
{
    const ScopedRegionalSettings regional({"en_GB", "en_GB", "Europe/Berlin"});
    auto& statement = store.insertStatement(nullptr, utc(2013, 1, 15));
    EXPECT_EQ(firstStatementDate(context), std::nullopt);
    EXPECT_EQ(lastStatementDate(context), std::nullopt);
    EXPECT_EQ(timeIntervalBetweenFirstAndLastStatements(context), 0.0);
    EXPECT_EQ(timeIntervalBetweenFirstAndLastStatementMonths(context), 0.0);
    EXPECT_EQ(scaleForWidth(16), 43200.0);

    store.save();
    EXPECT_EQ(timeIntervalBetweenFirstAndLastStatementMonths(context), 2'678'399.0);
    EXPECT_EQ(scaleForWidth(416), 2'678'399.0 / 400.0);
    EXPECT_EQ(scaleForWidth(16), std::numeric_limits<double>::infinity());
    EXPECT_EQ(scaleForWidth(10), 2'678'399.0 / -6.0);

    store.insertStatement(nullptr, utc(2013, 3, 31, 21, 30));
    store.save();
    context.deleteObject(statement);
    EXPECT_EQ(firstStatementDate(context), utc(2013, 1, 15));
    EXPECT_EQ(lastStatementDate(context), utc(2013, 3, 31, 21, 30));
    EXPECT_EQ(timeIntervalBetweenFirstAndLastStatements(context), 75 * 86400 + 77400.0);
    EXPECT_EQ(timeIntervalBetweenFirstAndLastStatementMonths(context), 90 * 86400 - 3601.0)
        << "the clocks went forward";
}

TEST_F(CVManagedObjectContextTest, ReachesToWhatWasConfirmedWhileItCannotBeSaved)
{
    auto& moved = store.insertStatement(nullptr, utc(2013, 5, 1));
    auto& deleted = store.insertStatement(nullptr, utc(2013, 6, 1));
    store.save();
    const auto dates = [this] {
        return std::pair(firstStatementDate(context), lastStatementDate(context));
    };
    SQLite::Database vandal(store.path().toStdString(), SQLite::OPEN_READWRITE);
    vandal.exec("CREATE TRIGGER refuse BEFORE INSERT ON Statement"
                " BEGIN SELECT RAISE(ABORT, 'refused'); END");
    auto& added = store.insertStatement(nullptr, utc(2013, 9, 1));
    store.insertStatement(nullptr, std::nullopt);
    moved.setDate(utc(2013, 2, 1));
    EXPECT_EQ(dates(), std::pair(std::optional(utc(2013, 5, 1)), std::optional(utc(2013, 6, 1))));
    const Log::Collector log;
    EXPECT_FALSE(saveAndLogError(context));
    EXPECT_EQ(dates(), std::pair(std::optional(utc(2013, 2, 1)), std::optional(utc(2013, 9, 1))));

    context.deleteObject(added);
    context.deleteObject(deleted);
    EXPECT_EQ(lastStatementDate(context), utc(2013, 6, 1)) << "the file still has it";
    vandal.exec("DROP TRIGGER refuse");
    store.save();
    EXPECT_EQ(dates(), std::pair(std::optional(utc(2013, 2, 1)), std::optional(utc(2013, 2, 1))));
}

TEST_F(CVManagedObjectContextTest, CountsAndTotalsIncludeWhatIsUnsaved)
{
    EXPECT_EQ(allCardsWithStatements(context), std::vector<CVCard*>());
    EXPECT_EQ(totalDebtAndCredit(context), (std::array{0.0, 0.0}));
    auto& first = store.insertCard(u"First"_qs);
    store.insertStatement(&first, utc(2013, 2, 15), {"10.5", "1000"});
    store.insertStatement(&first, utc(2013, 1, 15), {"1", "2"});
    store.save();
    auto& second = store.insertCard(u"Second"_qs);
    auto& empty = store.insertCard(u"Empty"_qs);
    store.insertStatement(&second, utc(2013, 1, 15), {"-0.25", "20"});
    EXPECT_EQ(cardCount(context), 3U);
    EXPECT_EQ(statementCount(context), 3U);
    EXPECT_EQ(allCardsWithStatements(context), (std::vector{&first, &second, &empty}));
    EXPECT_EQ(totalDebtAndCredit(context), (std::array{10.25, 1020.0}));
    context.deleteObject(first);
    EXPECT_EQ(cardCount(context), 2U);
    EXPECT_EQ(statementCount(context), 1U);
    EXPECT_TRUE(hasStatements(context)) << "one is new";
    EXPECT_EQ(totalDebtAndCredit(context), (std::array{-0.25, 20.0}));
    context.deleteObject(second);
    EXPECT_FALSE(hasStatements(context)) << "what the file still has is deleted";
}

TEST_F(CVManagedObjectContextTest, LogsFailuresAndAnswersNeutrally)
{
    store.insertStatement(&store.insertCard(u"Card"_qs), utc(2013, 1, 15), {"1", "2"});
    store.save();
    store.reopen();
    auto& reopened = store.context();
    SQLite::Database vandal(store.path().toStdString(), SQLite::OPEN_READWRITE);
    const Log::Collector log;
    vandal.exec("DROP TABLE Statement");
    EXPECT_EQ(totalDebtAndCredit(reopened), (std::array{0.0, 0.0}));
    EXPECT_EQ(DebtForecast::formattedDebtFreeDate(reopened), QString());
    vandal.exec("DROP TABLE Card");
    EXPECT_EQ(firstStatementDate(reopened), std::nullopt);
    EXPECT_EQ(cardCount(reopened), 0U);
    EXPECT_EQ(statementCount(reopened), 0U);
    EXPECT_EQ(allCardsWithStatements(reopened), std::nullopt);
    store.insertCard(u"Unsaved"_qs);
    EXPECT_FALSE(saveAndLogError(reopened));
    EXPECT_TRUE(reopened.hasChanges());
    const QString reason =
        u"The data file “storedata.sqlite” could not be read or written. SQLite reports: "
        u"SQL logic error. (NSSQLiteErrorDomain, 1)"_qs;
    EXPECT_EQ(log.lines(), QStringList({
                               u"Unable to fetch cards with statements: " + reason,
                               u"Unable to fetch cards with statements: " + reason,
                               u"Unable to fetch attribute: " + reason,
                               u"Unable to count cards: " + reason,
                               u"Unable to count statements: " + reason,
                               u"Unable to fetch cards with statements: " + reason,
                               u"Unable to save MOC"_qs,
                               u"Error: " + reason,
                           }));
}
