#include "mainwindow/CVCardTableRowView.h"
#include "mainwindow/CVCardTableView.h"
#include "mainwindow/CVCardTableViewDelegate.h"
#include "store/NSArrayController.h"
#include "tests/support/AccessibilityEvents.h"
#include "tests/support/CardStore.h"
#include "tests/support/Utc.h"
#include "widgets/AccessibleRowList.h"

#include <QAbstractButton>
#include <QAction>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <gtest/gtest.h>

namespace {

class Delegate : public CVCardTableViewDelegate
{
public:
    void cardTableViewDidSelectCard(CVCardTableView& /*table*/, CVCard& card,
                                    int /*index*/) override
    {
        chosen.append(*card.name());
    }

    QStringList chosen;
};

class AccessibleCardListTest : public testing::Test
{
protected:
    AccessibleCardListTest()
    {
        AccessibleRowList::installFactory();
        for (int number = 1; number < 10; ++number) {
            store.insertCard(QStringLiteral("Card %1").arg(number));
        }
        store.save();
        cards.setManagedObjectContext(&store.context());
        table = new CVCardTableView;
        table->setRowHeight(96);
        table->setCardsController(cards);
        table->setCardDelegate(&delegate);
        table->setAddStatementAction(&addStatement);
        scrollView.setFrameShape(QFrame::NoFrame);
        scrollView.setWidgetResizable(true);
        scrollView.resize(240, 480);
        scrollView.setWidget(table);
        scrollView.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&scrollView));
        AccessibilityEvents::take();
    }

    QAccessibleInterface& list() { return *QAccessible::queryAccessibleInterface(table); }
    QAccessibleInterface& row(int index) { return *list().child(index); }

    CardStore store;
    CVCard& busy = store.insertCard(QStringLiteral("Card 0"));
    CVStatement& statement =
        store.insertStatement(&busy, utc(2016, 1, 3), {"500", "1000", "500", 0.199});
    NSArrayController cards{"Card", "name", "displayName"};
    Delegate delegate;
    QAction addStatement;
    AccessibilityEvents events;
    QScrollArea scrollView;
    CVCardTableView* table;
};

} // namespace

TEST_F(AccessibleCardListTest, rowsSayWhatTheyShow)
{
    ASSERT_EQ(list().childCount(), 10);
    EXPECT_EQ(row(0).text(QAccessible::Name), QStringLiteral("Card 0"));
    EXPECT_EQ(
        row(0).text(QAccessible::Description),
        QString(*busy.formattedBalanceAndLimit() + u", 19.9% APR, " + busy.formattedForecast()));
    EXPECT_EQ(row(1).text(QAccessible::Description), QString());
    EXPECT_TRUE(row(0).state().selected);
    EXPECT_FALSE(row(1).state().selected);

    auto* const button = row(1).child(0);
    ASSERT_EQ(row(1).childCount(), 1);
    EXPECT_EQ(button->role(), QAccessible::Button);
    EXPECT_EQ(button->text(QAccessible::Name), QStringLiteral("Add Statement"));
    EXPECT_EQ(button->parent(), &row(1)) << "the widgets between them are not met";
    EXPECT_EQ(row(1).indexOfChild(button), 0);
    const auto middle = button->rect().center();
    EXPECT_EQ(list().childAt(middle.x(), middle.y()), &row(1));
    EXPECT_EQ(row(1).childAt(middle.x(), middle.y()), button);
    int clicks = 0;
    QObject::connect(static_cast<QAbstractButton*>(button->object()), &QAbstractButton::clicked,
                     table, [&clicks] { ++clicks; });
    button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    addStatement.setEnabled(false);
    button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(clicks, 1);
    EXPECT_TRUE(button->state().disabled);

    EXPECT_TRUE(row(9).state().offscreen);
    EXPECT_EQ(row(9).childCount(), 0);
    scrollView.verticalScrollBar()->setValue(96 * 9);
    EXPECT_FALSE(row(9).state().offscreen);
    EXPECT_EQ(row(9).childCount(), 1);
    EXPECT_EQ(row(9).child(0)->parent(), &row(9));
}

TEST_F(AccessibleCardListTest, actionsDoWhatPressesDo)
{
    std::optional<int> doubleClicked;
    QObject::connect(table, &CVCardTableView::doubleClicked, table, [&](QObject* sender) {
        doubleClicked = table->rowForView(qobject_cast<QWidget*>(sender));
    });
    row(9).actionInterface()->doAction(QStringLiteral("Select"));
    EXPECT_EQ(table->selectedRow(), 9);
    EXPECT_FALSE(row(9).state().offscreen);
    EXPECT_FALSE(doubleClicked);
    row(2).actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(doubleClicked, 2) << "scrolled into view";
    EXPECT_EQ(delegate.chosen, (QStringList{QStringLiteral("Card 9"), QStringLiteral("Card 2")}));
}

TEST_F(AccessibleCardListTest, changesAreAnnouncedForTheRightRow)
{
    QTest::mouseClick(table, Qt::LeftButton, {}, {20, 96 * 2 + 5});
    EXPECT_EQ(AccessibilityEvents::take(),
              (QStringList{QStringLiteral("selected Card 2"), QStringLiteral("focused Card 2")}))
        << "nobody asked for the row that is not selected any more";
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(AccessibilityEvents::take(), QStringList{QStringLiteral("focused Card 2")})
        << "after the table has got the keyboard";
    row(1);
    store.insertCard(QStringLiteral("Card 00"));
    busy.setName(QStringLiteral("Card 01"));
    store.context().processPendingChanges();
    EXPECT_EQ(AccessibilityEvents::take(), (QStringList{QStringLiteral("added Card 00")}));
    EXPECT_EQ(row(3).text(QAccessible::Name), QStringLiteral("Card 2"));
    EXPECT_TRUE(row(3).state().selected);
    table->redrawRows();
    EXPECT_EQ(AccessibilityEvents::take().filter(QStringLiteral("described")).size(), 3)
        << "those that were asked for";
    store.context().deleteObject(*table->cardAtRow(3));
    store.context().processPendingChanges();
    EXPECT_EQ(AccessibilityEvents::take(),
              (QStringList{QStringLiteral("removed "), QStringLiteral("selected Card 3"),
                           QStringLiteral("focused Card 3")}));
}
