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
#include "widgets/AccessibleAnnouncements.h"
#include "widgets/FormButton.h"
#include "widgets/NSPopover.h"
#include "widgets/NoticeBar.h"
#include "widgets/PopoverAnchor.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QTest>
#include <SQLiteCpp/Database.h>
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

    CVCardTableView& list() { return table<CVCardTableView>("cardsTableView"); }
    CVTimelineTableView& timeline() { return table<CVTimelineTableView>("timelineTableView"); }
    QWidget* rowView(int row) { return list().rowView(row); }
    void pressAddIn(int row) { list().rowView(row)->cellView().addStatementButton().click(); }
    void clickDot(const CVStatement& statement)
    {
        QTest::mouseClick(&timeline(), Qt::LeftButton, {},
                          timeline().rectForStatement(statement).value().center().toPoint());
    }
    void type(const char* field, const char* text)
    {
        auto* const popover = controller.statementPopover();
        auto& view = popover ? statementEditor().view() : cardEditor().view();
        view.findChild<QLineEdit*>(QLatin1String(field))->setText(QLatin1String(text));
    }
    QString typed(const char* field)
    {
        return statementEditor().view().findChild<QLineEdit*>(QLatin1String(field))->text();
    }
    void press(Qt::Key key, QWidget* receiver = nullptr)
    {
        QTest::keyClick(receiver ? receiver : &controller.window(), key);
    }
    NoticeBar& notice() { return table<NoticeBar>("noticeBar"); }
    QAbstractButton& noticeButton() { return *notice().findChild<FormButton*>(); }
    /// Whether the open popover points at the record that it is for.
    bool standsAtItsRecord()
    {
        auto* const popover = controller.statementPopover() ? controller.statementPopover()
                                                            : controller.cardPopover();
        const auto place = popover ? controller.popoverWillReposition(*popover) : std::nullopt;
        return place && popover->positioningRect() == place->rect;
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
    press(Qt::Key_Delete);
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
    EXPECT_FALSE(controller.statementPopover()) << "what it was for is gone";
    EXPECT_EQ(statementsInFile(), 0);
}

TEST_F(MainWindowEditingTest, theCardEditorRefusesItsFirstCloseAndLosesNothing)
{
    fill();
    open();
    controller.getInfo(rowView(1));
    ASSERT_TRUE(controller.cardPopover());
    EXPECT_EQ(controller.editingCard(), second);
    cardEditor().card()->setName(QStringLiteral("Zenith"));
    controller.cardPopover()->performClose();
    ASSERT_TRUE(controller.cardPopover()) << "refused once";
    cardEditor().addOrUpdateCard();
    EXPECT_EQ(second->name(), QStringLiteral("Zenith"));
    EXPECT_EQ(undoManager().undoActionName(), QStringLiteral("Edit Card"));
    EXPECT_EQ(controller.editingCard(), nullptr);

    // The form is still as if confirmed when it is pressed away.
    for (const bool isTyped : {false, true}) {
        settle();
        controller.getInfo(rowView(1));
        if (isTyped) {
            type("accountField", "4410");
        }
        controller.cardPopover()->performClose();
        controller.cardPopover()->performClose();
        EXPECT_FALSE(controller.cardPopover());
        EXPECT_EQ(notice().isShowingNotice(), isTyped) << "Undo would take back something else";
    }
    noticeButton().click();
    EXPECT_EQ(second->account().value_or(QString()), QString());
    EXPECT_EQ(second->name(), QStringLiteral("Zenith"));

    controller.getInfo(rowView(0));
    cardEditor().card()->setName(QStringLiteral("Gone"));
    controller.addCard();
    cardEditor().addOrUpdateCard();
    EXPECT_EQ(first->name(), QStringLiteral("Aurora")) << "a new card is no edit of an old one";
    EXPECT_EQ(controller.cardsController().rowCount(), 3);
    controller.delete_();
    EXPECT_EQ(controller.cardsController().rowCount(), 2);
    EXPECT_EQ(undoManager().undoActionName(), QStringLiteral("Delete Card"));
}

