#include "app/Corvane_AppDelegate.h"

#include "app/AboutBox.h"
#include "app/AssertionFailure.h"
#include "app/DialogPresenter.h"
#include "app/LogPresenter.h"
#include "app/StoreLock.h"
#include "app/SupportDirectory.h"
#include "foundation/Log.h"
#include "mainwindow/MainWindowController.h"
#include "model/CVCard.h"
#include "store/NSArrayController.h"
#include "store/NSError.h"
#include "store/NSManagedObjectContext.h"
#include "store/NSPersistentStoreCoordinator.h"
#include "tests/support/Person.h"
#include "tests/support/ScopedVariable.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>
#include <SQLiteCpp/SQLiteCpp.h>
#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>

namespace {

class FolderBrowser : public QObject
{
    Q_OBJECT

public:
    QUrl opened;

public Q_SLOTS:
    void open(const QUrl& url) { opened = url; }
};

/// Does something about each dialog that is shown, in turn.
class AlertReader : public QObject
{
public:
    using Act = std::function<void(QMessageBox&)>;

    explicit AlertReader(std::vector<Act> acts)
        : m_acts(std::move(acts))
    {
        qApp->installEventFilter(this);
    }
    static Act press(Qt::Key key)
    {
        return [key](QMessageBox& box) {
            QTest::keyClick(&box, key);
        };
    }

protected:
    bool eventFilter(QObject* object, QEvent* event) override
    {
        auto* const box = qobject_cast<QMessageBox*>(object);
        if (box && event->type() == QEvent::Show) {
            QMetaObject::invokeMethod(
                box, [box, act = m_acts.at(m_shown++)] { act(*box); }, Qt::QueuedConnection);
        }
        return false;
    }

private:
    std::vector<Act> m_acts;
    std::size_t m_shown = 0;
};

class Corvane_AppDelegateTest : public testing::Test
{
protected:
    QString directory() const { return home.filePath(QStringLiteral("Corvane")); }
    QString storePath() const { return directory() + QStringLiteral("/storedata.sqlite"); }

    CVCard& insertCard()
    {
        auto& card = static_cast<CVCard&>(
            delegate.managedObjectContext()->insertNewObjectForEntityForName("Card"));
        card.setName(QStringLiteral("Aurora"));
        return card;
    }
    /// Lets every save fail from now on.
    void breakStore() const
    {
        SQLite::Database(storePath().toStdString(), SQLite::OPEN_READWRITE)
            .exec("CREATE TRIGGER refuse BEFORE INSERT ON Card BEGIN"
                  " SELECT RAISE(ABORT, 'refused'); END");
    }
    void mendStore() const
    {
        SQLite::Database(storePath().toStdString(), SQLite::OPEN_READWRITE)
            .exec("DROP TRIGGER refuse");
    }

    QTemporaryDir home;
    Person person;
    Corvane_AppDelegate delegate{person, UserDefaults::volatileDefaults(), directory()};
};

} // namespace

TEST_F(Corvane_AppDelegateTest, makesItsDirectoryAndAnEmptyStoreForThePersonAlone)
{
    ASSERT_TRUE(delegate.managedObjectContext());
    EXPECT_EQ(delegate.managedObjectContext(), delegate.managedObjectContext());
    EXPECT_EQ(QFileInfo(directory()).permissions() & 0x77, QFileDevice::Permissions());
    EXPECT_EQ(QFileInfo(storePath()).permissions() & 0x77, QFileDevice::Permissions());
    EXPECT_EQ(NSPersistentStoreCoordinator::MR_defaultStoreCoordinator(),
              delegate.persistentStoreCoordinator());
    EXPECT_TRUE(person.errors.empty());
}

