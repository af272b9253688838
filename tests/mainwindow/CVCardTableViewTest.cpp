#include "mainwindow/CVCardTableView.h"

#include "mainwindow/CVCardTableRowView.h"
#include "mainwindow/CVCardTableViewDelegate.h"
#include "store/NSArrayController.h"
#include "tests/support/CardStore.h"

#include <QAbstractButton>
#include <QAction>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <gtest/gtest.h>

namespace {

/// Writes down which rows were chosen, and whether one was selected by then.
class Delegate : public CVCardTableViewDelegate
{
public:
    void cardTableViewDidSelectCard(CVCardTableView& table, CVCard& card, int index) override
    {
        EXPECT_EQ(&card, table.cardAtRow(index));
        chosen.push_back(index);
        selectedBefore = table.selectedRow();
    }

    std::vector<int> chosen;
    std::optional<int> selectedBefore;
};

class CVCardTableViewTest : public testing::Test
{
protected:
    CVCardTableViewTest()
    {
        for (int number = 10; number < 60; ++number) {
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
        scrollView.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        scrollView.resize(240, 480);
        scrollView.setWidget(table);
        scrollView.show();
        QCoreApplication::processEvents();
    }

    /// The rows that have views, each checked to be where it belongs and to show its card.
    std::vector<int> rowsWithViews() const
    {
        std::vector<int> rows;
        for (int row = 0; row < table->numberOfRows(); ++row) {
            if (auto* const view = table->rowView(row)) {
                EXPECT_EQ(view->geometry(), table->rectOfRow(row));
                EXPECT_EQ(view->cellView().objectValue(), table->cardAtRow(row));
                EXPECT_EQ(view->isSelected(), table->isRowSelected(row));
                EXPECT_TRUE(view->isVisible());
                rows.push_back(row);
            }
        }
        return rows;
    }

    void deleteAllButTheLastTwoCards()
    {
        while (table->numberOfRows() > 2) {
            store.context().deleteObject(*table->cardAtRow(0));
            store.context().processPendingChanges();
        }
    }

    CardStore store;
    NSArrayController cards{"Card", "name", "displayName"};
    Delegate delegate;
    QAction addStatement;
    QScrollArea scrollView;
    CVCardTableView* table;
};

} // namespace

TEST_F(CVCardTableViewTest, onlyRowsInViewHaveViews)
{
    EXPECT_EQ(rowsWithViews(), (std::vector{0, 1, 2, 3, 4}));
    scrollView.verticalScrollBar()->setValue(96 * 20 + 10);
    EXPECT_EQ(rowsWithViews(), (std::vector{20, 21, 22, 23, 24, 25}));
    scrollView.resize(300, 200);
    QCoreApplication::processEvents();
    EXPECT_EQ(rowsWithViews(), (std::vector{20, 21, 22}));
    EXPECT_LE(table->findChildren<CVCardTableRowView*>().size(), 6) << "views are used again";

    EXPECT_EQ(table->cardInfoPopoverAnchorRectForRow(0), QRect());
    EXPECT_EQ(table->newStatementPopoverAnchorRectForRow(49), QRect());
    const auto anchor = table->newStatementPopoverAnchorRectForRow(21);
    EXPECT_EQ(anchor.size(), QSize(24, 24));
    EXPECT_TRUE(table->rectOfRow(21).contains(anchor));
    EXPECT_TRUE(table->rectOfRow(21).contains(table->cardInfoPopoverAnchorRectForRow(21)));
    EXPECT_EQ(table->rowForView(table->childAt(anchor.center())), 21);
    EXPECT_FALSE(table->rowForView(table));
}

TEST_F(CVCardTableViewTest, viewsFollowTheirCardsAsTheListChanges)
{
    table->selectRow(1);
    auto* const selected = table->cardAtRow(1);
    selected->setName(QStringLiteral("Zulu"));
    store.context().processPendingChanges();
    EXPECT_EQ(table->selectedRow(), 49);
    EXPECT_EQ(rowsWithViews(), (std::vector{0, 1, 2, 3, 4}));
    store.insertCard(QStringLiteral("Alpha"));
    store.context().processPendingChanges();
    EXPECT_EQ(rowsWithViews(), (std::vector{0, 1, 2, 3, 4}));
    deleteAllButTheLastTwoCards();
    EXPECT_EQ(rowsWithViews(), (std::vector{0, 1}));
}

TEST_F(CVCardTableViewTest, whatIsPressedIsMeantWhereverItsRowMoves)
{
    const auto rename = [this](int row, const QString& name) {
        table->cardAtRow(row)->setName(name);
        store.context().processPendingChanges();
    };
    std::vector<CVCard*> doubleClicked;
    QObject::connect(table, &CVCardTableView::doubleClicked, table, [&](QObject* sender) {
        doubleClicked.push_back(
            table->cardAtRow(table->rowForView(qobject_cast<QWidget*>(sender)).value()));
    });
    int clicks = 0;
    QObject::connect(table, &CVCardTableView::addStatement, table, [&clicks] { ++clicks; });

    const QPoint point(20, 96 * 2 + 5);
    for (const auto& name : {QStringLiteral("Alpha"), QStringLiteral("Zulu")}) {
        auto* const pressed = table->cardAtRow(2);
        QTest::mouseClick(table, Qt::LeftButton, {}, point);
        rename(2, name);
        QTest::mouseDClick(table, Qt::LeftButton, {}, point);
        EXPECT_EQ(doubleClicked.back(), pressed);
        EXPECT_EQ(table->cardAtRow(*table->selectedRow()), pressed);
        scrollView.verticalScrollBar()->setValue(0);
    }
    auto* const elsewhere = table->cardAtRow(3);
    QTest::mouseDClick(table, Qt::LeftButton, {}, {20, 96 * 3 + 5});
    EXPECT_EQ(doubleClicked.back(), elsewhere) << "its first press was not ours";

    for (const auto& name : {QStringLiteral("Beta"), QStringLiteral("Yankee")}) {
        auto& button = table->rowView(2)->cellView().addStatementButton();
        const auto place = button.mapTo(table, button.rect().center());
        QTest::mousePress(&button, Qt::LeftButton);
        rename(2, name);
        auto* const under = table->childAt(place);
        QTest::mouseRelease(under, Qt::LeftButton, {}, under->mapFrom(table, place));
    }
    EXPECT_EQ(clicks, 0) << "the buttons of other cards";
}

TEST_F(CVCardTableViewTest, choosesRowsByMouseAndKeyboard)
{
    QTest::mouseClick(table, Qt::LeftButton, {}, {20, 96 * 2 + 5});
    EXPECT_EQ(delegate.chosen, std::vector{2});
    EXPECT_EQ(delegate.selectedBefore, 0) << "the delegate hears first";
    EXPECT_EQ(table->selectedRow(), 2);
    QTest::mouseClick(table, Qt::RightButton, {}, {20, 5});
    QTest::keyClick(table, Qt::Key_PageDown);
    EXPECT_EQ(table->selectedRow(), 7);
    EXPECT_TRUE(table->visibleRect().contains(table->rectOfRow(7)));
    QTest::keyClick(table, Qt::Key_Down);
    QTest::keyClick(table, Qt::Key_End);
    QTest::keyClick(table, Qt::Key_End);
    EXPECT_EQ(delegate.chosen, (std::vector{2, 7, 8, 49}));
    QTest::keyClick(table, Qt::Key_Up, Qt::ControlModifier);
    EXPECT_EQ(table->selectedRow(), 49);

    deleteAllButTheLastTwoCards();
    QTest::mouseClick(table, Qt::LeftButton, {}, {20, 300});
    EXPECT_EQ(table->selectedRow(), 1) << "below the rows";
    EXPECT_EQ(delegate.chosen.size(), 4);
}

TEST_F(CVCardTableViewTest, theRowsButtonsFollowTheCommand)
{
    const auto button = [this](int row) {
        return &table->rowView(row)->cellView().addStatementButton();
    };
    EXPECT_TRUE(button(0)->isEnabled());
    addStatement.setEnabled(false);
    EXPECT_FALSE(button(0)->isEnabled());
    scrollView.verticalScrollBar()->setValue(96 * 30);
    EXPECT_FALSE(button(32)->isEnabled());
    EXPECT_EQ(button(32)->accessibleName(), QStringLiteral("Add Statement"));
}
