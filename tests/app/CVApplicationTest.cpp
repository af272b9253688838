#include "app/CVApplication.h"

#include "app/CommandLine.h"
#include "mainwindow/MainWindowController.h"
#include "model/CVManagedObjectContext.h"
#include "store/NSManagedObjectContext.h"
#include "tests/support/CardStore.h"
#include "tests/support/WindowHost.h"

#include <QAction>
#include <QDialog>
#include <QIcon>
#include <QLineEdit>
#include <QMenu>
#include <QTest>
#include <gtest/gtest.h>

namespace {

class CVApplicationTest : public testing::Test
{
protected:
    CVApplicationTest()
    {
        controller.showWindow();
        application().connectActions(window());
        window().activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window()));
        store.insertCard(QStringLiteral("Aurora"));
        store.context().undoManager().setActionName(QStringLiteral("Add Card"));
        store.context().save();
    }

    static CVApplication& application() { return static_cast<CVApplication&>(*qApp); }
    CVMainWindow& window() { return controller.window(); }
    std::size_t cards() { return CVManagedObjectContext::cardCount(store.context()); }

    CardStore store;
    WindowHost host{store.context()};
    MainWindowController controller{host};
};

} // namespace

TEST_F(CVApplicationTest, undoAndRedoKeysAreTheFieldsWhileItHasTypingToTakeBackAndElseTheWindows)
{
    const auto undo = Qt::KeyboardModifiers(Qt::ControlModifier);
    const auto redo = undo | Qt::ShiftModifier;
    QLineEdit field(&window());
    field.show();
    field.setFocus();
    QTest::keyClicks(&field, QStringLiteral("12"));
    struct Step
    {
        Qt::KeyboardModifiers key;
        QString text;
        std::size_t cards;
    };
    for (const auto& step :
         {Step{undo, QString(), 1}, Step{undo, QString(), 0}, Step{redo, QStringLiteral("12"), 0},
          Step{redo, QStringLiteral("12"), 0}}) {
        QTest::keyClick(window().windowHandle(), Qt::Key_Z, step.key);
        EXPECT_EQ(field.text(), step.text);
        EXPECT_EQ(cards(), step.cards);
    }
    window().findChild<QAction*>(QStringLiteral("redo"))->trigger();
    EXPECT_EQ(cards(), 1) << "the menu's is always the window's";
    EXPECT_EQ(field.text(), QStringLiteral("12"));
    field.setReadOnly(true);
    QTest::keyClick(window().windowHandle(), Qt::Key_Z, undo);
    EXPECT_EQ(cards(), 0);
    QTest::keyClick(window().windowHandle(), Qt::Key_Z, redo);
    EXPECT_EQ(cards(), 1);
}

TEST_F(CVApplicationTest, aDialogKeepsItsOwnUndoKey)
{
    QDialog dialog(&window());
    QLineEdit field(&dialog);
    dialog.setModal(true);
    dialog.show();
    dialog.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    field.setFocus();
    QTest::keyClicks(&field, QStringLiteral("12"));
    QTest::keyClick(&field, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(field.text(), QString());
    EXPECT_EQ(cards(), 1);
}

TEST_F(CVApplicationTest, menuItemsSendTheirActionWhileItMakesSense)
{
    const auto item = [this](const char* name) {
        return window().findChild<QAction*>(QString::fromLatin1(name));
    };
    // Nobody carries out what nobody has a slot for, here saving: the delegate is missing.
    EXPECT_FALSE(item("saveAction")->isEnabled());
    EXPECT_TRUE(item("performClose")->isEnabled());
    EXPECT_TRUE(item("undo")->isEnabled());
    EXPECT_FALSE(item("redo")->isEnabled());
    item("undo")->trigger();
    EXPECT_EQ(cards(), 0);
    EXPECT_FALSE(item("undo")->isEnabled());
    EXPECT_TRUE(item("redo")->isEnabled());
    EXPECT_EQ(item("redo")->text(), QStringLiteral("&Redo Add Card"));
    item("zoom4")->trigger();
    EXPECT_EQ(controller.scale(), 4.0);
    EXPECT_TRUE(item("zoom4")->isChecked());
    EXPECT_FALSE(item("zoom1")->isChecked());

    EXPECT_EQ(application().targetForAction("undo", &store.context(), nullptr), &controller);
    QWidget another;
    another.show();
    another.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&another));
    EXPECT_EQ(application().targetForAction("addCard", nullptr, item("addCard")), &controller);
    EXPECT_EQ(application().targetForAction("addCard", nullptr, nullptr), nullptr);
    window().activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window()));
    EXPECT_EQ(application().targetForAction("quit", nullptr, nullptr), &application());
    EXPECT_FALSE(application().sendAction("dance", nullptr, nullptr));
}

TEST_F(CVApplicationTest, theEndOfTheSessionIsNoQuitOfThePerson)
{
    int ends = 0;
    QObject::connect(&application(), &CVApplication::sessionEnded, &window(), [&ends] { ++ends; });
    QEvent event(QEvent::Quit);
    QSpontaneKeyEvent::setSpontaneous(&event);
    application().notify(&application(), &event);
    EXPECT_EQ(ends, 1);
    EXPECT_TRUE(window().isVisible());

    host.answer = false;
    QMetaObject::invokeMethod(
        &window(),
        [this] {
            window().findChild<QAction*>(QStringLiteral("terminate"))->trigger();
            QCoreApplication::exit();
        },
        Qt::QueuedConnection);
    QCoreApplication::exec();
    EXPECT_EQ(ends, 1);
    EXPECT_EQ(host.asked, 1) << "a Quit of the person asks";
    EXPECT_TRUE(window().isVisible());
    host.answer = true;
}

TEST_F(CVApplicationTest, anExceptionInAnEventHandlerDoesNotEndTheProgram)
{
    struct Thrower : QObject
    {
        bool event(QEvent*) override { throw std::runtime_error("broken"); }
    };
    Thrower thrower;
    QEvent event(QEvent::User);
    EXPECT_FALSE(QCoreApplication::sendEvent(&thrower, &event));
}

TEST(CVApplication, windowsCarryTheIconInEverySize)
{
    for (const int size : {16, 24, 32, 48, 64, 128}) {
        EXPECT_EQ(QGuiApplication::windowIcon().pixmap(size).width(), size);
    }
}

TEST(CommandLine, takesWhatItKnowsAndRefusesTheRestInOneLine)
{
    const auto both = CommandLine::parse(
        {QStringLiteral("--demo"), QStringLiteral("--snapshot"), QStringLiteral("a.png")});
    ASSERT_TRUE(std::holds_alternative<CommandLine>(both));
    EXPECT_TRUE(std::get<CommandLine>(both).isDemo);
    EXPECT_EQ(std::get<CommandLine>(both).snapshotPath, QStringLiteral("a.png"));
    for (const auto& mistake : {QStringLiteral("--snapshot"), QStringLiteral("--dance"),
                                QStringLiteral("file"), QString()}) {
        const auto parsed = CommandLine::parse({mistake});
        ASSERT_TRUE(std::holds_alternative<CommandLine::Answer>(parsed));
        EXPECT_EQ(std::get<CommandLine::Answer>(parsed).exitStatus, 2);
        EXPECT_FALSE(std::get<CommandLine::Answer>(parsed).text.contains(u'\n'));
    }
    EXPECT_EQ(
        std::get<CommandLine::Answer>(CommandLine::parse({QStringLiteral("--help")})).exitStatus,
        0);
}
