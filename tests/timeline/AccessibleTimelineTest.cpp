#include "store/NSArrayController.h"
#include "tests/support/AccessibilityEvents.h"
#include "tests/support/CardStore.h"
#include "tests/support/Utc.h"
#include "timeline/CVCardTimelineCellDelegate.h"
#include "timeline/CVTimelineScrollView.h"
#include "timeline/CVTimelineTableView.h"
#include "timeline/CVTimelineTableViewDelegate.h"
#include "timeline/StatementText.h"
#include "widgets/AccessibleRowList.h"

#include <QCoreApplication>
#include <QScrollBar>
#include <QTest>
#include <gtest/gtest.h>

namespace {

/// Keeps the selection in step as a window's controller does.
class Delegate : public CVTimelineTableViewDelegate, public CVCardTimelineCellDelegate
{
public:
    void timelineTableViewDidSelectTimelineForCard(CVTimelineTableView& /*table*/, CVCard& card,
                                                   int /*index*/) override
    {
        log.append(*card.name());
    }
    void timelineTableViewDidSelectStatement(CVTimelineTableView& table, CVStatement* statement,
                                             const QPointF& /*point*/, int clickCount) override
    {
        log.append(QString::number(clickCount));
        table.selectedStatementDidChange(std::exchange(selected, statement), statement);
    }
    void timelineTableViewDidCancelOperation(CVTimelineTableView& /*table*/) override {}
    bool timelineCellSelectStatement(const CVCardTimelineCell& /*cell*/,
                                     const CVStatement& statement) const override
    {
        return &statement == selected;
    }

    QStringList log;
    CVStatement* selected = nullptr;
};

class AccessibleTimelineTest : public testing::Test
{
protected:
    AccessibleTimelineTest()
    {
        AccessibleRowList::installFactory();
        for (int number = 2; number < 10; ++number) {
            store.insertCard(QStringLiteral("Card %1").arg(number));
        }
        store.save();
        cards.setManagedObjectContext(&store.context());
        auto* const table = new CVTimelineTableView;
        table->setRowHeight(96);
        table->setCardsController(cards);
        table->setManagedObjectContext(&store.context());
        table->setTimelineDelegate(&delegate);
        table->setTimelineCellDelegate(&delegate);
        scrollView.setFrameShape(QFrame::NoFrame);
        scrollView.setWidgetResizable(true);
        scrollView.resize(800, 400);
        scrollView.setWidget(table);
        scrollView.show();
        scrollView.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&scrollView));
        QCoreApplication::sendPostedEvents();
        AccessibilityEvents::take();
    }

    CVTimelineTableView& table() { return *scrollView.timelineTableView(); }
    QAccessibleInterface& list() { return *QAccessible::queryAccessibleInterface(&table()); }
    static QString name(const QAccessibleInterface* item) { return item->text(QAccessible::Name); }
    static void act(QAccessibleInterface* item, const QString& action)
    {
        item->actionInterface()->doAction(action);
    }
    /// Lets the end of an event come.
    void change()
    {
        store.context().processPendingChanges();
        QCoreApplication::sendPostedEvents();
    }

    CardStore store;
    CVCard& first = store.insertCard(QStringLiteral("Card 0"));
    CVCard& second = store.insertCard(QStringLiteral("Card 1"));
    CVStatement& early = store.insertStatement(&first, utc(2015, 1, 4), {"100", "1000"});
    CVStatement& late = store.insertStatement(&first, utc(2016, 12, 20), {"900", "1000"});
    CVStatement& undated = store.insertStatement(&first, std::nullopt, {"900", "1000"});
    CVStatement& extreme = store.insertStatement(&second, utc(2016, 1, 1), {"9e37", "0.01"});
    NSArrayController cards{"Card", "name", "displayName"};
    Delegate delegate;
    AccessibilityEvents events;
    CVTimelineScrollView scrollView;
};

} // namespace

