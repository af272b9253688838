// A program that is killed in the middle of its work leaves a whole file, with every save in it
// that was confirmed and no half one.

#include "model/CVCard.h"
#include "model/CVManagedObjectModel.h"
#include "model/CVStatement.h"
#include "store/NSManagedObjectContext.h"
#include "store/NSPersistentStoreCoordinator.h"
#include "tests/reliability/StoreContent.h"
#include "tests/support/Utc.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <ctime>
#include <memory>
#include <poll.h>
#include <random>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace {

/// How many of the latest saves keep a card of their own.
constexpr int keptCards = 6;
constexpr unsigned statementsPerCard = 3;

struct OpenStore
{
    explicit OpenStore(const QString& path)
        : coordinator(model)
    {
        coordinator.addPersistentStore(path);
        context = std::make_unique<NSManagedObjectContext>(coordinator);
    }

    /// Null when there is none.
    CVCard* card(const QString& name)
    {
        const auto cards = context->executeFetchRequest({"Card"});
        const auto found = std::ranges::find_if(cards, [&name](const auto* record) {
            return static_cast<const CVCard*>(record)->name() == name;
        });
        return found == cards.end() ? nullptr : static_cast<CVCard*>(*found);
    }
    CVCard& insertCard(const QString& name)
    {
        auto& card = static_cast<CVCard&>(context->insertNewObjectForEntityForName("Card"));
        card.setName(name);
        return card;
    }
    /// How many saves the store has seen: the ledger counts them.
    int saves()
    {
        const auto* const ledger = card(QStringLiteral("ledger"));
        return ledger ? ledger->account().value_or(QString()).toInt() : 0;
    }

    NSManagedObjectModel model = CVManagedObjectModel::mergedModel().value();
    NSPersistentStoreCoordinator coordinator;
    std::unique_ptr<NSManagedObjectContext> context;
};

/// The save with this number: counts itself, adds a card with statements, changes those of the card
/// before and deletes the oldest card, all or nothing.
void save(OpenStore& store, int number)
{
    auto* const ledger = store.card(QStringLiteral("ledger"));
    (ledger ? *ledger : store.insertCard(QStringLiteral("ledger")))
        .setAccount(QString::number(number));
    auto& card = store.insertCard(QString::number(number));
    for (unsigned month = 1; month <= statementsPerCard; ++month) {
        auto& statement =
            static_cast<CVStatement&>(store.context->insertNewObjectForEntityForName("Statement"));
        statement.setDate(utc(2013, month, 1));
        statement.setLimit(NSDecimalNumber(number));
        statement.setCard(&card);
    }
    if (const auto* const previous = store.card(QString::number(number - 1))) {
        for (auto* const statement : previous->statements()) {
            statement->setPayment(NSDecimalNumber(number));
        }
    }
    if (auto* const oldest = store.card(QString::number(number - keptCards))) {
        store.context->deleteObject(*oldest);
    }
    store.context->save();
}

/// What a store says after this many saves.
std::string contentAfter(int saves)
{
    std::vector<std::string> lines;
    if (saves > 0) {
        lines.push_back("ledger|" + std::to_string(saves) + "||");
    }
    for (int number = std::max(1, saves - keptCards + 1); number <= saves; ++number) {
        const auto name = std::to_string(number);
        const auto payment = std::to_string(number < saves ? number + 1 : 0);
        lines.push_back(name + "|||");
        for (unsigned month = 1; month <= statementsPerCard; ++month) {
            const auto date = static_cast<long>(utc(2013, month, 1).secondsSince1970());
            lines.push_back(name + '|' + std::to_string(date) + "|0|" + name + '|' + payment +
                            "|0|");
        }
    }
    std::ranges::sort(lines);
    std::string content;
    for (const auto& line : lines) {
        content += line + '\n';
    }
    return content;
}