TEST_F(Corvane_AppDelegateTest, makesNoParentsOfItsDirectory)
{
    const Log::Collector log;
    Corvane_AppDelegate homeless(person, UserDefaults::volatileDefaults(),
                                 home.filePath(QStringLiteral("missing/Corvane")));
    try {
        homeless.managedObjectContext();
        FAIL() << "a context without a directory";
    } catch (const AssertionFailure& failure) {
        EXPECT_TRUE(QString::fromUtf8(failure.what())
                        .startsWith(QStringLiteral("Failed to create App Support directory ")));
    }
    ASSERT_EQ(log.lines().size(), 1);
    EXPECT_TRUE(log.lines()[0].startsWith(
        QStringLiteral("Error creating application support directory at ")));
}

TEST_F(Corvane_AppDelegateTest, showsTwoErrorsInARowForAStoreThatFailsToOpenAndTriesAgainLater)
{
    QFile blocker(directory());
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    delegate.applicationDidFinishLaunching();
    ASSERT_EQ(person.errors.size(), 2);
    EXPECT_NE(person.errors[0].domain(), QStringLiteral("CORVANE_ERROR_DOMAIN"));
    EXPECT_EQ(person.errors[1].domain(), QStringLiteral("CORVANE_ERROR_DOMAIN"));
    EXPECT_EQ(person.errors[1].code(), 9999);
    EXPECT_EQ(person.errors[1].localizedDescription(),
              QStringLiteral("Failed to initialize the store"));
    EXPECT_EQ(person.errors[1].localizedFailureReason(),
              QStringLiteral("There was an error building up the data file."));
    auto* const controller = delegate.mainWindowController();
    EXPECT_TRUE(controller->window().isVisible());
    EXPECT_FALSE(controller->context());
    EXPECT_EQ(controller->formattedTotals(), QString());
    controller->undo();
    EXPECT_EQ(delegate.applicationShouldTerminate(), Corvane_AppDelegate::TerminateReply::Now);

    blocker.remove();
    delegate.saveAction();
    EXPECT_EQ(person.errors.size(), 2);
    EXPECT_EQ(controller->context(), delegate.managedObjectContext());
    EXPECT_TRUE(controller->context());
}

TEST_F(Corvane_AppDelegateTest, quitsWithoutAWordWhenThereIsNothingToLose)
{
    EXPECT_EQ(delegate.applicationShouldTerminate(), Corvane_AppDelegate::TerminateReply::Now);
    insertCard();
    EXPECT_EQ(delegate.applicationShouldTerminate(), Corvane_AppDelegate::TerminateReply::Now);
    EXPECT_FALSE(delegate.managedObjectContext()->hasChanges());
    EXPECT_FALSE(NSPersistentStoreCoordinator::MR_defaultStoreCoordinator());
    EXPECT_TRUE(person.errors.empty());
    EXPECT_TRUE(person.alerts.empty());
}

TEST_F(Corvane_AppDelegateTest, quitsAfterEitherButtonWhenSavingFails)
{
    insertCard();
    breakStore();
    for (const int button : {AlertPresenter::firstButton, AlertPresenter::firstButton + 1}) {
        person.button = button;
        EXPECT_EQ(delegate.applicationShouldTerminate(), Corvane_AppDelegate::TerminateReply::Now);
    }
    ASSERT_EQ(person.alerts.size(), 2);
    EXPECT_EQ(person.errors.size(), 2);
    EXPECT_EQ(person.alerts[0].message,
              QStringLiteral("Could not save changes while quitting. Quit anyway?"));
    EXPECT_EQ(person.alerts[0].informativeText,
              QStringLiteral("Quitting now will lose any changes you have made since the last "
                             "successful save"));
    EXPECT_EQ(person.alerts[0].buttonTitles,
              QStringList({QStringLiteral("Quit anyway"), QStringLiteral("Cancel")}));
}

