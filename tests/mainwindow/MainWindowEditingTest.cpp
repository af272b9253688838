#include "editors/CVCardPopoverController.h"
#include "editors/CVStatementPopoverController.h"
#include "mainwindow/CVCardTableRowView.h"
#include "mainwindow/CVCardTableView.h"
#include "mainwindow/MainWindowController.h"
#include "model/CVManagedObjectContext.h"
#include "store/NSArrayController.h"
#include "tests/support/CardStore.h"
#include "tests/support/Utc.h"
#include "tests/support/WindowHost.h"
#include "timeline/CVTimelineTableView.h"
#include "widgets/NSPopover.h"

#include <QAbstractButton>
#include <QTest>
#include <gtest/gtest.h>

namespace {

class MainWindowEditingTest : public testing::Test
{
protected:
    void open()
    {
        store.save();
        store.context().undoManager().removeAllActions();
        controller.showWindow();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&controller.window()));
        settle();
    }
    static void settle()
    {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
    /// Two cards, one with three statements.
    void fill()
    {
        first = &store.insertCard(QStringLiteral("Aurora"));
        second = &store.insertCard(QStringLiteral("Borealis"));
        for (unsigned month = 1; month <= 3; ++month) {
            store.insertStatement(first, utc(2015, month, 3), {"100", "1000", "10", 0.2});
        }
    }

    CVCardPopoverController& cardEditor() { return controller.cardPopoverController(); }
    CVStatementPopoverController& statementEditor()
    {
        return controller.statementPopoverController();
    }
    NSUndoManager& undoManager() { return store.context().undoManager(); }
    /// What another program would read in the file.
    std::size_t statementsInFile()
    {
        NSManagedObjectContext fresh(store.coordinator());
        return fresh.countForFetchRequest({"Statement"});
    }
    template <typename Table>
    Table& table(const char* name)
    {
        return *controller.window().findChild<Table*>(QString::fromLatin1(name));
    }

    CardStore store;
    WindowHost host{store.context()};
    CVCard* first = nullptr;
    CVCard* second = nullptr;
    MainWindowController controller{host};
};

} // namespace

TEST_F(MainWindowEditingTest, anEmptyStoreGreetsWithTheCardEditorAndOneStepAddsTheCard)
{
    open();
    ASSERT_TRUE(controller.cardPopover());
    cardEditor().card()->setName(QStringLiteral("First"));
    cardEditor().addOrUpdateCard();
    EXPECT_FALSE(controller.cardPopover());
    ASSERT_TRUE(controller.selectedCard());
    EXPECT_EQ(controller.selectedCard()->name(), QStringLiteral("First"));
    EXPECT_EQ(undoManager().undoActionName(), QStringLiteral("Add Card"));
    EXPECT_TRUE(store.context().hasChanges()) << "cards wait for the next save";
    EXPECT_FALSE(controller.scratchContext().hasChanges());
    controller.undo();
    EXPECT_FALSE(controller.selectedCard());
    controller.addCard();
    cardEditor().cancel();
    EXPECT_FALSE(undoManager().canUndo());
    controller.redo();
    EXPECT_TRUE(controller.selectedCard());
}

TEST_F(MainWindowEditingTest, aStatementIsAddedFromItsRowAndSavedAtOnce)
{
    fill();
    open();
    EXPECT_FALSE(controller.cardPopover());
    auto& list = table<CVCardTableView>("cardsTableView");
    auto& button = list.rowView(1)->cellView().addStatementButton();
    controller.addStatement(&button);
    EXPECT_EQ(controller.cardForNewStatement(), second);
    EXPECT_FALSE(controller.statementPopover()) << "after the event";
    settle();
    ASSERT_TRUE(controller.statementPopover());
    statementEditor().setDate(utc(2015, 6, 1));
    statementEditor().statement()->setBalance(NSDecimalNumber::fromText("50"));
    EXPECT_EQ(statementsInFile(), 3) << "nothing is written before it is confirmed";
    statementEditor().addOrUpdateStatement();
    EXPECT_FALSE(controller.statementPopover());
    EXPECT_EQ(statementsInFile(), 4);
    EXPECT_EQ(controller.selectedStatement(), second->lastStatement());
    EXPECT_EQ(controller.selectedCard(), second);
    EXPECT_EQ(undoManager().undoActionName(), QStringLiteral("Add Statement"));
    controller.undo();
    EXPECT_EQ(statementsInFile(), 3);
    controller.delete_();
    EXPECT_EQ(statementsInFile(), 3) << "the selected statement is gone already";
    EXPECT_EQ(controller.cardsController().rowCount(), 2);
}