TEST_F(MainWindowEditingTest, onlyAnotherSelectedStatementRetargetsAnEditor)
{
    fill();
    open();
    const auto statements = first->sortedStatements();
    clickDot(*statements[0]);
    controller.getSelectedCardInfo();
    type("balanceField", "77");
    statements[0]->setLimit(NSDecimalNumber::fromText("2000"));
    store.context().processPendingChanges();
    controller.undo();
    controller.redo();
    controller.setSelectedStatement(statements[0]);
    controller.getSelectedCardInfo();
    EXPECT_EQ(typed("balanceField"), QStringLiteral("77"));
    EXPECT_TRUE(standsAtItsRecord());
    EXPECT_FALSE(notice().isShowingNotice());

    clickDot(*statements[2]);
    EXPECT_EQ(statementEditor().originalStatement(), statements[2]);
    EXPECT_TRUE(standsAtItsRecord());
    ASSERT_EQ(noticeButton().text(), QStringLiteral("Continue"));
    noticeButton().click();
    EXPECT_EQ(statementEditor().originalStatement(), statements[0]);
    EXPECT_EQ(controller.selectedStatement(), statements[0]);
    EXPECT_EQ(typed("balanceField"), QStringLiteral("77"));
    statementEditor().addOrUpdateStatement();
    EXPECT_EQ(statements[0]->balance(), NSDecimalNumber::fromText("77"));
    EXPECT_EQ(statements[2]->balance(), NSDecimalNumber::fromText("100"));
}

TEST_F(MainWindowEditingTest, addInAnotherRowBeginsAFreshStatementThere)
{
    fill();
    open();
    pressAddIn(0);
    pressAddIn(1);
    settle();
    ASSERT_TRUE(controller.statementPopover());
    EXPECT_EQ(statementEditor().card(), second) << "the last of two presses within one event";
    type("balanceField", "77");
    pressAddIn(1);
    settle();
    EXPECT_EQ(typed("balanceField"), QStringLiteral("77")) << "it is open there already";
    pressAddIn(0);
    settle();
    EXPECT_EQ(statementEditor().card(), first);
    EXPECT_EQ(statementEditor().statement()->balance(), NSDecimalNumber());
    EXPECT_TRUE(standsAtItsRecord());
    EXPECT_EQ(controller.selectedCard(), first);
    statementEditor().cancel();
    EXPECT_EQ(noticeButton().text(), QStringLiteral("Continue"));
    noticeButton().click();
    EXPECT_EQ(controller.cardForNewStatement(), second);
    EXPECT_EQ(typed("balanceField"), QStringLiteral("77"));

    clickDot(first->firstStatement());
    EXPECT_EQ(statementEditor().originalStatement(), &first->firstStatement());
    EXPECT_EQ(controller.popoverWillReposition(*controller.statementPopover())->view, &timeline())
        << "it stands at the dot, not in the list";
    EXPECT_TRUE(standsAtItsRecord());
    pressAddIn(0);
    settle();
    EXPECT_EQ(statementEditor().originalStatement(), nullptr);
    QTest::mouseClick(&timeline(), Qt::LeftButton, {}, {20, 96 * 2 - 3});
    EXPECT_FALSE(controller.statementPopover());
    EXPECT_EQ(statementsInFile(), 3);
}

TEST_F(MainWindowEditingTest, whatIsDeletedIsNotSelectedAndTheKeyTakesOneThingOnly)
{
    fill();
    open();
    auto& statement = *first->lastStatement();
    clickDot(statement);
    press(Qt::Key_Delete);
    EXPECT_EQ(controller.selectedStatement(), nullptr);
    EXPECT_EQ(noticeButton().text(), QStringLiteral("Undo"));
    press(Qt::Key_Delete);
    EXPECT_EQ(controller.cardsController().rowCount(), 2) << "the key was for the statement";
    auto& item = table<QAction>("delete_");
    controller.validateUserInterfaceItem(item);
    EXPECT_EQ(item.text(), QStringLiteral("&Delete Card"));
    press(Qt::Key_Return);
    EXPECT_EQ(controller.editingCard(), first);
    press(Qt::Key_Escape, &list());
    EXPECT_FALSE(controller.cardPopover());
    controller.getInfo(rowView(1));
    EXPECT_EQ(controller.editingCard(), second);
    press(Qt::Key_Escape, &timeline());
    EXPECT_FALSE(controller.cardPopover());

    controller.undo();
    EXPECT_EQ(controller.selectedStatement(), &statement);
    EXPECT_EQ(controller.selectedCard(), first);
    controller.getInfo(rowView(1));
    EXPECT_EQ(controller.editingCard(), second) << "a card's row is that card";
    cardEditor().cancel();

    press(Qt::Key_Up, &list());
    controller.setSelectedStatement(nullptr);
    press(Qt::Key_Delete);
    press(Qt::Key_Delete);
    EXPECT_EQ(controller.cardsController().rowCount(), 1) << "nor the next card";
    noticeButton().click();
    EXPECT_EQ(controller.cardsController().rowCount(), 2);
    EXPECT_EQ(statementsInFile(), 3);
    press(Qt::Key_Delete);
    EXPECT_EQ(controller.cardsController().rowCount(), 1) << "what came back is what is meant";
}

