#include "widgets/SplitView.h"

#include <QApplication>
#include <QMouseEvent>
#include <QSignalSpy>
#include <gtest/gtest.h>

#include <limits>

namespace {

/// A list of at least 200 points that can be collapsed, beside a pane that cannot.
class SplitViewTest : public testing::Test
{
protected:
    SplitViewTest()
    {
        addPanes(view);
        view.resize(801, 100);
        view.show();
        view.setSizes({300, 500});
    }

    static void addPanes(SplitView& splitView)
    {
        splitView.addWidget(new QWidget);
        splitView.addWidget(new QWidget);
        splitView.setMinimumSizes({{0, 200.0}, {1, 100.0}, {7, 50.0}});
        splitView.setStretchFactor(1, 1);
        splitView.setCollapsible(1, false);
    }

    void send(QEvent::Type type, int x)
    {
        auto* const divider = view.handle(1);
        const QPoint place = view.mapToGlobal(QPoint(x, 50));
        const auto button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        const auto held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, divider->mapFromGlobal(place), place, button, held, {});
        QApplication::sendEvent(divider, &event);
    }

    void drag(const std::vector<int>& way)
    {
        send(QEvent::MouseButtonPress, way.front());
        for (const int x : way) {
            send(QEvent::MouseMove, x);
        }
        send(QEvent::MouseButtonRelease, way.back());
    }

    QList<int> sizes() const { return view.sizes(); }

    SplitView view;
    QSignalSpy changes{&view, &SplitView::paneCollapsedChanged};
};

} // namespace

TEST_F(SplitViewTest, APaneDraggedBelowHalfItsMinimumCollapsesAndComesBackAsItWas)
{
    drag({300, 150});
    EXPECT_EQ(sizes(), QList<int>({200, 600}));
    drag({200, 320});
    EXPECT_TRUE(changes.isEmpty());

    drag({320, 210, 101, 90});
    EXPECT_TRUE(view.isPaneCollapsed(0));
    EXPECT_FALSE(view.widget(0)->isEnabled());
    EXPECT_EQ(changes.takeFirst(), QVariantList({0, true}));
    EXPECT_EQ(view.childAt(4, 50), view.handle(1)) << "the divider cannot be grasped at the edge";

    send(QEvent::MouseButtonPress, 0);
    send(QEvent::MouseButtonRelease, 0);
    send(QEvent::MouseButtonDblClick, 0);
    send(QEvent::MouseMove, 2);
    send(QEvent::MouseButtonRelease, 2);
    EXPECT_EQ(sizes(), QList<int>({320, 480}));
    EXPECT_TRUE(view.widget(0)->isEnabled());
    EXPECT_EQ(changes.takeFirst(), QVariantList({0, false}));

    view.setPaneCollapsed(0, true);
    EXPECT_EQ(sizes(), QList<int>({0, 800}));
    drag({0, 250});
    EXPECT_EQ(sizes(), QList<int>({250, 550}));
    EXPECT_EQ(changes.size(), 2);
}

TEST_F(SplitViewTest, TheDividerStaysUnderTheMouse)
{
    for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        view.setLayoutDirection(direction);
        QApplication::processEvents();
        const bool isMirrored = direction == Qt::RightToLeft;
        for (const int grasp : {-4, 0, 4}) {
            view.setSizes({300, 500});
            const int line = isMirrored ? 500 : 300;
            drag({line + grasp, line + grasp});
            EXPECT_EQ(sizes(), QList<int>({300, 500})) << grasp;
            drag({line + grasp, line + grasp + 50});
            EXPECT_EQ(sizes().front(), isMirrored ? 250 : 350) << grasp;
        }
    }
}