TEST_F(Corvane_AppDelegateTest, staysWhenThePersonLeavesTheWarningAndQuitsWhenTryingAgainSaves)
{
    insertCard();
    breakStore();
    person.button = 0;
    EXPECT_EQ(delegate.applicationShouldTerminate(), Corvane_AppDelegate::TerminateReply::Cancel);
    EXPECT_TRUE(delegate.managedObjectContext()->hasChanges());

    person.recover = [this](const AlertPresenter::Recovery& recovery) {
        EXPECT_EQ(recovery.title, QStringLiteral("Try Again"));
        EXPECT_THROW(recovery.attempt(), NSError);
        mendStore();
        recovery.attempt();
        return true;
    };
    EXPECT_EQ(delegate.applicationShouldTerminate(), Corvane_AppDelegate::TerminateReply::Now);
    EXPECT_FALSE(delegate.managedObjectContext()->hasChanges());
    EXPECT_EQ(person.alerts.size(), 1);
    EXPECT_FALSE(NSPersistentStoreCoordinator::MR_defaultStoreCoordinator());
}

TEST_F(Corvane_AppDelegateTest, theSessionMayEndWhileTheErrorOrTheWarningIsInFront)
{
    insertCard();
    breakStore();
    for (const bool isWarning : {false, true}) {
        DialogPresenter dialogs;
        Corvane_AppDelegate asking(dialogs, UserDefaults::volatileDefaults(), directory());
        asking.managedObjectContext()->insertNewObjectForEntityForName("Card");
        const AlertReader::Act endSession = [&asking](QMessageBox&) {
            asking.sessionWillEnd();
            QCoreApplication::exit(0);
        };
        const AlertReader reader(isWarning
                                     ? std::vector{AlertReader::press(Qt::Key_Escape), endSession}
                                     : std::vector{endSession});
        std::optional<Corvane_AppDelegate::TerminateReply> reply;
        const Log::Collector log;
        QMetaObject::invokeMethod(
            &asking, [&] { reply = asking.applicationShouldTerminate(); }, Qt::QueuedConnection);
        QCoreApplication::exec();
        EXPECT_EQ(reply, Corvane_AppDelegate::TerminateReply::Cancel);
        EXPECT_EQ(log.lines().size(), 1) << "the failed save, and no further dialog";
        EXPECT_FALSE(QApplication::activeModalWidget());
    }
}

TEST(DialogPresenter, answersNothingWhenItIsLeftWithoutAButton)
{
    DialogPresenter dialogs;
    const auto answer = [&dialogs](const AlertReader::Act& act) {
        const AlertReader reader({act});
        return dialogs.runModalAlert({QStringLiteral("Quit?"),
                                      QString(),
                                      {QStringLiteral("Quit"), QStringLiteral("Cancel")}});
    };
    EXPECT_EQ(answer(AlertReader::press(Qt::Key_Escape)), 0);
    EXPECT_EQ(answer([](QMessageBox& box) { box.close(); }), 0);
    EXPECT_EQ(answer(AlertReader::press(Qt::Key_Return)), AlertPresenter::firstButton);
    EXPECT_EQ(answer([](QMessageBox& box) { box.buttons().last()->click(); }),
              AlertPresenter::firstButton + 1);
}

TEST(DialogPresenter, triesAgainUntilItSucceedsOrIsLeft)
{
    DialogPresenter dialogs;
    int attempts = 0;
    const auto present = [&](Qt::Key secondKey) {
        attempts = 0;
        const AlertReader reader(
            {AlertReader::press(Qt::Key_Return), AlertReader::press(secondKey)});
        const NSError error(QStringLiteral("test"), 1, ErrorText("Full"));
        return dialogs.presentError(error, {QStringLiteral("Try Again"), [&] {
                                                if (++attempts == 1) {
                                                    throw error;
                                                }
                                            }});
    };
    EXPECT_TRUE(present(Qt::Key_Return));
    EXPECT_EQ(attempts, 2);
    EXPECT_FALSE(present(Qt::Key_Escape));
    EXPECT_EQ(attempts, 1);
}