/// A process that saves and saves, and confirms each save that returned.
class Writer
{
public:
    explicit Writer(const QString& path)
    {
        std::array<int, 2> ends = {};
        if (::pipe(ends.data()) != 0) {
            throw std::runtime_error("no pipe");
        }
        m_process = ::fork();
        if (m_process == 0) {
            ::close(ends[0]);
            saveUntilKilled(path, ends[1]);
        }
        ::close(ends[1]);
        m_confirmations = ends[0];
    }
    ~Writer()
    {
        if (m_process > 0) {
            kill();
        }
        ::close(m_confirmations);
    }
    Q_DISABLE_COPY_MOVE(Writer)

    /// The next save that is confirmed; 0 when no more will be.
    int nextConfirmation() const
    {
        int number = 0;
        return ::read(m_confirmations, &number, sizeof number) == sizeof number ? number : 0;
    }
    /// Lets it go on for so long, or until it ends.
    static void run(std::chrono::nanoseconds time)
    {
        const timespec duration = {.tv_sec = 0, .tv_nsec = static_cast<long>(time.count())};
        ::ppoll(nullptr, 0, &duration, nullptr);
    }
    /// Whether it was still at work.
    bool kill()
    {
        ::kill(m_process, SIGKILL);
        int status = 0;
        ::waitpid(std::exchange(m_process, 0), &status, 0);
        return WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
    }

private:
    [[noreturn]] static void saveUntilKilled(const QString& path, int confirmations)
    {
        try {
            OpenStore store(path);
            for (int number = store.saves() + 1;; ++number) {
                save(store, number);
                if (::write(confirmations, &number, sizeof number) != sizeof number) {
                    break;
                }
            }
        } catch (const std::exception& exception) {
            std::fprintf(stderr, "the writer failed: %s\n", exception.what());
        }
        ::_exit(EXIT_FAILURE);
    }

    pid_t m_process = 0;
    int m_confirmations = -1;
};

} // namespace

TEST(CrashTest, leavesEveryConfirmedSaveAndNoHalfOne)
{
    bool isNumber = false;
    const int wanted = qEnvironmentVariableIntValue("CORVANE_ROUNDS", &isNumber);
    const int rounds = isNumber ? wanted : 200;
    const auto seed = std::random_device()();
    std::mt19937 random(seed);
    SCOPED_TRACE(testing::Message() << "seed " << seed);

    const QTemporaryDir folder;
    const auto path = folder.filePath(QStringLiteral("storedata.sqlite"));
    const auto journal = folder.filePath(QStringLiteral("storedata.sqlite-journal"));
    int confirmed = 0;
    int leftJournals = 0;
    for (int round = 0; round < rounds; ++round) {
        constexpr int roundsPerStore = 4;
        const bool isNew = round % roundsPerStore == 0;
        if (isNew) {
            QFile::remove(path);
            confirmed = 0;
        }
        Writer writer(path);
        for (auto saves = isNew ? 0 : random() % 4; saves > 0; --saves) {
            confirmed = std::max(confirmed, writer.nextConfirmation());
        }
        // Somewhere in the next save, or in the making of the store.
        Writer::run(std::chrono::microseconds(random() % (isNew ? 20'000 : 5'000)));
        ASSERT_TRUE(writer.kill());
        while (const int number = writer.nextConfirmation()) {
            confirmed = number;
        }

        leftJournals += QFileInfo::exists(journal) ? 1 : 0;
        OpenStore store(path);
        const int saves = store.saves();
        SCOPED_TRACE(testing::Message() << "round " << round << ", confirmed " << confirmed);
        ASSERT_GE(saves, confirmed);
        ASSERT_LE(saves, confirmed + 1);
        ASSERT_EQ(StoreContent::ofContext(*store.context), contentAfter(saves));
        ASSERT_EQ(StoreContent::ofFile(path), contentAfter(saves));
        confirmed = saves;
    }
    std::printf("killed %d times, %d of them in the middle of a save\n", rounds, leftJournals);
    EXPECT_GT(leftJournals, rounds / 20) << "too few to prove anything";
}
