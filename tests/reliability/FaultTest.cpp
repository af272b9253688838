// Whatever single operation on the store file fails, nothing is lost and the person is told.

#include "app/Corvane_AppDelegate.h"
#include "foundation/Log.h"
#include "mainwindow/MainWindowController.h"
#include "model/CVCard.h"
#include "model/CVStatement.h"
#include "store/NSArrayController.h"
#include "store/NSError.h"
#include "store/NSManagedObjectContext.h"
#include "store/ReadTransaction.h"
#include "tests/reliability/FaultInjection.h"
#include "tests/reliability/StoreContent.h"
#include "tests/support/CardStore.h"
#include "tests/support/Person.h"
#include "tests/support/Utc.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>

using FaultInjection::Fault;

namespace {

void fill(CardStore& store)
{
    for (const auto& name : {QStringLiteral("Aurora"), QStringLiteral("Borealis")}) {
        auto& card = store.insertCard(name);
        for (unsigned month = 1; month <= 6; ++month) {
            store.insertStatement(&card, utc(2013, month, 14), {"412.07", "5000", "150", 0.189});
        }
    }
    store.save();
}

/// The program with its window, on a store of its own, and what it says.
class Program
{
public:
    /// Begins with a copy of the store file at `original`; with none where that is absent.
    explicit Program(const std::optional<QString>& original)
    {
        QDir().mkdir(m_delegate.applicationSupportDirectory());
        if (original) {
            QFile::copy(*original, path());
        }
    }

    QString path() const { return m_folder.filePath(QStringLiteral("Corvane/storedata.sqlite")); }
    Corvane_AppDelegate& delegate() { return m_delegate; }
    MainWindowController& controller() { return *m_delegate.mainWindowController(); }
    NSManagedObjectContext& context() { return *m_delegate.managedObjectContext(); }
    Person& person() { return m_person; }

    /// Runs the action as the window does: in an event, and everything that follows from it.
    void perform(const std::function<void()>& action)
    {
        QMetaObject::invokeMethod(&m_delegate, action, Qt::QueuedConnection);
        QApplication::processEvents();
    }
    /// What was said since the last call, in alerts and in the log.
    std::string said()
    {
        auto words = m_log.lines().mid(m_linesHeard);
        m_linesHeard = m_log.lines().size();
        for (const auto& error : std::exchange(m_person.errors, {})) {
            words.append(error.description());
        }
        for (const auto& alert : std::exchange(m_person.alerts, {})) {
            words.append(alert.message);
        }
        return words.join(u'\n').toStdString();
    }
    /// What would be found if the program were killed now.
    std::string contentAfterCrash() const
    {
        const QTemporaryDir folder;
        const auto directory = QFileInfo(path()).dir();
        for (const auto& name : directory.entryList(QDir::Files)) {
            QFile::copy(directory.filePath(name), folder.filePath(name));
        }
        return StoreContent::ofFile(folder.filePath(QStringLiteral("storedata.sqlite")));
    }
    /// With nothing failing any more, saves, and looks whether the file says what the context does.
    void expectToSave()
    {
        said();
        perform([this] { m_delegate.saveAction(); });
        EXPECT_EQ(said(), "");
        EXPECT_FALSE(context().hasChanges());
        EXPECT_EQ(StoreContent::ofFile(path()), StoreContent::ofContext(context()));
    }

private:
    QTemporaryDir m_folder;
    Log::Collector m_log;
    qsizetype m_linesHeard = 0;
    Person m_person;
    Corvane_AppDelegate m_delegate{m_person, UserDefaults::volatileDefaults(),
                                   m_folder.filePath(QStringLiteral("Corvane"))};
};

/// Something of everything: a new card with its statements, changes, and the deletion of the card
/// that the last call made.
void change(NSManagedObjectContext& context, int number)
{
    for (auto* const record : context.executeFetchRequest({"Card"})) {
        auto& card = static_cast<CVCard&>(*record);
        if (card.name() == QString::number(number - 1)) {
            context.deleteObject(card);
        } else if (card.name() == QStringLiteral("Aurora")) {
            card.setAccount(QString::number(number));
            card.lastStatement()->setBalance(NSDecimalNumber(number));
        }
    }
    auto& card = static_cast<CVCard&>(context.insertNewObjectForEntityForName("Card"));
    card.setName(QString::number(number));
    for (unsigned month = 1; month <= 2; ++month) {
        auto& statement =
            static_cast<CVStatement&>(context.insertNewObjectForEntityForName("Statement"));
        statement.setDate(utc(2012, month, 3));
        statement.setBalance(NSDecimalNumber(number));
        statement.setCard(&card);
    }
    context.processPendingChanges();
}

struct Stage
{
    const char* name;
    /// Brings the program, that has made a change, to where the stage begins.
    void (*prepare)(Program&);
    void (*perform)(Program&);
};

void nothing(Program& /*program*/) {}

void save(Program& program)
{
    program.delegate().saveAction();
}

const Stage stages[] = {
    {"save", nothing, save},
    {"undo", save,
     [](Program& program) {
         program.controller().undo();
     }},
    {"redo",
     [](Program& program) {
         save(program);
         program.controller().undo();
     },
     [](Program& program) {
         program.controller().redo();
     }},
    {"quit", nothing,
     [](Program& program) {
         program.delegate().applicationShouldTerminate();
     }},
    {"endOfSession", nothing,
     [](Program& program) {
         program.delegate().sessionWillEnd();
     }},
};

constexpr Fault faults[] = {Fault::InputOutput, Fault::InputOutputBelated, Fault::DiskFull,
                            Fault::OutOfMemory};
const char* const faultNames[] = {"inputOutput", "inputOutputBelated", "diskFull", "outOfMemory"};

class FaultTest : public testing::Test
{
protected:
    /// From one operation that fails to the next. Memory is asked for so often that each of these
    /// takes its turn on request only.
    static int step(Fault fault)
    {
        return fault == Fault::OutOfMemory && !qEnvironmentVariableIsSet("CORVANE_EVERY_FAULT") ? 29
                                                                                                : 1;
    }