TEST_F(MainWindowEditingTest, undoSelectsWhatItChangedAndClosesTheEditorOfWhatItTook)
{
    fill();
    open();
    controller.getInfo(rowView(0));
    type("nameField", "Zenith");
    cardEditor().addOrUpdateCard();
    EXPECT_EQ(controller.selectedRow(), 1);
    pressAddIn(0);
    settle();
    statementEditor().setDate(utc(2015, 6, 1));
    statementEditor().addOrUpdateStatement();
    ASSERT_EQ(controller.selectedStatement(), second->lastStatement());
    EXPECT_EQ(controller.selectedCard(), second);
    auto& added = *second->lastStatement();

    controller.getSelectedCardInfo();
    controller.undo();
    EXPECT_TRUE(added.isDeleted());
    EXPECT_FALSE(controller.statementPopover()) << "its statement is gone";
    ASSERT_EQ(noticeButton().text(), QStringLiteral("Redo"));
    noticeButton().click();
    EXPECT_EQ(controller.selectedStatement(), &added);

    controller.undo();
    EXPECT_EQ(controller.selectedStatement(), nullptr);
    press(Qt::Key_Delete);
    EXPECT_EQ(controller.cardsController().rowCount(), 2);
    controller.setSelectedStatement(&first->firstStatement());
    controller.undo();
    EXPECT_EQ(first->name(), QStringLiteral("Aurora"));
    EXPECT_EQ(controller.selectedCard(), first);
    EXPECT_EQ(controller.selectedStatement(), nullptr) << "the next key is for the card";

    controller.getInfo(rowView(1));
    controller.redo();
    EXPECT_EQ(controller.editingCard(), second) << "rows moved, and the editor with its own";
    EXPECT_EQ(list().rowForCard(second), 0);
    EXPECT_TRUE(standsAtItsRecord());
    EXPECT_EQ(controller.selectedCard(), first) << "an open editor leaves the selection alone";
}

TEST_F(MainWindowEditingTest, aCardThatIsOpenedMeanwhileIsEditedAsACopy)
{
    fill();
    open();
    controller.getInfo(rowView(0));
    type("nameField", "Typed");
    controller.getInfo(rowView(1));
    EXPECT_EQ(controller.editingCard(), second);
    EXPECT_NE(cardEditor().card(), second);
    EXPECT_TRUE(standsAtItsRecord());
    type("nameField", "Also typed");
    EXPECT_EQ(second->name(), QStringLiteral("Borealis"));
    controller.cardPopover()->performClose();
    controller.cardPopover()->performClose();
    EXPECT_FALSE(controller.cardPopover());
    EXPECT_FALSE(undoManager().canUndo());
    ASSERT_EQ(noticeButton().text(), QStringLiteral("Continue"));
    noticeButton().click();
    cardEditor().addOrUpdateCard();
    EXPECT_EQ(second->name(), QStringLiteral("Also typed"));
    EXPECT_EQ(first->name(), QStringLiteral("Aurora"));

    controller.addCard();
    controller.cardPopover()->performClose();
    EXPECT_EQ(controller.cardsController().rowCount(), 2) << "nobody touched the new one";
    controller.addCard();
    type("nameField", "Third");
    controller.addCard();
    controller.cardPopover()->performClose();
    EXPECT_EQ(controller.cardsController().rowCount(), 3);
    EXPECT_EQ(noticeButton().text(), QStringLiteral("Undo")) << "nobody pressed Add";
}

TEST_F(MainWindowEditingTest, whatCouldNotBeSavedIsToldUntilItIs)
{
    fill();
    open();
    const auto folder = QFileInfo(store.path()).absolutePath();
    ASSERT_TRUE(QDir().rename(folder, folder + u"-away"));
    pressAddIn(1);
    settle();
    statementEditor().setDate(utc(2017, 6, 1));
    statementEditor().addOrUpdateStatement();
    ASSERT_TRUE(notice().text().startsWith(QStringLiteral("Not saved: ")))
        << notice().text().toStdString();
    EXPECT_EQ(noticeButton().text(), QStringLiteral("Save Again"));
    EXPECT_EQ(controller.selectedStatement(), second->lastStatement());
    EXPECT_TRUE(controller.window().isWindowModified());
    controller.setSelectedStatement(nullptr);
    static QStringList announced;
    AccessibleAnnouncements::setListener([](QAccessibleEvent& event) {
        if (event.type() == QAccessible::ObjectShow) {
            announced.append(event.accessibleInterface()->text(QAccessible::Name));
        }
    });
    controller.addCard();
    cardEditor().cancel();
    EXPECT_EQ(announced, QStringList()) << "it was told already";
    AccessibleAnnouncements::setListener(nullptr);
    controller.delete_();
    noticeButton().click();
    EXPECT_EQ(noticeButton().text(), QStringLiteral("Save Again")) << "before all else";
    ASSERT_TRUE(QDir().rename(folder + u"-away", folder));
    noticeButton().click();
    EXPECT_EQ(noticeButton().text(), QStringLiteral("Undo")) << "the deletion is told after it";
    EXPECT_FALSE(controller.window().isWindowModified());
    noticeButton().click();
    EXPECT_EQ(statementsInFile(), 4);
}

