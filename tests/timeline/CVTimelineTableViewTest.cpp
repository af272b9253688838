#include "timeline/CVTimelineTableView.h"

#include "foundation/Log.h"
#include "store/NSArrayController.h"
#include "tests/support/CardStore.h"
#include "tests/support/Utc.h"
#include "timeline/CVTimelineScrollView.h"
#include "timeline/CVTimelineTableViewDelegate.h"
#include "timeline/CardTimelineGeometry.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QScrollBar>
#include <gtest/gtest.h>

#include <cmath>
#include <utility>
#include <vector>

namespace {

/// Writes down what it is told.
class Delegate : public CVTimelineTableViewDelegate
{
public:
    struct Click
    {
        CVStatement* statement;
        QPointF point;
        int count;
        bool operator==(const Click&) const = default;
    };

    void timelineTableViewDidSelectTimelineForCard(CVTimelineTableView& /*table*/, CVCard& card,
                                                   int index) override
    {
        cards.push_back(&card);
        rows.push_back(index);
    }
    void timelineTableViewDidSelectStatement(CVTimelineTableView& /*table*/, CVStatement* statement,
                                             const QPointF& point, int clickCount) override
    {
        clicks.push_back({statement, point, clickCount});
        rowsBefore.push_back(rows.size());
    }
    void timelineTableViewDidCancelOperation(CVTimelineTableView& /*table*/) override
    {
        ++cancelled;
    }

    std::vector<CVCard*> cards;
    std::vector<int> rows;
    std::vector<Click> clicks;
    /// How many rows were reported before each click.
    std::vector<std::size_t> rowsBefore;
    int cancelled = 0;
};

class CVTimelineTableViewTest : public testing::Test
{
protected:
    CVTimelineTableViewTest()
    {
        store.save();
        cards.setManagedObjectContext(&store.context());
        auto* const table = new CVTimelineTableView;
        table->setRowHeight(96);
        table->setCardsController(cards);
        table->setManagedObjectContext(&store.context());
        table->setTimelineDelegate(&delegate);
        scrollView.setFrameShape(QFrame::NoFrame);
        scrollView.setWidgetResizable(true);
        scrollView.resize(800, 400);
        scrollView.setWidget(table);
        scrollView.show();
        QCoreApplication::processEvents();
    }