    static void SetUpTestSuite()
    {
        static const bool isInstalled = [] {
            FaultInjection::install();
            return true;
        }();
        EXPECT_TRUE(isInstalled);
        original = std::make_unique<CardStore>();
        fill(*original);
    }
    static void TearDownTestSuite() { original.reset(); }

    static inline std::unique_ptr<CardStore> original;
};

class FaultAtWork : public FaultTest,
                    public testing::WithParamInterface<std::tuple<std::size_t, std::size_t>>
{};

class FaultAtStart : public FaultTest,
                     public testing::WithParamInterface<std::tuple<bool, std::size_t>>
{};

} // namespace

TEST_F(FaultTest, inAReadLeavesNeitherHalfARecordNorATransaction)
{
    const auto expected = StoreContent::ofFile(original->path());
    for (const auto fault : {Fault::InputOutput, Fault::OutOfMemory}) {
        std::string failed = "begin";
        for (int operation = 1; !failed.empty(); ++operation) {
            original->reopen();
            auto& context = original->context();
            FaultInjection::arm(fault, operation);
            try {
                const auto reading = context.readTransaction();
                for (const auto* const record : context.executeFetchRequest({"Statement"})) {
                    static_cast<const CVStatement*>(record)->card()->name();
                }
            } catch (const NSError&) {
            }
            failed = FaultInjection::disarm();
            SCOPED_TRACE(testing::Message() << failed << ", operation " << operation);
            ASSERT_NO_THROW(context.readTransaction());
            ASSERT_EQ(StoreContent::ofContext(context), expected);
        }
    }
}

