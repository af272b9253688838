#include "mainwindow/MainWindowController.h"

#include "mainwindow/CVCardTableView.h"
#include "store/NSArrayController.h"
#include "tests/support/CardStore.h"
#include "tests/support/Utc.h"
#include "tests/support/WindowHost.h"
#include "timeline/CVTimelineHeaderView.h"
#include "timeline/CVTimelineScrollView.h"
#include "timeline/CVTimelineTableView.h"
#include "widgets/SplitView.h"

#include <QAccessible>
#include <QAction>
#include <QImage>
#include <QLabel>
#include <QMenu>
#include <QNativeGestureEvent>
#include <QPointingDevice>
#include <QScrollBar>
#include <QSlider>
#include <QTest>
#include <QVariantAnimation>
#include <QWheelEvent>
#include <gtest/gtest.h>

#include <limits>
#include <memory>

namespace {

class MainWindowControllerTest : public testing::Test
{
protected:
    /// A window on the store as it is now, settled.
    MainWindowController& open()
    {
        store.save();
        controller.reset();
        controller = std::make_unique<MainWindowController>(host);
        controller->showWindow();
        settle();
        return *controller;
    }
    void settle()
    {
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&controller->window()));
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
    /// Three cards over two years.
    void fill()
    {
        first = &store.insertCard(QStringLiteral("Aurora"));
        second = &store.insertCard(QStringLiteral("Borealis"));
        empty = &store.insertCard(QStringLiteral("Calypso"));
        for (unsigned month = 1; month <= 12; ++month) {
            store.insertStatement(first, utc(2015, month, 3), {"100", "1000", "10"});
            store.insertStatement(second, utc(2016, month, 3), {"700", "1000", "50"});
        }
    }

    template <typename Widget>
    Widget& find(const char* name)
    {
        return *controller->window().findChild<Widget*>(QString::fromLatin1(name));
    }
    CVTimelineScrollView& scrollView() { return find<CVTimelineScrollView>("timelineScrollView"); }
    CVTimelineTableView& timeline() { return find<CVTimelineTableView>("timelineTableView"); }
    CVCardTableView& list() { return find<CVCardTableView>("cardsTableView"); }
    QAction& item(const char* name) { return find<QAction>(name); }
    void wait()
    {
        auto* const animation = controller->window().findChild<QVariantAnimation*>();
        ASSERT_TRUE(animation);
        animation->setCurrentTime(animation->duration());
    }

    CardStore store;
    WindowHost host{store.context()};
    CVCard* first = nullptr;
    CVCard* second = nullptr;
    CVCard* empty = nullptr;
    std::unique_ptr<MainWindowController> controller;
};

} // namespace

TEST_F(MainWindowControllerTest, bothTablesShowTheSelectedCard)
{
    fill();
    open();
    EXPECT_EQ(controller->selectedCard(), first);
    EXPECT_EQ(timeline().selectedRow(), 0) << "from the start";
    QTest::mouseClick(&list(), Qt::LeftButton, {}, {20, 96 + 20});
    EXPECT_EQ(controller->selectedCard(), second);
    EXPECT_EQ(timeline().selectedRow(), 1);
    QTest::mouseClick(&timeline(), Qt::LeftButton, {}, {20, 20});
    EXPECT_EQ(controller->selectedCard(), first);
    EXPECT_EQ(controller->selectedRow(), 0);

    auto& statement = first->firstStatement();
    const auto dot = timeline().rectForStatement(statement).value().center().toPoint();
    QTest::mouseClick(&timeline(), Qt::LeftButton, {}, dot);
    EXPECT_EQ(controller->selectedStatement(), &statement);
    QTest::mouseClick(&list(), Qt::LeftButton, {}, {20, 96 + 20});
    EXPECT_EQ(controller->selectedStatement(), &statement) << "it may be another card's";
    controller->selectCardAndMakeVisible(*empty);
    EXPECT_EQ(controller->selectedRow(), 2);
    EXPECT_EQ(timeline().selectedRow(), 2);
    empty->setName(QStringLiteral("0"));
    store.context().processPendingChanges();
    EXPECT_EQ(controller->selectedCard(), empty);
    EXPECT_EQ(timeline().selectedRow(), 0) << "wherever its row goes";
    QTest::mouseClick(&timeline(), Qt::LeftButton, {}, {20, 96 * 4});
    EXPECT_EQ(controller->selectedStatement(), nullptr);
    EXPECT_EQ(controller->selectedCard(), empty);
}