    CVTimelineTableView& table() { return *scrollView.timelineTableView(); }
    void press(QPointF point, QEvent::Type type = QEvent::MouseButtonPress)
    {
        QMouseEvent event(type, point, table().mapToGlobal(point), Qt::LeftButton, Qt::LeftButton,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(&table(), &event);
    }
    void pressKey(int key)
    {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(&table(), &event);
    }

    CardStore store;
    CVCard& first = store.insertCard(QStringLiteral("Aurora"));
    CVCard& second = store.insertCard(QStringLiteral("Borealis"));
    CVStatement& early = store.insertStatement(&first, utc(2015, 1, 4), {"100", "1000"});
    CVStatement& twin = store.insertStatement(&second, utc(2015, 2, 3), {"500", "1000"});
    /// Close enough for its dot to lie over the other's.
    CVStatement& laterTwin = store.insertStatement(&second, utc(2015, 2, 3, 12), {"500", "1000"});
    CVStatement& last = store.insertStatement(&first, utc(2016, 12, 20), {"900", "1000"});
    NSArrayController cards{"Card", "name", "displayName"};
    Delegate delegate;
    CVTimelineScrollView scrollView;
};

} // namespace

TEST_F(CVTimelineTableViewTest, aScrollBarThatTakesFromTheOthersReasonDoesNotFlicker)
{
    // The table is wider than the view only while no vertical scroll bar stands beside it, which is
    // there only while a horizontal one is.
    const int height = table().numberOfRows() * 96;
    int changes = 0;
    QObject::connect(&scrollView, &CVTimelineScrollView::timelineWidthDidChange, &scrollView,
                     [&changes] { ++changes; });
    for (const int spare : {0, 1, 7, 13, 14}) {
        for (int width = 390; width < 430; ++width) {
            scrollView.setScale(1.01);
            scrollView.resize(width, height + spare);
            scrollView.adjustTimelineWidth();
            QCoreApplication::sendPostedEvents();
            EXPECT_LT(std::exchange(changes, 0), 10) << width << " × " << height + spare;
        }
    }
}

TEST_F(CVTimelineTableViewTest, aPressReportsTheRowAndThenTheStatementUnderIt)
{
    const QRectF square = table().rectForStatement(early).value();
    EXPECT_EQ(square.size(), QSizeF(6, 6));
    press(square.topLeft());
    EXPECT_EQ(delegate.cards, std::vector{&first});
    EXPECT_EQ(delegate.rowsBefore, std::vector<std::size_t>{1});
    EXPECT_EQ(delegate.clicks.back(), (Delegate::Click{&early, square.center(), 1}));
    EXPECT_EQ(table().selectedRow(), 0);
    press(square.center(), QEvent::MouseButtonDblClick);
    EXPECT_EQ(delegate.clicks.back(), (Delegate::Click{&early, square.center(), 2}));
    press(square.center());
    first.setName(QStringLiteral("Zulu"));
    store.context().processPendingChanges();
    press(square.center(), QEvent::MouseButtonDblClick);
    EXPECT_EQ(delegate.clicks.back().statement, &early) << "wherever its row has gone meanwhile";
    EXPECT_EQ(delegate.rows.back(), 1);
    first.setName(QStringLiteral("Aurora"));
    store.context().processPendingChanges();
    press(square.topRight() + QPointF(4, 0));
    EXPECT_EQ(delegate.clicks.back(), (Delegate::Click{&early, square.center(), 1}))
        << "near enough";
    press(square.topRight() + QPointF(6, 0));
    EXPECT_EQ(delegate.clicks.back(), (Delegate::Click{nullptr, QPointF(), 1}));
    press(table().rectForStatement(laterTwin).value().topLeft() + QPointF(1, 1));
    EXPECT_EQ(delegate.clicks.back().statement, &twin) << "the earlier of two that overlap";
    EXPECT_EQ(delegate.rows.back(), 1);

    last.setBalance(NSDecimalNumber::fromText("1900"));
    const auto mark = table().anchorRectForStatement(last).value();
    EXPECT_TRUE(QRectF(table().rectOfRow(0)).contains(mark));
    EXPECT_FALSE(QRectF(table().rectOfRow(0)).contains(table().rectForStatement(last).value()));
    press(mark.center(), QEvent::MouseButtonDblClick);
    EXPECT_EQ(delegate.clicks.back(), (Delegate::Click{&last, mark.center(), 2}));
    press(table().rectForStatement(laterTwin).value().topLeft() + QPointF(1, 1));

    const auto rows = delegate.rows.size();
    press({300, 300});
    EXPECT_EQ(delegate.rows.size(), rows) << "below the rows";
    EXPECT_EQ(delegate.clicks.back(), (Delegate::Click{nullptr, QPointF(), 0}));
    EXPECT_EQ(table().selectedRow(), 1);
}

TEST_F(CVTimelineTableViewTest, keysMoveFromRowToRowAndCancel)
{
    pressKey(Qt::Key_Down);
    pressKey(Qt::Key_Down);
    EXPECT_EQ(delegate.rows, std::vector{1}) << "the end is the end";
    EXPECT_EQ(table().selectedRow(), 1);
    pressKey(Qt::Key_Home);
    EXPECT_EQ(table().selectedRow(), 0);
    EXPECT_TRUE(delegate.clicks.empty());
    pressKey(Qt::Key_Escape);
    EXPECT_EQ(delegate.cancelled, 1);
}

TEST_F(CVTimelineTableViewTest, aStatementThatIsNowhereHasNoRectangle)
{
    const Log::Collector log;
    auto& orphan = store.insertStatement(nullptr, utc(2015, 5, 1));
    EXPECT_FALSE(table().rectForStatement(orphan));
    auto& undated = store.insertStatement(&first, std::nullopt);
    EXPECT_FALSE(table().rectForStatement(undated));
    store.context().deleteObject(last);
    EXPECT_FALSE(table().rectForStatement(last));
    ASSERT_EQ(log.lines().size(), 2);
    for (const auto& line : log.lines()) {
        EXPECT_EQ(line, QStringLiteral("Internal error: no row for card (null)"));
    }
}

TEST_F(CVTimelineTableViewTest, itsColumnFollowsTheScaleAndTheView)
{
    double announced = 0.0;
    QObject::connect(&scrollView, &CVTimelineScrollView::timelineWidthDidChange, &scrollView,
                     [&](double width) { announced = width; });
    EXPECT_EQ(table().timelineWidth(), 797) << "a scale of 0 counts as 1";
    scrollView.resize(500, 400);
    scrollView.setScale(2.0);
    EXPECT_EQ(scrollView.adjustTimelineWidth(), 997);
    scrollView.setScale(1.5);
    scrollView.resize(333, 400);
    EXPECT_EQ(table().timelineWidth(), 496);
    EXPECT_EQ(announced, 496);
    EXPECT_EQ(scrollView.timelineWidth(), 496);
    for (const double scale : {1e300, -5.0, 0.0001}) {
        scrollView.setScale(scale);
        scrollView.adjustTimelineWidth();
        table().grab(QRect(0, 0, 300, 200));
        press({10, 50});
        EXPECT_GE(table().width(), 0);
    }
    scrollView.resize(10, 400);
    scrollView.setScale(1.0);
    scrollView.adjustTimelineWidth();
    table().grab();
    press({3, 50});
}

TEST_F(CVTimelineTableViewTest, scrollsToRowsAndPointsAsFarAsThereIsContent)
{
    scrollView.resize(800, 100);
    scrollView.setScale(3.0);
    scrollView.adjustTimelineWidth();
    QCoreApplication::processEvents();
    table().scrollRowToVisible(1);
    EXPECT_EQ(table().visibleRect().bottom(), 191);
    table().scrollRowToVisible(0);
    EXPECT_EQ(table().visibleRect().top(), 0);
    table().scrollRowToVisible(7);
    table().scrollPoint({500, 20});
    EXPECT_EQ(table().visibleRect().topLeft(), QPoint(500, 20));
    table().scrollPoint({std::nan(""), -1e300});
    EXPECT_EQ(table().visibleRect().topLeft(), QPoint(500, 0));
    table().scrollPoint({1e300, 0});
    EXPECT_EQ(scrollView.horizontalScrollBar()->value(),
              scrollView.horizontalScrollBar()->maximum());
}
