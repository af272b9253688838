#include "model/DebtForecast.h"

#include "foundation/RegionalSettings.h"
#include "tests/support/CardStore.h"
#include "tests/support/Utc.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <random>

namespace {

using DebtForecast::numberOfPaymentsToClear;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

/// The count by following an account month by month, in wider arithmetic.
std::int64_t simulatedCount(double balance, double annualRate, long double payment)
{
    std::int64_t count = 1;
    for (long double owed = balance; owed > payment; ++count) {
        owed += owed * annualRate / 12.0L - payment;
    }
    return count;
}

/// How many whole months until an annuity is paid out: the repayment formula that lenders are held
/// to, with the monthly rate in place of thirty daily ones.
std::int64_t countByFormula(double balance, double annualRate, long double payment)
{
    const long double rate = annualRate / 12.0L;
    return std::llround(
        std::ceil(-std::log(1.0L - balance / payment * rate) / std::log(1.0L + rate)));
}

} // namespace

TEST(DebtForecastTest, CountsPaymentsUntilTheBalanceIsCleared)
{
    struct Row
    {
        const char* name;
        double balance, annualRate, payment;
        std::int64_t count;
    };
    const auto rows = std::to_array<Row>({
        {"no payment", 1000, 0.12, 0, 0},
        {"nothing owed", 0, 0.12, 300, 0},
        {"in credit", -5, 0.12, 300, 0},
        {"unknown balance", notANumber, 0.12, 300, 0},
        {"unknown payment", 1000, 0.12, notANumber, 1},
        {"all at once", 300, 0.12, 300, 1},
        {"more than all", 300, 0.12, 1e300, 1},
        {"without interest", 1000, 0, 300, 4},
        {"with interest", 1000, 0.12, 300, 4},
        {"the last one bears no interest", 595.05, 0.12, 301, 2},
        {"just below the interest", 1200, 0.12, std::nextafter(12.0, 0.0), CVNeverClears},
        {"the interest", 1200, 0.12, 12, CVNeverClears},
        {"just above the interest", 1200, 0.12, 12 + 1e-9, 2333},
        {"a lost fraction of a cent", 1e18, 0, 1, CVNeverClears},
        {"a falling rate", 1000, -0.12, 300, 4},
        {"the rate takes it all", 1000, -12, 1, 1},
        {"a payment the wrong way", 1000, 0, -1, CVNeverClears},
        {"falling to what it never passes", 1000, -6, -100, CVNeverClears},
        {"swinging about what it never passes", 1000, -18, -600, CVNeverClears},
        {"a million steps", 1e6, 0, 1, 1'000'000},
        {"past a million", 1e6, 0, 0.5, 2'000'000},
        {"past a million, with interest", 1e6, 1e-6, 0.9, 1'165'966},
        {"the most that counts", 2147483647, 0, 1, 2147483647},
        {"one more", 2147483648.0, 0, 1, CVNeverClears},
        {"the smallest payment", 1e128, 0, 1e-128, CVNeverClears},
        {"endless debt", infinity, 0.1, 1, CVNeverClears},
        {"endless interest", 1000, infinity, 10, CVNeverClears},
        {"unknown interest", 1000, notANumber, 10, 1},
    });
    for (const auto& row : rows) {
        EXPECT_EQ(numberOfPaymentsToClear(row.balance, row.annualRate, row.payment), row.count)
            << row.name;
    }
}

TEST(DebtForecastTest, AnswersWhateverTheNumbersAre)
{
    const auto numbers = {0.0,      1e-320,     1e-17,  0.5,  12.0,  1e9,   1e17,   1e308,
                          infinity, notANumber, -1e-17, -0.5, -12.0, -18.0, -1e308, -infinity};
    for (const double balance : numbers) {
        for (const double rate : numbers) {
            for (const double payment : numbers) {
                const auto count = numberOfPaymentsToClear(balance, rate, payment);
                ASSERT_GE(count, CVNeverClears) << balance << ' ' << rate << ' ' << payment;
                ASSERT_LE(count, 2147483647) << balance << ' ' << rate << ' ' << payment;
            }
        }
    }
}

TEST(DebtForecastTest, AgreesWithOtherWaysToCount)
{
    const auto seed = std::random_device{}();
    std::mt19937 random(seed);
    const auto below = [&random](double most) {
        return std::uniform_real_distribution(0.01, most)(random);
    };
    for (int i = 0; i < 10'000; ++i) {
        const double balance = below(20'000);
        const double rate = below(0.6);
        const double interest = balance * rate / 12.0;
        const double payment = interest * 1.001 + below(500);
        SCOPED_TRACE(testing::Message()
                     << "seed " << seed << ": " << balance << " at " << rate << " by " << payment);
        const auto count = numberOfPaymentsToClear(balance, rate, payment);
        // Where a payment meets a balance to the last digit, rounding decides: a payment that is a
        // little larger or smaller bounds the count. It is the exact one nearly always.
        constexpr long double little = 1e-9L;
        ASSERT_GE(count, simulatedCount(balance, rate, payment * (1 + little)));
        ASSERT_LE(count, simulatedCount(balance, rate, payment * (1 - little)));
        // The formula charges interest on the last balance too, which can take one payment more.
        ASSERT_LE(count, countByFormula(balance, rate, payment * (1 - little)));
        ASSERT_GE(count, countByFormula(balance, rate, payment * (1 + little)) - 1);
        ASSERT_EQ(numberOfPaymentsToClear(balance, rate, interest * 0.999), CVNeverClears);
    }
}

TEST(DebtForecastTest, SaysWhenACardIsClearedAndWhenTheLastOfThemIs)
{
    const ScopedRegionalSettings regional({"en_GB", "en_GB", "Europe/London"});
    CardStore store;
    store.insertCard(u"Without statements"_qs);
    // Each card joins those before it.
    const auto expectWith = [&](std::optional<Instant> date, const StatementFigures& figures,
                                const char* forecast, const char* overall) {
        auto& card = store.insertCard(u"Card"_qs);
        store.insertStatement(&card, date, figures);
        EXPECT_EQ(card.formattedForecast().toStdString(), forecast);
        EXPECT_EQ(DebtForecast::formattedDebtFreeDate(store.context()).toStdString(), overall);
    };
    const StatementFigures payable{"9", "9", "9"};
    expectWith(std::nullopt, payable, "", "");
    expectWith(utc(2013, 1, 31), payable, "1 m ⟶ 28/02/2013", "Debt-free 28/02/2013");
    expectWith(utc(2013, 3, 15), {"1000", "0", "300", 0.12}, "4 m ⟶ 15/07/2013",
               "Debt-free 15/07/2013");
    expectWith(utc(2013, 6, 15), payable, "1 m ⟶ 15/07/2013", "Debt-free 15/07/2013");
    expectWith(utc(2013, 4, 15), payable, "1 m ⟶ 15/05/2013", "Debt-free 15/07/2013");
    expectWith(utc(2013, 8, 1), {"0", "9", "9"}, "", "Debt-free 01/08/2013");
    expectWith(utc(2013, 3, 15), {"20000000", "0", "1"}, "never", "Debt-free never");
    expectWith(utc(2013, 3, 15), {"1000", "0", "10", 0.12}, "never", "Debt-free never");
}