TEST_F(AccessibleTimelineTest, rowsAndStatementsAreNamedAndLieWhereTheyAreDrawn)
{
    EXPECT_EQ(list().role(), QAccessible::List);
    EXPECT_EQ(name(&list()), table().accessibleName());
    ASSERT_EQ(list().childCount(), 10);
    auto* const row = list().child(0);
    EXPECT_EQ(row->role(), QAccessible::ListItem);
    EXPECT_EQ(name(row), QStringLiteral("Card 0"));
    EXPECT_EQ(row->rect(), QRect(table().mapToGlobal(QPoint()), QSize(table().width(), 96)));
    EXPECT_EQ(row->parent(), &list());
    EXPECT_EQ(list().indexOfChild(list().child(7)), 7);

    ASSERT_EQ(row->childCount(), 2) << "those with a date";
    for (auto* const statement : {&early, &late}) {
        auto* const item = row->child(statement == &early ? 0 : 1);
        EXPECT_EQ(item->role(), QAccessible::ListItem);
        EXPECT_EQ(name(item), StatementText::title(*statement));
        EXPECT_EQ(item->parent(), row);
        EXPECT_EQ(row->indexOfChild(item), statement == &early ? 0 : 1);
        const QRect dot = item->rect();
        EXPECT_EQ(dot.size(), QSize(6, 6));
        const auto drawn = table().rectForStatement(*statement).value();
        EXPECT_LE((dot.topLeft() - table().mapToGlobal(drawn.topLeft())).manhattanLength(), 1.0);
        EXPECT_EQ(list().childAt(dot.center().x(), dot.center().y()), row);
        EXPECT_EQ(row->childAt(dot.center().x(), dot.center().y()), item);
        EXPECT_EQ(row->childAt(dot.right() + 5, dot.center().y()), nullptr);
    }
    auto* const farBelow = list().child(1)->child(0);
    EXPECT_EQ(farBelow->rect().size(), QSize(6, 6));
    EXPECT_TRUE(farBelow->state().offscreen);
    for (const int missing : {-1, 10}) {
        EXPECT_EQ(list().child(missing), nullptr);
        EXPECT_EQ(row->child(missing), nullptr);
    }
}

TEST_F(AccessibleTimelineTest, whatIsScrolledAwayIsOffScreen)
{
    auto* const top = list().child(0);
    auto* const bottom = list().child(9);
    const QPoint inTop = top->child(0)->rect().center();
    EXPECT_FALSE(top->state().offscreen);
    EXPECT_TRUE(bottom->state().offscreen);
    EXPECT_EQ(list().childAt(bottom->rect().center().x(), bottom->rect().center().y()), nullptr);
    scrollView.verticalScrollBar()->setValue(96 * 9);
    EXPECT_TRUE(top->state().offscreen);
    EXPECT_TRUE(top->child(0)->state().offscreen);
    EXPECT_FALSE(bottom->state().offscreen);
    EXPECT_EQ(top->childAt(inTop.x(), inTop.y()), nullptr);
    scrollView.verticalScrollBar()->setValue(0);
    scrollView.setScale(4.0);
    scrollView.adjustTimelineWidth();
    EXPECT_FALSE(top->child(0)->state().offscreen);
    EXPECT_TRUE(top->child(1)->state().offscreen) << "far to the right";
}

TEST_F(AccessibleTimelineTest, actionsReachTheDelegateAsClicksDo)
{
    auto* const row = list().child(0);
    auto* const item = row->child(1);
    scrollView.setScale(4.0);
    scrollView.adjustTimelineWidth();
    scrollView.verticalScrollBar()->setValue(96 * 9);
    EXPECT_TRUE(item->state().selectable);
    act(item, QStringLiteral("Select"));
    EXPECT_EQ(delegate.log, (QStringList{QStringLiteral("Card 0"), QStringLiteral("1")}));
    EXPECT_EQ(delegate.selected, &late);
    EXPECT_TRUE(item->state().selected);
    EXPECT_TRUE(row->state().selected);
    EXPECT_FALSE(row->child(0)->state().selected);
    EXPECT_FALSE(item->state().offscreen) << "it is scrolled to";
    act(row->child(0), QAccessibleActionInterface::pressAction());
    EXPECT_EQ(delegate.log.mid(2), (QStringList{QStringLiteral("Card 0"), QStringLiteral("2")}));
    EXPECT_FALSE(item->state().selected);

    scrollView.setFocus();
    act(list().child(4), QStringLiteral("Select"));
    EXPECT_FALSE(list().child(4)->state().focused);
    act(list().child(5), QAccessibleActionInterface::setFocusAction());
    EXPECT_TRUE(list().child(5)->state().focused);
    EXPECT_EQ(list().focusChild(), list().child(5));
    EXPECT_EQ(delegate.log.mid(4),
              (QStringList{QStringLiteral("Card 4"), QStringLiteral("Card 5")}));
    act(item, QStringLiteral("Erase"));
    act(row, QStringLiteral("Press"));
    EXPECT_EQ(delegate.log.size(), 6);
}