TEST_F(MainWindowControllerTest, arrowKeysWalkAlongTheStatementsWithTheView)
{
    fill();
    open();
    controller->setScale(10);
    auto& window = controller->window();
    timeline().scrollPoint({0, 0});
    list().setFocus();
    QTest::keyClick(&list(), Qt::Key_Left);
    EXPECT_EQ(controller->selectedStatement(), first->lastStatement());
    wait();
    const QRectF visible = timeline().visibleRect();
    const auto rect = timeline().rectForStatement(*first->lastStatement()).value();
    EXPECT_NEAR(rect.center().x(), visible.center().x(), 1.0);
    EXPECT_EQ(find<CVSyncScrollView>("timelineHeaderScrollView").contentOrigin().x(), visible.x());
    QTest::keyClick(&window, Qt::Key_Right);
    EXPECT_EQ(controller->selectedStatement(), first->lastStatement()) << "the end";
    list().selectRow(1);
    QTest::keyClick(&timeline(), Qt::Key_Right);
    EXPECT_EQ(controller->selectedStatement(), &second->firstStatement());
    QTest::keyClick(&timeline(), Qt::Key_Right);
    EXPECT_EQ(controller->selectedStatement(), second->sortedStatements()[1]);
    QTest::keyClick(&timeline(), Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(controller->selectedStatement(), second->sortedStatements()[1]);
    store.context().deleteObject(*controller->selectedStatement());
    store.save();
    controller->selectPreviousStatement();
    EXPECT_EQ(controller->selectedStatement(), second->lastStatement())
        << "not after one that is gone";
    list().selectRow(2);
    controller->selectNextStatement();
    EXPECT_EQ(controller->selectedStatement(), nullptr);

    controller->setScale(10);
    timeline().scrollPoint({3000, 0});
    controller->makeStatementVisible(first->firstStatement());
    wait();
    EXPECT_EQ(scrollView().contentOrigin().x(), 0);
    timeline().scrollPoint({10, 0});
    controller->makeStatementVisible(*first->sortedStatements()[0]);
    EXPECT_EQ(scrollView().contentOrigin().x(), 10) << "in view already";
}

TEST_F(MainWindowControllerTest, zoomsByMenuWheelPinchAndControlAroundTheMiddle)
{
    fill();
    open();
    EXPECT_EQ(controller->scale(), 1.0);
    auto& slider = find<QSlider>("zoomSlider");
    controller->applyScaleMultiplier(&item("zoom4"));
    EXPECT_EQ(controller->scale(), 4.0);
    EXPECT_EQ(slider.value(), 40);
    EXPECT_EQ(timeline().timelineWidth(), scrollView().viewport()->width() * 4 - 3);
    EXPECT_EQ(find<CVTimelineHeaderView>("timelineHeaderView").width(), timeline().width());
    const int width = scrollView().viewport()->width();
    EXPECT_NEAR(scrollView().contentOrigin().x(), width * 1.5, 1.0);
    EXPECT_TRUE(controller->validateUserInterfaceItem(item("zoom4")));
    EXPECT_TRUE(item("zoom4").isChecked());
    controller->validateUserInterfaceItem(item("zoom2"));
    EXPECT_FALSE(item("zoom2").isChecked());

    const auto x = scrollView().contentOrigin().x();
    controller->setScale(4.0);
    EXPECT_EQ(scrollView().contentOrigin().x(), x);
    slider.setValue(80);
    EXPECT_EQ(controller->scale(), 8.0);
    EXPECT_NEAR(scrollView().contentOrigin().x(), width * 3.5, 2.0);
    controller->zoomIn();
    EXPECT_EQ(controller->scale(), 10.0);
    controller->zoomIn();
    EXPECT_EQ(controller->scale(), 10.0);
    controller->zoomOut();
    EXPECT_EQ(controller->scale(), 8.0);

    const QPointF place(500, 200);
    QNativeGestureEvent pinch(Qt::ZoomNativeGesture, QPointingDevice::primaryPointingDevice(), 2,
                              place, place, place, -0.1, QPointF());
    QCoreApplication::sendEvent(&controller->window(), &pinch);
    EXPECT_EQ(controller->scale(), 4.0);
    QWheelEvent notch({50, 50}, {50, 50}, {}, {0, 120}, Qt::NoButton, Qt::ControlModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(scrollView().viewport(), &notch);
    EXPECT_FALSE(notch.isAccepted()) << "it goes on to the window";
    QCoreApplication::sendEvent(&controller->window(), &notch);
    EXPECT_NEAR(controller->scale(), 4.8, 1e-6);
    controller->setScale(std::numeric_limits<double>::quiet_NaN());
    controller->setScale(std::numeric_limits<double>::infinity());
    EXPECT_NEAR(controller->scale(), 4.8, 1e-6);
    for (int pinches = 0; pinches < 20; ++pinches) {
        controller->magnifyWithEvent(-0.05);
    }
    EXPECT_EQ(controller->scale(), 1.0);
    EXPECT_EQ(scrollView().contentOrigin().x(), 0);
}

TEST_F(MainWindowControllerTest, controlAndThePageKeysGoToOtherMonthsFromEitherTable)
{
    fill();
    open();
    controller->setScale(10.0);
    for (QWidget* const table :
         {static_cast<QWidget*>(&list()), static_cast<QWidget*>(&timeline())}) {
        scrollView().setContentOrigin({0, 0});
        QTest::keyClick(table, Qt::Key_PageDown, Qt::ControlModifier);
        QTest::keyClick(table, Qt::Key_PageDown, Qt::ControlModifier);
        const int page = scrollView().horizontalScrollBar()->pageStep();
        EXPECT_EQ(scrollView().contentOrigin().x(), 2 * page);
        QTest::keyClick(table, Qt::Key_PageUp, Qt::ControlModifier);
        EXPECT_EQ(scrollView().contentOrigin().x(), page);
        EXPECT_EQ(controller->selectedCard(), first);
    }
}

TEST_F(MainWindowControllerTest, movedToAnotherScreenItIsDrawnAsIfItHadAlwaysBeenThere)
{
    fill();
    const auto drawn = [this](double ratio) {
        auto& window = controller->window();
        QImage image((QSizeF(window.size()) * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(ratio);
        window.render(&image);
        return image;
    };
    open();
    const auto fresh = drawn(1.5);
    open();
    for (const double otherRatio : {1.0, 2.0}) {
        drawn(otherRatio);
        EXPECT_EQ(drawn(1.5), fresh) << otherRatio;
    }
}

TEST_F(MainWindowControllerTest, theViewIsFoundAsItWasLeft)
{
    fill();
    open();
    controller->setScale(3.0);
    timeline().scrollPoint({400, 0});
    list().selectRow(2);
    find<SplitView>("splitView").setSizes({300, 900});
    controller->window().close();
    EXPECT_EQ(host.userDefaults().doubleForKey(u"scale"), 3.0);
    EXPECT_EQ(host.userDefaults().integerForKey(u"selectedCardIndex"), 2);

    open();
    EXPECT_EQ(controller->scale(), 3.0);
    EXPECT_EQ(scrollView().contentOrigin().x(), 400);
    EXPECT_EQ(find<CVSyncScrollView>("timelineHeaderScrollView").contentOrigin().x(), 400);
    EXPECT_EQ(controller->selectedRow(), 2);
    EXPECT_EQ(find<SplitView>("splitView").sizes().first(), 300);
    store.insertCard(QStringLiteral("A first one"));
    store.save();
    list().selectRow(0);
    store.context().deleteObject(*controller->selectedCard());
    store.save();
    EXPECT_EQ(controller->selectedRow(), 0) << "restored once, not at later changes";
}

TEST_F(MainWindowControllerTest, settingsThatMakeNoSenseLoseNothing)
{
    fill();
    auto& defaults = host.userDefaults();
    struct Row
    {
        const char* name;
        QByteArray scale;
        QByteArray offset;
        QByteArray index;
        double restoredScale;
    };
    const Row rows[] = {
        {"absent", {}, {}, {}, 1.0},           {"text", "much", "far", "none", 1.0},
        {"negative", "-3", "-400", "-1", 1.0}, {"infinite", "inf", "-inf", "nan", 1.0},
        {"beyond", "1e9", "1e300", "99", 1e9}, {"not found", "0", "0", "9223372036854775807", 1.0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        defaults.setByteArray(row.scale, u"scale");
        defaults.setByteArray(row.offset, u"offset.x");
        defaults.setByteArray(row.offset, u"offset.y");
        defaults.setByteArray(row.index, u"selectedCardIndex");
        defaults.setByteArray(row.scale, u"windowFrame");
        defaults.setByteArray(row.offset, u"splitView");
        open();
        EXPECT_EQ(controller->scale(), row.restoredScale);
        EXPECT_EQ(controller->selectedRow(), 0);
        controller->window().grab();
        controller->applyScaleMultiplier(&item("zoom1"));
        EXPECT_EQ(timeline().timelineWidth(), scrollView().viewport()->width() - 3);
        EXPECT_GE(list().width(), 200);
    }
}

TEST_F(MainWindowControllerTest, anEmptyStoreInvitesAndKeepsItsZoom)
{
    host.userDefaults().setDouble(4.0, u"scale");
    open();
    EXPECT_TRUE(find<QLabel>("invitationTitle").isVisible());
    EXPECT_EQ(find<QLabel>("invitationTitle").text(), QStringLiteral("No cards yet"));
    EXPECT_EQ(controller->scale(), 0.0);
    EXPECT_FALSE(controller->canScale());
    EXPECT_FALSE(controller->canAddStatement());
    EXPECT_FALSE(find<QSlider>("zoomSlider").isEnabled());

    auto& card = store.insertCard(QStringLiteral("First"));
    store.context().processPendingChanges();
    EXPECT_EQ(find<QLabel>("invitationTitle").text(), QStringLiteral("No statements yet"));
    EXPECT_TRUE(controller->window().isWindowModified());
    EXPECT_TRUE(controller->canAddStatement());
    store.insertStatement(&card, utc(2015, 1, 3), {"100", "1000", "10"});
    store.save();
    EXPECT_FALSE(find<QLabel>("invitationTitle").isVisible());
    EXPECT_TRUE(find<QSlider>("zoomSlider").isEnabled());
    EXPECT_FALSE(controller->window().isWindowModified());
    EXPECT_EQ(timeline().timelineWidth(), scrollView().viewport()->width() - 3);
}

TEST_F(MainWindowControllerTest, aCardWithoutANameIsCalledSoButKeepsItsPlace)
{
    fill();
    store.insertCard(QString());
    open();
    for (QWidget* const table :
         {static_cast<QWidget*>(&list()), static_cast<QWidget*>(&timeline())}) {
        auto* const rows = QAccessible::queryAccessibleInterface(table);
        EXPECT_EQ(rows->child(0)->text(QAccessible::Name), QStringLiteral("Unnamed card"));
        EXPECT_EQ(rows->child(1)->text(QAccessible::Name), QStringLiteral("Aurora"));
    }
}

TEST_F(MainWindowControllerTest, theListOfCardsCanBeShutAndOpenedAgain)
{
    fill();
    open();
    controller->toggleCardList();
    EXPECT_TRUE(find<SplitView>("splitView").isPaneCollapsed(0));
    controller->validateUserInterfaceItem(item("toggleCardList"));
    EXPECT_FALSE(item("toggleCardList").isChecked());
    controller->window().close();
    open();
    EXPECT_TRUE(find<SplitView>("splitView").isPaneCollapsed(0));
    controller->toggleCardList();
    EXPECT_GE(list().width(), 200);
}

TEST_F(MainWindowControllerTest, theUpdateCheckStandsThirdInTheApplicationsMenu)
{
    open();
    const auto items = controller->window().applicationMenu()->actions();
    ASSERT_EQ(items.size(), 5);
    EXPECT_EQ(items[0]->objectName(), QStringLiteral("about"));
    EXPECT_TRUE(items[1]->isSeparator());
    EXPECT_EQ(items[2]->objectName(), QStringLiteral("checkForUpdates"));
    EXPECT_TRUE(items[3]->isSeparator());
    EXPECT_EQ(items[4]->objectName(), QStringLiteral("terminate"));
}
