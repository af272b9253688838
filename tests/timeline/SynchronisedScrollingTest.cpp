#include "timeline/CVSyncScrollView.h"
#include "timeline/HorizontalScrollAnimation.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QScrollBar>
#include <QWheelEvent>
#include <gtest/gtest.h>

#include <memory>

namespace {

/// A view of 200 × 100 points on much more.
class View : public CVSyncScrollView
{
public:
    View()
    {
        setFrameShape(QFrame::NoFrame);
        resize(200, 100);
        auto* const content = new QWidget;
        content->setFixedSize(2000, 1000);
        setWidget(content);
        show();
        QCoreApplication::processEvents();
        connect(this, &CVSyncScrollView::contentBoundsDidChange, this, [this] { ++announced; });
    }

    int announced = 0;
};

class SynchronisedScrollingTest : public testing::Test
{
protected:
    SynchronisedScrollingTest()
    {
        cards.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        cards.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        header.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        header.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        cards.setVerticalSyncScrollView(&timeline);
        timeline.setVerticalSyncScrollView(&cards);
        header.setHorizontalSyncScrollView(&timeline);
        timeline.setHorizontalSyncScrollView(&header);
    }

    View cards;
    View timeline;
    View header;
};

void turnWheel(QWidget& view, QPoint angle, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QWheelEvent event({5, 5}, {5, 5}, {}, angle, Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&view, &event);
}

} // namespace

TEST_F(SynchronisedScrollingTest, eachAxisIsFollowedBothWaysWithoutEcho)
{
    timeline.setContentOrigin({300, 40});
    EXPECT_EQ(cards.contentOrigin(), QPoint(0, 40));
    EXPECT_EQ(header.contentOrigin(), QPoint(300, 0));
    EXPECT_EQ(timeline.announced, 2) << "one for each axis";
    EXPECT_EQ(cards.announced + header.announced, 0) << "who follows says nothing";

    turnWheel(*cards.viewport(), {0, -120});
    EXPECT_GT(cards.contentOrigin().y(), 40);
    EXPECT_EQ(timeline.contentOrigin(), QPoint(300, cards.contentOrigin().y()));
    EXPECT_EQ(header.contentOrigin(), QPoint(300, 0));
    turnWheel(*header.viewport(), {-120, 0});
    EXPECT_GT(header.contentOrigin().x(), 300);
    EXPECT_EQ(timeline.contentOrigin().x(), header.contentOrigin().x());
    EXPECT_EQ(cards.contentOrigin().x(), 0);
    const auto x = timeline.contentOrigin().x();
    turnWheel(*timeline.viewport(), {0, -120}, Qt::ShiftModifier);
    EXPECT_GT(timeline.contentOrigin().x(), x) << "sideways";
    const auto before = timeline.contentOrigin();
    turnWheel(*timeline.viewport(), {0, -120}, Qt::ControlModifier);
    EXPECT_EQ(timeline.contentOrigin(), before) << "that zooms";

    header.pauseSync();
    timeline.setContentOrigin({700, 0});
    EXPECT_NE(header.contentOrigin().x(), 700);
    header.resumeSync();
    timeline.setContentOrigin({710, 0});
    EXPECT_EQ(header.contentOrigin().x(), 710);
    timeline.stopSync();
    header.setContentOrigin({100, 0});
    EXPECT_EQ(timeline.contentOrigin().x(), 710);
}

TEST_F(SynchronisedScrollingTest, partnersReachAsFarDespiteScrollBars)
{
    QCoreApplication::processEvents();
    ASSERT_GT(timeline.verticalScrollBar()->width(), 0);
    const QPoint end(timeline.horizontalScrollBar()->maximum(),
                     timeline.verticalScrollBar()->maximum());
    timeline.setContentOrigin(end);
    EXPECT_EQ(header.contentOrigin().x(), end.x());
    EXPECT_EQ(cards.contentOrigin().y(), end.y());
    EXPECT_EQ(cards.verticalScrollBar()->maximum(), end.y());

    const auto height = cards.viewport()->height();
    timeline.resize(200, 60);
    QCoreApplication::processEvents();
    EXPECT_EQ(cards.viewport()->height(), height - 40) << "something else stands below it";
    timeline.setContentOrigin({0, 1000});
    EXPECT_EQ(cards.contentOrigin().y(), timeline.contentOrigin().y());
    for (auto* const view : {&cards, &timeline}) {
        view->resize(200, 120);
        QCoreApplication::processEvents();
    }
    EXPECT_EQ(cards.viewport()->height(), height + 20);
    cards.hide();
    timeline.resize(200, 300);
    QCoreApplication::processEvents();
    EXPECT_GT(timeline.viewport()->height(), 250);
}

TEST_F(SynchronisedScrollingTest, aPartnerMayGo)
{
    {
        View other;
        timeline.setHorizontalSyncScrollView(&other);
    }
    EXPECT_EQ(timeline.horizontalSyncScrollView(), nullptr);
    timeline.setContentOrigin({50, 0});
    timeline.stopSync();
}

TEST_F(SynchronisedScrollingTest, theAnimationMovesBothViewsAndLeavesThemInStepHoweverItEnds)
{
    HorizontalScrollAnimation animation(timeline, header);
    animation.scrollTo(600);
    EXPECT_TRUE(header.isSyncPaused());
    animation.setCurrentTime(500);
    EXPECT_EQ(timeline.contentOrigin().x(), 300) << "half of the way at half of the time";
    EXPECT_EQ(header.contentOrigin().x(), 300);
    animation.setCurrentTime(1000);
    EXPECT_EQ(animation.state(), QAbstractAnimation::Stopped);
    EXPECT_EQ(timeline.contentOrigin().x(), 600);
    EXPECT_FALSE(header.isSyncPaused());

    animation.scrollTo(0);
    animation.setCurrentTime(500);
    animation.scrollTo(1e9);
    EXPECT_TRUE(header.isSyncPaused()) << "a second one takes over";
    animation.setCurrentTime(1000);
    EXPECT_EQ(timeline.contentOrigin().x(), timeline.horizontalScrollBar()->maximum());

    animation.scrollTo(0);
    animation.setCurrentTime(300);
    turnWheel(*timeline.viewport(), {-120, 0});
    EXPECT_EQ(animation.state(), QAbstractAnimation::Stopped) << "the person's hand wins";
    EXPECT_FALSE(header.isSyncPaused());
    EXPECT_EQ(header.contentOrigin().x(), timeline.contentOrigin().x());
    {
        HorizontalScrollAnimation brief(timeline, header);
        brief.scrollTo(20);
        EXPECT_TRUE(header.isSyncPaused());
    }
    EXPECT_FALSE(header.isSyncPaused());
}