TEST_F(AccessibleTimelineTest, selectionsAreAnnouncedForTheRightItem)
{
    table().setFocus();
    AccessibilityEvents::take();
    QTest::keyClick(&table(), Qt::Key_Down);
    EXPECT_EQ(AccessibilityEvents::take(),
              (QStringList{QStringLiteral("unselected Card 0"), QStringLiteral("selected Card 1"),
                           QStringLiteral("focused Card 1")}));
    table().selectRow(3);
    EXPECT_EQ(AccessibilityEvents::take(),
              (QStringList{QStringLiteral("unselected Card 1"), QStringLiteral("selected Card 3"),
                           QStringLiteral("focused Card 3")}));
    table().clickStatement(early, 1);
    const auto title = StatementText::title(early);
    EXPECT_EQ(
        AccessibilityEvents::take().mid(3),
        (QStringList{QStringLiteral("selected ") + title, QStringLiteral("focused ") + title}));
    table().unselectStatement();
    EXPECT_EQ(AccessibilityEvents::take(), QStringList{QStringLiteral("unselected ") + title});
}

TEST_F(AccessibleTimelineTest, itemsFollowTheirRecordsAndEndWithThem)
{
    auto* const row = list().child(0);
    auto* const item = row->child(0);
    const auto rowID = QAccessible::uniqueId(row);
    const auto itemID = QAccessible::uniqueId(item);
    first.setName(QStringLiteral("Zulu"));
    change();
    EXPECT_EQ(list().child(9), row);
    EXPECT_EQ(list().indexOfChild(row), 9);
    EXPECT_EQ(row->child(0), item);
    EXPECT_EQ(AccessibilityEvents::take(), QStringList{QStringLiteral("renamed Zulu")});

    auto& added = store.insertStatement(&first, utc(2015, 6, 1), {"5", "10"});
    early.setBalance(NSDecimalNumber::fromText("7").value());
    change();
    EXPECT_EQ(row->child(0), item);
    EXPECT_EQ(AccessibilityEvents::take(),
              (QStringList{QStringLiteral("renamed Zulu"),
                           QStringLiteral("added ") + StatementText::title(added),
                           QStringLiteral("renamed ") + StatementText::title(early)}));

    store.context().deleteObject(early);
    EXPECT_FALSE(item->isValid());
    EXPECT_TRUE(item->state().invalid);
    change();
    EXPECT_EQ(QAccessible::accessibleInterface(itemID), nullptr);
    EXPECT_EQ(name(row->child(0)), StatementText::title(added));
    store.context().deleteObject(first);
    EXPECT_FALSE(row->isValid());
    EXPECT_EQ(row->childCount(), 0);
    act(row, QStringLiteral("Select"));
    EXPECT_TRUE(delegate.log.isEmpty());
    change();
    EXPECT_EQ(QAccessible::accessibleInterface(rowID), nullptr);
    EXPECT_EQ(list().childCount(), 9);
    const auto told = AccessibilityEvents::take();
    EXPECT_EQ(told.filter(QStringLiteral("removed")).size(), 2);

    const auto otherID = QAccessible::uniqueId(list().child(2));
    cards.setManagedObjectContext(nullptr);
    EXPECT_EQ(list().childCount(), 0);
    EXPECT_EQ(QAccessible::accessibleInterface(otherID), nullptr);
}
