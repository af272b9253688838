#include "foundation/Calendar.h"
#include "model/CVCard.h"
#include "model/CVManagedObjectContext.h"
#include "model/CVManagedObjectModel.h"
#include "model/CVStatement.h"
#include "model/Calculations.h"
#include "model/DebtForecast.h"
#include "store/NSManagedObjectContext.h"
#include "store/NSPersistentStoreCoordinator.h"

#include "bench/Benchmarks.h"
#include "bench/Budget.h"
#include "bench/GeneratedStore.h"
#include "bench/SideBySide.h"

#include <QFile>
#include <QTemporaryDir>
#include <SQLiteCpp/SQLiteCpp.h>
#include <benchmark/benchmark.h>

#include <string>

namespace {

/// A store as the program has it open.
class OpenStore
{
public:
    explicit OpenStore(const QString& path) { coordinator.addPersistentStore(path); }

    NSManagedObjectModel model = CVManagedObjectModel::mergedModel().value();
    NSPersistentStoreCoordinator coordinator{model};
    NSManagedObjectContext context{coordinator};
};

/// Reads all rows of a prepared query.
void readAll(SQLite::Statement& query)
{
    while (query.executeStep()) {
        benchmark::DoNotOptimize(query.getColumn(0).getDouble());
    }
    query.reset();
}

/// The overall debt-free text, beside SQLite alone finding each card's last statement.
void formattedTotals(benchmark::State& state, const StoreGenerator::Size& size)
{
    OpenStore store(GeneratedStore::path(size));
    SQLite::Database database(GeneratedStore::path(size).toStdString(), SQLite::OPEN_READONLY);
    SQLite::Statement cards(database, "SELECT id FROM Card");
    SQLite::Statement last(database,
                           "SELECT date, balance, \"limit\", payment, annualPercentageRate"
                           " FROM Statement WHERE card = ? ORDER BY date DESC LIMIT 1");
    SideBySide::run(
        state,
        [&] { benchmark::DoNotOptimize(DebtForecast::formattedDebtFreeDate(store.context)); },
        [&] {
            const SQLite::Transaction transaction(database);
            while (cards.executeStep()) {
                last.bind(1, cards.getColumn(0).getInt64());
                readAll(last);
            }
            cards.reset();
        });
}

/// Opening a store and fetching its cards, beside SQLite alone doing so.
void openStore(benchmark::State& state, const StoreGenerator::Size& size)
{
    const auto path = GeneratedStore::path(size);
    SideBySide::run(
        state,
        [&] {
            OpenStore store(path);
            benchmark::DoNotOptimize(CVManagedObjectContext::allCardsWithStatements(store.context));
        },
        [&] {
            SQLite::Database database(path.toStdString(), SQLite::OPEN_READONLY);
            SQLite::Statement cards(database, "SELECT * FROM Card");
            readAll(cards);
        });
}

/// What a check of the whole file would add to opening it, beside the quick one.
void integrityCheck(benchmark::State& state, const StoreGenerator::Size& size)
{
    SQLite::Database database(GeneratedStore::path(size).toStdString(), SQLite::OPEN_READONLY);
    const auto check = [&](const char* pragma) {
        SQLite::Statement statement(database, pragma);
        readAll(statement);
    };
    SideBySide::run(
        state, [&] { check("PRAGMA integrity_check"); }, [&] { check("PRAGMA quick_check"); });
    state.counters["bytes"] = static_cast<double>(QFile(GeneratedStore::path(size)).size());
}

/// Reading every statement of every card into records, beside SQLite alone reading them.
void readStatements(benchmark::State& state, const StoreGenerator::Size& size)
{
    SQLite::Database database(GeneratedStore::path(size).toStdString(), SQLite::OPEN_READONLY);
    SQLite::Statement statements(database, "SELECT * FROM Statement ORDER BY card, date");
    SideBySide::run(
        state,
        [&] {
            OpenStore store(GeneratedStore::path(size));
            const auto cards = CVManagedObjectContext::allCardsWithStatements(store.context);
            for (const auto* const card : cards.value()) {
                benchmark::DoNotOptimize(card->sortedStatements());
            }
        },
        [&] { readAll(statements); });
}

/// The bytes of memory that the process has resident.
double residentBytes()
{
    QFile file(QStringLiteral("/proc/self/status"));
    if (file.open(QIODevice::ReadOnly)) {
        for (const auto& line : file.readAll().split('\n')) {
            if (line.startsWith("VmRSS:")) {
                return line.simplified().split(' ').value(1).toDouble() * 1024.0;
            }
        }
    }
    return 0.0;
}

/// The memory that a statement takes once it is read.
void memoryOfStatements(benchmark::State& state)
{
    while (state.KeepRunning()) {
        OpenStore store(GeneratedStore::path(StoreGenerator::stress));
        const auto cards = CVManagedObjectContext::allCardsWithStatements(store.context).value();
        const double before = residentBytes();
        for (const auto* const card : cards) {
            benchmark::DoNotOptimize(card->sortedStatements());
        }
        const double grown = residentBytes() - before;
        state.counters["bytes"] = grown;
        state.counters["bytes_per_statement"] = grown / StoreGenerator::stress.statements();
    }
}

/// Saving a new statement, beside SQLite alone inserting such a row just as durably.
void saveStatement(benchmark::State& state, const StoreGenerator::Size& size)
{
    const QTemporaryDir folder;
    const auto copyOfStore = [&](const QString& name) {
        auto path = folder.filePath(name);
        QFile::copy(GeneratedStore::path(size), path);
        return path;
    };
    OpenStore store(copyOfStore(QStringLiteral("ours")));
    auto& card = *CVManagedObjectContext::allCardsWithStatements(store.context).value().front();
    SQLite::Database database(copyOfStore(QStringLiteral("bare")).toStdString(),
                              SQLite::OPEN_READWRITE);
    database.exec("PRAGMA synchronous = EXTRA");
    SQLite::Statement insertion(
        database, "INSERT INTO Statement (card, date, balance, \"limit\", payment,"
                  " annualPercentageRate) VALUES (1, 1750000000, '250.00', '5000', '50', 0.199)");
    SideBySide::run(
        state,
        [&] {
            auto& statement = static_cast<CVStatement&>(
                store.context.insertNewObjectForEntityForName("Statement"));
            statement.setDate(Instant(1'750'000'000));
            statement.setBalance(NSDecimalNumber(250));
            statement.setLimit(NSDecimalNumber(5000));
            statement.setPayment(NSDecimalNumber(50));
            statement.setAnnualPercentageRate(0.199);
            statement.setCard(&card);
            store.context.save();
        },
        [&] {
            insertion.exec();
            insertion.reset();
        });
}

/// Stepping an axis from month to month over fifty years, beside adding months to a date.
void axisSteps(benchmark::State& state)
{
    constexpr int steps = 600;
    const Instant start(0.0);
    SideBySide::run(
        state,
        [&] {
            Calendar::MonthStarts months(Calendar::current(), start);
            for (int step = 0; step < steps; ++step) {
                benchmark::DoNotOptimize(months.next());
            }
        },
        [&] {
            for (int step = 0; step < steps; ++step) {
                benchmark::DoNotOptimize(Calculations::monthsSince(start, step));
            }
        });
    state.counters["per_step"] = benchmark::Counter(
        steps, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

} // namespace

void Benchmarks::registerModel()
{
    benchmark::RegisterBenchmark("memoryOfStatements", memoryOfStatements)
        ->Iterations(1)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("axisSteps", axisSteps)->UseManualTime();
    for (const auto& size :
         {StoreGenerator::everyday, StoreGenerator::lifetime, StoreGenerator::stress}) {
        const auto add = [&size](const std::string& name, auto* function) {
            benchmark::RegisterBenchmark((name + '/' + size.name).c_str(), function, size)
                ->UseManualTime()
                ->Unit(benchmark::kMicrosecond);
        };
        add("formattedTotals", formattedTotals);
        add("openStore", openStore);
        add("integrityCheck", integrityCheck);
        add("saveStatement", saveStatement);
        add("readStatements", readStatements);
    }
    BudgetReporter::setBudget("formattedTotals/lifetime", {.milliseconds = 1.0});
    BudgetReporter::setBudget("formattedTotals/stress", {.milliseconds = 10.0});
}
