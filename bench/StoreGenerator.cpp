#include "bench/StoreGenerator.h"

#include "model/CVManagedObjectModel.h"
#include "store/NSManagedObjectModel.h"
#include "store/NSPersistentStoreCoordinator.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <random>
#include <string>
#include <vector>

namespace {

constexpr std::chrono::year_month lastMonth{std::chrono::year(2025), std::chrono::June};

/// A currency, with how its amounts compare to pounds and how many decimals they have.
struct Money
{
    const char* code;
    double perPound;
    int decimals;
};

// Those that are listed often are used often.
constexpr auto currencies = std::to_array<Money>({
    {"GBP", 1.0, 2},
    {"GBP", 1.0, 2},
    {"GBP", 1.0, 2},
    {"EUR", 1.2, 2},
    {"EUR", 1.2, 2},
    {"USD", 1.25, 2},
    {"USD", 1.25, 2},
    {"JPY", 190.0, 0},
    {"CHF", 1.1, 2},
    {"KWD", 0.4, 3},
});

constexpr auto banks = std::to_array<const char*>({"Harbour", "Meadow", "Northlight", "Old Mill",
                                                   "Riverside", "Saltmarsh", "Tern", "Wheatfield"});
constexpr auto kinds =
    std::to_array<const char*>({"Everyday", "Travel", "Rewards", "Gold", "Balance Transfer"});

/// The spending on one card, month by month.
class Account
{
public:
    explicit Account(int number)
        : m_random(static_cast<unsigned>(number))
        , m_money(currencies[below(currencies.size())])
        , m_name(std::string(banks[below(banks.size())]) + ' ' + kinds[below(kinds.size())])
        , m_number("•••• " + std::to_string(1000 + (number * 7919) % 9000))
        , m_day(1 + static_cast<unsigned>(below(28)))
        , m_limit(std::ceil(between(1.0, 24.0)) * 500.0)
        , m_usage(between(0.0, 1.0))
        , m_rate(std::round(between(0.0, 0.35) * 1000.0) / 1000.0)
    {}

    const std::string& name() const { return m_name; }
    const std::string& number() const { return m_number; }
    const char* currency() const { return m_money.code; }

    /// Lives on for a month.
    void advance()
    {
        // Usage wanders; now and then the bank raises the limit or changes the rate.
        m_usage = std::clamp(m_usage + between(-0.08, 0.08), 0.0, 1.0);
        if (below(40) == 0) {
            m_limit += 500.0;
        }
        if (below(60) == 0) {
            m_rate = std::max(0.0, m_rate + between(-0.01, 0.01));
        }
    }

    void bindStatement(SQLite::Statement& insertion, std::chrono::year_month month)
    {
        const auto midnight = std::chrono::sys_days(month / std::chrono::day(m_day));
        const std::chrono::sys_seconds nineOClock = midnight + std::chrono::hours(9);
        const double balance = m_limit * m_usage;
        const double interest = balance * m_rate / 12.0;
        insertion.bind(2, static_cast<double>(nineOClock.time_since_epoch().count()));
        insertion.bind(3, amount(balance));
        insertion.bind(4, amount(m_limit));
        insertion.bind(5, amount(interest + std::max(25.0, balance * 0.03)));
        insertion.bind(6, m_rate);
    }

private:
    std::size_t below(std::size_t count)
    {
        return std::uniform_int_distribution<std::size_t>(0, count - 1)(m_random);
    }

    double between(double low, double high)
    {
        return std::uniform_real_distribution(low, high)(m_random);
    }

    /// An amount given in pounds, in plain notation and the account's own currency.
    std::string amount(double pounds) const
    {
        const auto units =
            std::llround(pounds * m_money.perPound * std::pow(10.0, m_money.decimals));
        auto text = std::to_string(units);
        if (m_money.decimals > 0) {
            const auto decimals = static_cast<std::size_t>(m_money.decimals);
            text.insert(0, text.size() > decimals ? 0 : decimals + 1 - text.size(), '0');
            text.insert(text.size() - decimals, ".");
        }
        return text;
    }

    std::mt19937 m_random;
    Money m_money;
    std::string m_name;
    std::string m_number;
    unsigned m_day;
    double m_limit;
    double m_usage;
    double m_rate;
};

void fill(SQLite::Database& database, const StoreGenerator::Size& size)
{
    SQLite::Transaction transaction(database);
    SQLite::Statement card(database,
                           "INSERT INTO Card (id, name, account, ccy) VALUES (?, ?, ?, ?)");
    std::vector<Account> accounts;
    for (int number = 1; number <= size.cards; ++number) {
        const auto& account = accounts.emplace_back(number);
        card.bind(1, number);
        card.bind(2, account.name());
        card.bind(3, account.number());
        card.bind(4, account.currency());
        card.exec();
        card.reset();
    }
    SQLite::Statement statement(database,
                                "INSERT INTO Statement"
                                " (card, date, balance, \"limit\", payment, annualPercentageRate)"
                                " VALUES (?, ?, ?, ?, ?, ?)");
    // In the order of time, as a person enters them: a card's statements lie scattered.
    for (int monthsAgo = size.months - 1; monthsAgo >= 0; --monthsAgo) {
        for (std::size_t i = 0; i < accounts.size(); ++i) {
            accounts[i].advance();
            statement.bind(1, static_cast<std::int64_t>(i + 1));
            accounts[i].bindStatement(statement, lastMonth - std::chrono::months(monthsAgo));
            statement.exec();
            statement.reset();
        }
    }
    transaction.commit();
}

} // namespace

std::optional<StoreGenerator::Size> StoreGenerator::sizeNamed(const QString& name)
{
    for (const auto& size : {everyday, lifetime, stress}) {
        if (name == QLatin1String(size.name)) {
            return size;
        }
    }
    return std::nullopt;
}

void StoreGenerator::generate(const Size& size, const QString& path)
{
    const auto model = CVManagedObjectModel::mergedModel().value();
    // Makes the tables, as it does for a person's first start.
    NSPersistentStoreCoordinator(model).addPersistentStore(path);
    SQLite::Database database(path.toStdString(), SQLite::OPEN_READWRITE);
    database.exec("PRAGMA synchronous = OFF");
    database.exec("PRAGMA cache_size = -262144");
    fill(database, size);
}