TEST_F(Corvane_AppDelegateTest, waitsForAnEditorThatCannotHandOverAndSavesAllTheSame)
{
    struct StubbornEditor : NSEditor
    {
        bool commitEditing() override { return false; }
    };
    StubbornEditor editor;
    insertCard();
    delegate.managedObjectContext()->objectDidBeginEditing(editor);
    const Log::Collector log;
    EXPECT_EQ(delegate.applicationShouldTerminate(), Corvane_AppDelegate::TerminateReply::Cancel);
    delegate.saveAction();
    EXPECT_FALSE(delegate.managedObjectContext()->hasChanges());
    EXPECT_EQ(log.lines(),
              QStringList(
                  {QStringLiteral("Corvane_AppDelegate: unable to commit editing to terminate"),
                   QStringLiteral("Corvane_AppDelegate: unable to commit editing before saving")}));
}

TEST_F(Corvane_AppDelegateTest, reportsAFailedSaveOnceAndOnStandardErrorWhenTheSessionEnds)
{
    insertCard();
    breakStore();
    delegate.saveAction();
    EXPECT_EQ(person.errors.size(), 1);
    const Log::Collector log;
    delegate.sessionWillEnd();
    EXPECT_EQ(log.lines().size(), 1);
    EXPECT_EQ(person.errors.size(), 1);
    EXPECT_TRUE(delegate.managedObjectContext()->hasChanges());
}

TEST_F(Corvane_AppDelegateTest, undoFromTheWindowIsSavedAndShown)
{
    delegate.applicationDidFinishLaunching();
    auto& controller = *delegate.mainWindowController();
    insertCard();
    auto& context = *delegate.managedObjectContext();
    context.processPendingChanges();
    EXPECT_TRUE(controller.window().isWindowModified());
    EXPECT_EQ(controller.cardsController().rowCount(), 1);
    context.save();
    EXPECT_FALSE(controller.window().isWindowModified());
    int announced = 0;
    const auto observation =
        controller.observe("formattedTotals", [&](const ObservedChange&) { ++announced; });
    controller.window().undo();
    EXPECT_EQ(announced, 1);
    EXPECT_EQ(controller.cardsController().rowCount(), 0);
    NSManagedObjectContext fresh(*delegate.persistentStoreCoordinator());
    EXPECT_EQ(fresh.countForFetchRequest({"Card"}), 0);
    controller.window().redo();
    EXPECT_EQ(fresh.countForFetchRequest({"Card"}), 1);
}

TEST_F(Corvane_AppDelegateTest, asksForAFirstCardOnlyWhereSomebodyIsThere)
{
    LogPresenter nobody;
    const auto asks = [](Corvane_AppDelegate& each) {
        each.applicationDidFinishLaunching();
        QCoreApplication::processEvents();
        return each.mainWindowController()->cardPopover() != nullptr;
    };
    EXPECT_TRUE(asks(delegate));
    Corvane_AppDelegate unattended(nobody, UserDefaults::volatileDefaults(), directory());
    EXPECT_FALSE(asks(unattended));
}

TEST_F(Corvane_AppDelegateTest, theAboutBoxOpensTheFolderOfTheStore)
{
    // Not the file browser of the person who runs the tests.
    const ScopedVariable bus("DBUS_SESSION_BUS_ADDRESS", "");
    const ScopedVariable runtime("XDG_RUNTIME_DIR", QFile::encodeName(home.path()).constData());
    FolderBrowser browser;
    QDesktopServices::setUrlHandler(QStringLiteral("file"), &browser, "open");
    delegate.applicationDidFinishLaunching();
    delegate.showAboutBox();
    delegate.showAboutBox();
    const auto boxes = delegate.mainWindowController()->window().findChildren<AboutBox*>();
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_FALSE(boxes[0]->isModal());
    EXPECT_EQ(boxes[0]->findChild<QLineEdit*>(QStringLiteral("storeField"))->text(), storePath());
    boxes[0]->findChild<QPushButton*>(QStringLiteral("openFolderButton"))->click();
    EXPECT_EQ(browser.opened, QUrl::fromLocalFile(directory()));
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
}