TEST_F(MainWindowEditingTest, theStatementEditorFollowsTheSelectionAndCommitsOnlyWhenConfirmed)
{
    fill();
    open();
    const auto statements = first->sortedStatements();
    controller.setSelectedStatement(statements[0]);
    controller.getSelectedCardInfo();
    ASSERT_TRUE(controller.statementPopover());
    statementEditor().statement()->setBalance(NSDecimalNumber::fromText("999"));
    controller.setSelectedStatement(statements[1]);
    EXPECT_EQ(statementEditor().originalStatement(), statements[1]);
    EXPECT_TRUE(controller.statementPopover()) << "it moved, and did not close";
    statementEditor().statement()->setBalance(NSDecimalNumber::fromText("70"));
    table<CVTimelineTableView>("timelineTableView").cancelOperation();
    EXPECT_FALSE(controller.statementPopover());
    EXPECT_FALSE(undoManager().canUndo());

    controller.getSelectedCardInfo();
    statementEditor().statement()->setBalance(NSDecimalNumber::fromText("60"));
    statementEditor().addOrUpdateStatement();
    EXPECT_EQ(statements[1]->balance(), NSDecimalNumber::fromText("60"));
    EXPECT_EQ(statements[0]->balance(), NSDecimalNumber::fromText("100"));
    EXPECT_EQ(undoManager().undoActionName(), QStringLiteral("Edit Statement"));
    EXPECT_FALSE(store.context().hasChanges());

    controller.getSelectedCardInfo();
    statementEditor().setIsDirty(true);
    store.context().deleteObject(*first);
    store.save();
    controller.statementPopover()->close();
    EXPECT_EQ(statementsInFile(), 0) << "nothing is committed to what is gone";
}

TEST_F(MainWindowEditingTest, theCardEditorRefusesItsFirstCloseAndLosesNothing)
{
    fill();
    open();
    auto& list = table<CVCardTableView>("cardsTableView");
    controller.setSelectedStatement(first->lastStatement());
    controller.getInfo(list.rowView(1));
    controller.setSelectedStatement(nullptr);
    ASSERT_TRUE(controller.cardPopover());
    EXPECT_EQ(controller.editingCard(), second);
    cardEditor().card()->setName(QStringLiteral("Zenith"));
    controller.cardPopover()->performClose();
    ASSERT_TRUE(controller.cardPopover()) << "refused once";
    cardEditor().addOrUpdateCard();
    EXPECT_EQ(second->name(), QStringLiteral("Zenith"));
    EXPECT_EQ(undoManager().undoActionName(), QStringLiteral("Edit Card"));
    EXPECT_EQ(controller.editingCard(), nullptr);

    controller.getInfo(list.rowView(0));
    cardEditor().card()->setName(QStringLiteral("Gone"));
    controller.addCard();
    cardEditor().addOrUpdateCard();
    EXPECT_EQ(first->name(), QStringLiteral("Aurora")) << "a new card is no edit of an old one";
    EXPECT_EQ(controller.cardsController().rowCount(), 3);
    controller.delete_();
    EXPECT_EQ(controller.cardsController().rowCount(), 2);
    EXPECT_EQ(undoManager().undoActionName(), QStringLiteral("Delete Card"));
}