TEST_F(SplitViewTest, OnlyWhatMayCollapseDoes)
{
    view.setPaneCollapsed(1, true);
    view.setPaneCollapsed(2, true);
    view.setPaneCollapsed(-1, true);
    EXPECT_EQ(sizes(), QList<int>({300, 500}));
    view.setCollapsible(1, true);
    view.setPaneCollapsed(0, true);
    view.setPaneCollapsed(1, true);
    EXPECT_EQ(sizes(), QList<int>({0, 800})) << "the last open pane stays open";
}

TEST_F(SplitViewTest, TheOtherPaneTakesTheRoomOfTheWindow)
{
    view.resize(1001, 100);
    EXPECT_EQ(sizes(), QList<int>({300, 700}));
    view.resize(351, 100);
    EXPECT_EQ(sizes(), QList<int>({250, 100}));
    view.resize(50, 100);
    EXPECT_GE(view.width(), 301);
    view.resize(801, 100);
    EXPECT_EQ(sizes(), QList<int>({300, 500}));

    view.setMinimumSizes({{0, std::numeric_limits<double>::quiet_NaN()}, {1, -5.0}});
    EXPECT_EQ(view.widget(0)->minimumWidth() + view.widget(1)->minimumWidth(), 0);
}

TEST_F(SplitViewTest, AnArrangementIsRestoredBeforeTheViewHasItsSize)
{
    for (const bool isCollapsed : {false, true}) {
        view.setPaneCollapsed(0, isCollapsed);
        SplitView other;
        addPanes(other);
        ASSERT_TRUE(other.restoreArrangement(view.saveArrangement()));
        EXPECT_EQ(other.saveArrangement().size(), view.saveArrangement().size());
        other.resize(1201, 100);
        other.show();
        EXPECT_EQ(other.isPaneCollapsed(0), isCollapsed);
        other.setPaneCollapsed(0, false);
        EXPECT_EQ(other.sizes(), QList<int>({300, 900}));
    }
}

TEST_F(SplitViewTest, AnArrangementThatDoesNotFitLosesNoPane)
{
    SplitView huge;
    addPanes(huge);
    huge.resize(100000, 100);
    huge.setSizes({99000, 999});
    ASSERT_TRUE(view.restoreArrangement(huge.saveArrangement()));
    EXPECT_EQ(sizes(), QList<int>({700, 100}));
    huge.setPaneCollapsed(0, true);
    ASSERT_TRUE(view.restoreArrangement(huge.saveArrangement()));
    EXPECT_EQ(sizes(), QList<int>({0, 800}));
    view.setPaneCollapsed(0, false);
    EXPECT_EQ(sizes(), QList<int>({700, 100}));

    huge.setCollapsible(1, true);
    huge.setPaneCollapsed(0, false);
    huge.setPaneCollapsed(1, true);
    ASSERT_TRUE(view.restoreArrangement(huge.saveArrangement()));
    EXPECT_EQ(sizes(), QList<int>({700, 100})) << "the second pane may not collapse here";
}

TEST_F(SplitViewTest, DamagedAndForeignBytesChangeNothing)
{
    const auto saved = view.saveArrangement();
    view.setSizes({250, 550});
    for (int bit = 0; bit < saved.size() * 8; ++bit) {
        auto damaged = saved;
        damaged[bit / 8] = static_cast<char>(damaged[bit / 8] ^ (1 << bit % 8));
        EXPECT_FALSE(view.restoreArrangement(damaged)) << bit;
    }
    for (int length = 0; length < saved.size(); ++length) {
        EXPECT_FALSE(view.restoreArrangement(saved.left(length))) << length;
    }
    view.addWidget(new QWidget);
    const auto ofThree = view.saveArrangement();
    delete view.widget(2);
    for (const auto& foreign : {QByteArray(saved + 'x'), view.saveState(), ofThree}) {
        EXPECT_FALSE(view.restoreArrangement(foreign));
    }
    EXPECT_EQ(sizes(), QList<int>({250, 550}));
    EXPECT_TRUE(view.restoreArrangement(saved));
    EXPECT_EQ(sizes(), QList<int>({300, 500}));
}