TEST(StoreLock, admitsOneInstanceAndForgetsItWhenItIsGone)
{
    const QTemporaryDir directory;
    {
        StoreLock first(directory.path());
        StoreLock second(directory.path());
        EXPECT_EQ(first.acquire(), StoreLock::State::Held);
        EXPECT_EQ(second.acquire(), StoreLock::State::HeldByAnother);
        EXPECT_EQ(first.storeName(), second.storeName());
        EXPECT_FALSE(first.storeName().isEmpty());
    }
    EXPECT_EQ(StoreLock(directory.path()).acquire(), StoreLock::State::Held);
}

TEST(StoreLock, refusesWhatIsNoFileOfItsOwn)
{
    const QTemporaryDir directory;
    const auto inside = [&directory](const char* name) {
        return QFile::encodeName(directory.filePath(QString::fromLatin1(name)));
    };
    const auto path = inside("storedata.lock");
    const auto refused = [&directory] {
        StoreLock lock(directory.path());
        return lock.acquire() == StoreLock::State::Unavailable && lock.storeName().isEmpty() &&
               !lock.errorText().localized().isEmpty();
    };
    ASSERT_EQ(::mkdir(path.constData(), 0700), 0);
    EXPECT_TRUE(refused());
    ::rmdir(path.constData());
    ASSERT_EQ(::mkfifo(path.constData(), 0600), 0);
    EXPECT_TRUE(refused());
    ::unlink(path.constData());
    ASSERT_EQ(::symlink(inside("elsewhere").constData(), path.constData()), 0);
    EXPECT_TRUE(refused());
    EXPECT_FALSE(QFileInfo::exists(directory.filePath(QStringLiteral("elsewhere"))));
    ::unlink(path.constData());
    ::rmdir(QFile::encodeName(directory.path()).constData());
    EXPECT_TRUE(refused());
}

TEST(SupportDirectory, followsTheDataHomeUnlessItIsRelative)
{
    const auto with = [](const char* dataHome, const char* home) {
        const ScopedVariable data("XDG_DATA_HOME", dataHome);
        const ScopedVariable person("HOME", home);
        return SupportDirectory::path();
    };
    EXPECT_EQ(with("/data", "/home/ada"), QStringLiteral("/data/Corvane"));
    EXPECT_EQ(with("", "/home/ada"), QStringLiteral("/home/ada/.local/share/Corvane"));
    EXPECT_EQ(with("relative", "/home/ada"), QStringLiteral("/home/ada/.local/share/Corvane"));
    EXPECT_EQ(with("", ""), QString(QDir::tempPath() + QStringLiteral("/Corvane")));
}

TEST(SupportDirectory, isThePersonsOwnAlsoInTheTemporaryDirectory)
{
    const QTemporaryDir directory;
    const ScopedVariable temporary("TMPDIR", QFile::encodeName(directory.path()).constData());
    const ScopedVariable data("XDG_DATA_HOME", "");
    const ScopedVariable home("HOME", "");
    Person person;
    const Corvane_AppDelegate delegate(person, UserDefaults::volatileDefaults());
    delegate.makeApplicationSupportDirectory();
    delegate.makeApplicationSupportDirectory();
    ASSERT_TRUE(QDir(directory.path()).rmdir(QStringLiteral("Corvane")));
    // A link may lead to where somebody else reads.
    ASSERT_TRUE(QFile::link(QStringLiteral("/"), directory.filePath(QStringLiteral("Corvane"))));
    const Log::Collector log;
    EXPECT_THROW(delegate.makeApplicationSupportDirectory(), AssertionFailure);
}

TEST(SupportDirectory, hasItsDataHomeMade)
{
    const QTemporaryDir directory;
    const ScopedVariable data(
        "XDG_DATA_HOME", QFile::encodeName(directory.filePath(QStringLiteral("a/b"))).constData());
    EXPECT_TRUE(SupportDirectory::makeDataHome());
    EXPECT_TRUE(SupportDirectory::makeDataHome());
}

#include "Corvane_AppDelegateTest.moc"