TEST_F(MainWindowEditingTest, closingTheWindowOverSomethingTypedIsAskedOnce)
{
    fill();
    open();
    pressAddIn(0);
    settle();
    EXPECT_TRUE(controller.windowShouldClose()) << "nothing was typed";
    type("balanceField", "77");
    EXPECT_FALSE(controller.windowShouldClose());
    EXPECT_EQ(noticeButton().text(), QStringLiteral("Quit"));
    EXPECT_EQ(typed("balanceField"), QStringLiteral("77"));
    type("balanceField", "78");
    EXPECT_FALSE(controller.windowShouldClose()) << "more was typed";
    EXPECT_TRUE(controller.windowShouldClose());
}

TEST_F(MainWindowEditingTest, anEditorFollowsItsDotAlsoWhenASaveFails)
{
    fill();
    controller.setSelectedStatement(&store.insertStatement(second, utc(2017, 6, 1)));
    open();
    controller.delete_();
    controller.setSelectedStatement(first->lastStatement());
    controller.getSelectedCardInfo();
    const auto folder = QFileInfo(store.path()).absolutePath();
    ASSERT_TRUE(QDir().rename(folder, folder + u"-away"));
    // There is a notice already, so that nothing makes room for one.
    notice().showNotice(QStringLiteral("Something"), QString());
    settle();
    const auto before = controller.statementPopover()->positioningRect();
    controller.undo();
    EXPECT_NE(controller.statementPopover()->positioningRect(), before);
    EXPECT_TRUE(standsAtItsRecord());
    ASSERT_TRUE(QDir().rename(folder + u"-away", folder));
}

TEST_F(MainWindowEditingTest, anEditorWhoseCardCannotBeReadOpensWhenItCan)
{
    constexpr std::size_t last = 29;
    for (std::size_t row = 0; row <= last; ++row) {
        store.insertStatement(&store.insertCard(QString::number(row)), utc(2015, 3, 3));
    }
    store.save();
    store.reopen();
    WindowHost freshHost{store.context()};
    MainWindowController fresh{freshHost};
    fresh.showWindow();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&fresh.window()));
    settle();
    SQLite::Database other(store.path().toStdString(), SQLite::OPEN_READWRITE);
    other.exec("ALTER TABLE Statement RENAME TO Away");
    // Of a row that was never in view nothing has been read.
    fresh.cardsController().setSelectionIndex(last);
    fresh.addStatement(nullptr);
    settle();
    EXPECT_FALSE(fresh.statementPopover());
    other.exec("ALTER TABLE Away RENAME TO Statement");
    fresh.addStatement(nullptr);
    settle();
    ASSERT_TRUE(fresh.statementPopover());
    EXPECT_TRUE(fresh.statementPopover()->isShown());
}

TEST_F(MainWindowEditingTest, anOpenEditorTakesOverWhatUndoPutBackButForWhatWasTyped)
{
    fill();
    open();
    auto& statement = *first->lastStatement();
    clickDot(statement);
    controller.getSelectedCardInfo();
    type("balanceField", "140");
    type("limitField", "2000");
    statementEditor().addOrUpdateStatement();
    controller.getSelectedCardInfo();
    type("limitField", "6000");
    type("paymentField", "about 12");
    controller.undo();
    EXPECT_EQ(typed("balanceField"), QStringLiteral("100.00"));
    EXPECT_EQ(typed("limitField"), QStringLiteral("6000"));
    EXPECT_EQ(typed("paymentField"), QStringLiteral("about 12"));
    type("paymentField", "10");
    statementEditor().addOrUpdateStatement();
    EXPECT_EQ(statement.balance(), NSDecimalNumber::fromText("100"));
    EXPECT_EQ(statement.limit(), NSDecimalNumber::fromText("6000"));
    EXPECT_EQ(statement.payment(), NSDecimalNumber::fromText("10"));
}

TEST_F(MainWindowEditingTest, deletingBesideSomethingTypedOffersToGoOnWithIt)
{
    fill();
    open();
    clickDot(first->firstStatement());
    pressAddIn(1);
    settle();
    type("balanceField", "444");
    controller.delete_();
    EXPECT_EQ(statementsInFile(), 2);
    ASSERT_EQ(noticeButton().text(), QStringLiteral("Continue"));
    noticeButton().click();
    EXPECT_EQ(controller.cardForNewStatement(), second);
    EXPECT_EQ(typed("balanceField"), QStringLiteral("444"));
}