TEST_P(FaultAtStart, isToldAndTheNextAttemptSucceeds)
{
    const bool isNew = std::get<0>(GetParam());
    const auto fault = faults[std::get<1>(GetParam())];
    const auto path = isNew ? std::nullopt : std::optional(original->path());
    const auto expected = isNew ? std::string() : StoreContent::ofFile(*path);
    int operation = 1;
    for (std::string failed = "begin"; !failed.empty(); operation += step(fault)) {
        Program program(path);
        FaultInjection::arm(fault, operation);
        program.delegate().applicationDidFinishLaunching();
        QApplication::processEvents();
        failed = FaultInjection::disarm();
        SCOPED_TRACE(testing::Message() << failed << ", operation " << operation);

        const auto& errors = program.person().errors;
        if (!program.controller().context()) {
            ASSERT_EQ(errors.size(), 2);
            EXPECT_EQ(errors[1].code(), 9999);
        } else {
            EXPECT_TRUE(errors.empty());
        }
        SCOPED_TRACE(program.said());
        ASSERT_TRUE(program.delegate().managedObjectContext()) << program.said();
        EXPECT_EQ(StoreContent::ofContext(program.context()), expected);
        EXPECT_EQ(program.said(), "");
        change(program.context(), 1);
        program.expectToSave();
        EXPECT_EQ(program.controller().cardsController().rowCount(), isNew ? 1 : 3);
        if (HasFailure()) {
            return;
        }
    }
    const bool canOnlyBefallWriting =
        fault == Fault::InputOutputBelated || fault == Fault::DiskFull;
    const bool hasFailed = operation > 1 + step(fault);
    EXPECT_EQ(hasFailed, isNew || !canOnlyBefallWriting) << "a start writes nothing";
}

INSTANTIATE_TEST_SUITE_P(Store, FaultAtStart,
                         testing::Combine(testing::Bool(), testing::Range<std::size_t>(0, 4)),
                         [](const auto& row) {
                             return std::string(std::get<0>(row.param) ? "new_" : "old_") +
                                    faultNames[std::get<1>(row.param)];
                         });

TEST_P(FaultAtWork, isToldAndLosesNothing)
{
    const auto& stage = stages[std::get<0>(GetParam())];
    const auto fault = faults[std::get<1>(GetParam())];
    Program program(original->path());
    program.delegate().applicationDidFinishLaunching();
    QApplication::processEvents();
    auto& context = program.context();
    int operation = 1;
    int number = 0;
    for (std::string failed = "begin"; !failed.empty(); operation += step(fault)) {
        program.perform([&] { change(context, ++number); });
        program.perform([&] { stage.prepare(program); });
        const auto before = StoreContent::ofContext(context);
        const auto fileBefore = StoreContent::ofFile(program.path());
        ASSERT_EQ(program.said(), "");

        FaultInjection::arm(fault, operation);
        program.perform([&] { stage.perform(program); });
        failed = FaultInjection::disarm();
        SCOPED_TRACE(testing::Message() << failed << ", operation " << operation);

        const auto said = program.said();
        SCOPED_TRACE(said);
        if (context.hasChanges()) {
            EXPECT_FALSE(said.empty());
            EXPECT_EQ(program.contentAfterCrash(), fileBefore);
        } else {
            EXPECT_EQ(program.contentAfterCrash(), StoreContent::ofContext(context));
        }
        const bool isSave = before != fileBefore;
        if (isSave) {
            EXPECT_EQ(StoreContent::ofContext(context), before);
        } else if (StoreContent::ofContext(context) == before) {
            // Nothing was taken back, then, and it still can be.
            EXPECT_FALSE(said.empty());
            program.perform([&] { stage.perform(program); });
            EXPECT_NE(StoreContent::ofContext(context), before);
        }
        program.expectToSave();
        if (HasFailure()) {
            return;
        }
    }
    EXPECT_GT(operation, 1 + step(fault)) << "nothing failed";
}

INSTANTIATE_TEST_SUITE_P(Store, FaultAtWork,
                         testing::Combine(testing::Range<std::size_t>(0, std::size(stages)),
                                          testing::Range<std::size_t>(0, 4)),
                         [](const auto& row) {
                             return std::string(stages[std::get<0>(row.param)].name) + '_' +
                                    faultNames[std::get<1>(row.param)];
                         });
