#include "widgets/NSPopover.h"

#include "widgets/NSPopoverDelegate.h"
#include "widgets/PopoverBody.h"
#include "widgets/PopoverFrame.h"

#include <QAccessible>
#include <QApplication>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMenuBar>
#include <QNativeGestureEvent>
#include <QPointingDevice>
#include <QProxyStyle>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QWindow>
#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>

namespace {

/// Counts the events that reach it.
class Ground : public QWidget
{
public:
    std::map<QEvent::Type, int> count;
    /// What else happens then.
    std::map<QEvent::Type, std::function<void()>> on;

protected:
    bool event(QEvent* event) override
    {
        ++count[event->type()];
        if (const auto reaction = on.find(event->type()); reaction != on.end()) {
            reaction->second();
        }
        return QWidget::event(event);
    }
};

/// Lets animations last as long as a test needs.
class MotionStyle : public QProxyStyle
{
public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override
    {
        const int usual = QProxyStyle::styleHint(hint, option, widget, data);
        return hint == SH_Widget_Animation_Duration ? duration : usual;
    }

    int duration = 0;
};

class NSPopoverTest : public testing::Test, public NSPopoverDelegate
{
protected:
    NSPopoverTest()
    {
        ground->resize(2000, 2000);
        ground->setStyle(&style);
        scrollView->setFrameShape(QFrame::NoFrame);
        scrollView->setWidget(ground);
        scrollView->setGeometry(0, 50, 600, 450);
        outsideField->setGeometry(0, 0, 100, 30);
        firstField->setFixedSize(100, 30);
        secondField->setFixedSize(100, 30);
        auto* const layout = new QHBoxLayout(content.get());
        layout->addWidget(firstField);
        layout->addWidget(secondField);
        popover->setDelegate(this);
        popover->setAccessibleName(QStringLiteral("Card"));
        window->resize(600, 500);
        window->show();
        outsideField->setFocus();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }

    void popoverWillShow(NSPopover& sender) override { note("willShow", false, sender); }
    void popoverDidShow(NSPopover& sender) override { note("didShow", true, sender); }
    bool popoverShouldClose(NSPopover& sender) override
    {
        note("shouldClose", true, sender);
        return mayClose;
    }
    void popoverDidClose(NSPopover& sender) override { note("didClose", false, sender); }
    std::optional<PopoverAnchor> popoverWillReposition(NSPopover& sender) override
    {
        return anchorNow ? anchorNow(sender) : std::nullopt;
    }

    void note(const std::string& call, bool isSeen, NSPopover& sender)
    {
        EXPECT_EQ(body() != nullptr, isSeen) << call;
        EXPECT_EQ(sender.isShown(), isSeen) << call;
        EXPECT_EQ(content && content->parent(), isSeen) << call;
        calls += call + ' ';
        if (const auto reaction = std::exchange(reactions[call], nullptr)) {
            reaction(sender);
        }
    }

    std::string takeCalls() { return std::exchange(calls, {}); }

    void show() { popover->showRelativeToRect(anchor, *ground, NSRectEdge::MaxY); }

    /// The popover's body while it is seen.
    PopoverBody* body() const
    {
        for (auto* const child : window ? window->children() : QObjectList()) {
            auto* const candidate = qobject_cast<PopoverBody*>(child);
            if (candidate && candidate->isVisible()) {
                return candidate;
            }
        }
        return nullptr;
    }

    /// The panel's place in the window. The null rectangle without a popover.
    QRect panel() const
    {
        constexpr int inset = PopoverFrame::bodyInset;
        return body() ? body()->geometry().adjusted(-inset, -inset, inset, inset) : QRect();
    }

    void press(const QPoint& point)
    {
        QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, point);
    }

    MotionStyle style;
    std::unique_ptr<Ground> window = std::make_unique<Ground>();
    QLineEdit* outsideField = new QLineEdit(window.get());
    QScrollArea* scrollView = new QScrollArea(window.get());
    Ground* ground = new Ground;
    std::unique_ptr<QWidget> content = std::make_unique<QWidget>();
    QLineEdit* firstField = new QLineEdit;
    QLineEdit* secondField = new QLineEdit;
    std::unique_ptr<NSPopover> popover = std::make_unique<NSPopover>(*content);

    QRect anchor{300, 100, 6, 6};
    bool mayClose = true;
    std::function<std::optional<PopoverAnchor>(NSPopover&)> anchorNow;
    /// Those since they were last taken, each with a space behind it.
    std::string calls;
    std::map<std::string, std::function<void(NSPopover&)>> reactions;
};

const std::string shown = "willShow didShow ";
const std::string asked = "shouldClose ";
const std::string closed = "didClose ";

} // namespace

TEST_F(NSPopoverTest, TheDelegateIsToldInOrderAndAskedOnlyWhenNobodyToldThePopoverToClose)
{
    popover->close();
    popover->performClose();
    popover->setPositioningRect(anchor);
    EXPECT_EQ(takeCalls(), "");
    show();
    show();
    EXPECT_EQ(takeCalls(), shown);
    auto* const dialog = QAccessible::queryAccessibleInterface(body());
    EXPECT_EQ(dialog->role(), QAccessible::Dialog);
    EXPECT_EQ(dialog->text(QAccessible::Name), QStringLiteral("Card"));
    mayClose = false;
    popover->performClose();
    EXPECT_TRUE(popover->isShown());
    EXPECT_EQ(takeCalls(), asked);
    popover->close();
    popover->close();
    EXPECT_EQ(takeCalls(), closed);
    EXPECT_TRUE(content->isHidden());
}

TEST_F(NSPopoverTest, OnlyAPressSomewhereElseInTheWindowClosesASemitransientPopover)
{
    show();
    takeCalls();
    mayClose = false;
    const auto shadow = panel().bottomLeft() + QPoint(30, 8);
    press(shadow);
    popover->setBehavior(NSPopover::Behavior::Semitransient);
    const auto arrow = QPoint(303, 50 + 106 + 6);
    for (const auto& inside :
         {arrow, panel().topLeft() + QPoint(3, 3), body()->geometry().topLeft() + QPoint(2, 2)}) {
        window->count.clear();
        press(inside);
        EXPECT_EQ(window->count[QEvent::MouseButtonPress], 0);
    }
    QWidget list(firstField, Qt::Popup);
    list.setAttribute(Qt::WA_NoMouseReplay);
    list.setGeometry(QRect(window->mapToGlobal(QPoint(0, 300)), QSize(50, 50)));
    list.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&list));
    QTest::mouseClick(list.windowHandle(), Qt::LeftButton, {}, {10, 10});
    press(shadow);
    EXPECT_FALSE(list.isVisible());
    EXPECT_EQ(takeCalls(), "");
    EXPECT_EQ(ground->count[QEvent::MouseButtonPress], 1);

    press(shadow);
    EXPECT_EQ(takeCalls(), asked);
    mayClose = true;
    QMenuBar bar(window.get());
    bar.addAction(QStringLiteral("Edit"));
    bar.setGeometry(0, 470, 600, 30);
    bar.show();
    QPushButton opener(window.get());
    opener.setGeometry(200, 0, 50, 30);
    opener.show();
    int openings = 0;
    QObject::connect(&opener, &QPushButton::clicked, window.get(), [&openings] { ++openings; });
    popover->setOpener(&opener);
    press({10, 485});
    press({225, 15});
    EXPECT_EQ(takeCalls(), "") << "no presses elsewhere";
    EXPECT_EQ(openings, 1);

    reactions["shouldClose"] = [this](NSPopover&) {
        EXPECT_EQ(ground->count[QEvent::MouseButtonPress], 3) << "already";
    };
    press(shadow);
    EXPECT_EQ(takeCalls(), asked + closed);
    EXPECT_EQ(ground->count[QEvent::MouseButtonPress], 3) << "once";

    show();
    takeCalls();
    ground->on[QEvent::MouseButtonPress] = [this] {
        popover->close();
        show();
    };
    press({500, 400});
    EXPECT_EQ(takeCalls(), closed + shown) << "what the press has opened stays";
}

TEST_F(NSPopoverTest, TheFocusComesInStaysInAndGoesBack)
{
    show();
    EXPECT_EQ(window->focusWidget(), firstField);
    for (auto* const next : {secondField, firstField}) {
        QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(window->focusWidget(), next);
    }
    QTest::keyClick(firstField, Qt::Key_Down);
    QTest::keyClick(firstField, Qt::Key_Escape);
    QNativeGestureEvent pinch(Qt::ZoomNativeGesture, QPointingDevice::primaryPointingDevice(), 2,
                              {}, {}, {}, 0.5, {});
    QCoreApplication::sendEvent(firstField, &pinch);
    EXPECT_EQ(window->count[QEvent::KeyPress] + window->count[QEvent::NativeGesture], 0);
    popover->close();
    EXPECT_EQ(window->focusWidget(), outsideField);

    reactions["didShow"] = [this](NSPopover&) {
        secondField->setFocus();
    };
    show();
    EXPECT_EQ(window->focusWidget(), secondField);
    outsideField->hide();
    popover->close();
    EXPECT_EQ(window->focusWidget(), window.get());

    outsideField->show();
    show();
    outsideField->setFocus();
    popover->close();
    EXPECT_EQ(window->focusWidget(), outsideField);

    QObject::connect(qApp, &QApplication::focusChanged, firstField, [this](QWidget* before) {
        if (before == firstField && firstField->isVisible()) {
            firstField->setFocus();
        }
    });
    show();
    popover->close();
    EXPECT_EQ(window->focusWidget(), outsideField) << "whatever the field wants";
}

TEST_F(NSPopoverTest, ItFollowsItsRectangleAndItsContentInsideTheWindow)
{
    show();
    const auto before = panel();
    popover->setPositioningRect({});
    EXPECT_EQ(panel(), before);
    popover->setPositioningRect(anchor.translated(20, 30));
    EXPECT_EQ(panel(), before.translated(20, 30));
    scrollView->horizontalScrollBar()->setValue(7);
    scrollView->verticalScrollBar()->setValue(9);
    EXPECT_EQ(panel(), before.translated(13, 21));

    firstField->setFixedWidth(180);
    const auto widened = before.translated(13, 21).adjusted(-40, 0, 40, 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return panel() == widened; }));
    EXPECT_EQ(firstField->width(), 180);

    scrollView->verticalScrollBar()->setValue(1500);
    EXPECT_EQ(panel().top(), 50 + PopoverPlacement::arrowLength) << "scrolled away";
    window->resize(200, 500);
    EXPECT_EQ(panel().left(), PopoverPlacement::windowMargin) << "too narrow";
    EXPECT_EQ(takeCalls(), shown);
}

TEST_F(NSPopoverTest, WhereItPointsIsAskedWheneverItIsPlaced)
{
    auto* const mark = new QWidget(ground);
    mark->setGeometry(anchor);
    show();
    const auto before = panel();
    anchorNow = [&](NSPopover&) {
        return PopoverAnchor{ground, mark->geometry(), NSRectEdge::MaxY};
    };
    mark->move(anchor.topLeft() + QPoint(20, 30));
    EXPECT_EQ(panel(), before);
    popover->reposition();
    EXPECT_EQ(panel(), before.translated(20, 30));
    scrollView->verticalScrollBar()->setValue(9);
    EXPECT_EQ(panel(), before.translated(20, 21));
    ground->on[QEvent::Resize] = [&] {
        mark->move(anchor.topLeft());
    };
    ground->resize(2100, 2000);
    EXPECT_EQ(panel(), before.translated(0, -9)) << "what lies in the view is in its place first";
    anchorNow = [&](NSPopover&) {
        return std::optional<PopoverAnchor>();
    };
    ground->on.clear();
    mark->move(0, 0);
    popover->reposition();
    EXPECT_EQ(panel(), before.translated(0, -9));

    anchorNow = [&](NSPopover&) {
        return PopoverAnchor{outsideField, outsideField->rect(), NSRectEdge::MaxX};
    };
    popover->reposition();
    EXPECT_GT(panel().left(), outsideField->geometry().right());
    const auto beside = panel();
    anchorNow = {};
    scrollView->takeWidget();
    delete ground;
    EXPECT_TRUE(popover->isShown()) << "no view of it any more";
    outsideField->move(10, 0);
    EXPECT_EQ(panel(), beside.translated(10, 0));

    QWidget otherWindow;
    anchorNow = [&](NSPopover& sender) {
        sender.reposition();
        outsideField->move(outsideField->x() + 10, 0);
        return PopoverAnchor{&otherWindow, otherWindow.rect(), NSRectEdge::MaxX};
    };
    takeCalls();
    popover->reposition();
    popover->reposition();
    EXPECT_EQ(takeCalls(), closed);
    for (const bool isDestroyed : {false, true}) {
        anchorNow = {};
        popover->showRelativeToRect({}, *outsideField, NSRectEdge::MaxX);
        anchorNow = [&](NSPopover& sender) {
            sender.close();
            if (isDestroyed) {
                popover.reset();
            }
            return PopoverAnchor{outsideField, outsideField->rect(), NSRectEdge::MaxX};
        };
        window->resize(window->width() + 10, 500);
        outsideField->move(outsideField->x() + 10, 0);
        EXPECT_EQ(takeCalls(), shown + closed);
    }
}

TEST_F(NSPopoverTest, WhatItDependsOnMayEndWhileItIsShown)
{
    show();
    scrollView->takeWidget();
    delete ground;
    EXPECT_EQ(takeCalls(), shown + closed);
    EXPECT_EQ(window->focusWidget(), outsideField);

    auto* const holder = new QWidget(window.get());
    auto* const heldField = new QLineEdit(holder);
    holder->show();
    heldField->setFocus();
    popover->showRelativeToRect({}, *heldField, NSRectEdge::MaxX);
    delete holder;
    EXPECT_EQ(takeCalls(), shown + closed);
    EXPECT_EQ(window->focusWidget(), window.get());

    popover->showRelativeToRect({}, *outsideField, NSRectEdge::MaxX);
    EXPECT_TRUE(panel().left() > outsideField->geometry().right());
    popover.reset();
    EXPECT_EQ(takeCalls(), shown);
    EXPECT_FALSE(body());
    EXPECT_FALSE(content->parent());

    for (const bool isWindowTheView : {false, true}) {
        window = std::make_unique<Ground>();
        window->resize(600, 500);
        window->show();
        popover = std::make_unique<NSPopover>(*content);
        popover->setDelegate(this);
        auto* const view = isWindowTheView ? window.get() : new QWidget(window.get());
        popover->showRelativeToRect(anchor, *view, NSRectEdge::MaxY);
        window.reset();
        EXPECT_EQ(takeCalls(), shown + closed);
    }

    window = std::make_unique<Ground>();
    window->show();
    popover->showRelativeToRect({}, *window, NSRectEdge::MaxY);
    content.reset();
    EXPECT_EQ(takeCalls(), shown + closed);
    EXPECT_THROW(popover->showRelativeToRect({}, *window, NSRectEdge::MaxY), std::logic_error);
}

TEST_F(NSPopoverTest, TheDelegateMayDoAnythingWhileItIsCalled)
{
    const auto close = [](NSPopover& sender) {
        sender.close();
    };
    reactions["willShow"] = close;
    show();
    EXPECT_EQ(takeCalls(), "willShow didClose ");
    reactions["didShow"] = close;
    show();
    EXPECT_EQ(takeCalls(), shown + closed);

    reactions["shouldClose"] = [](NSPopover& sender) {
        sender.performClose();
        sender.close();
    };
    reactions["didClose"] = [this](NSPopover& sender) {
        sender.setPositioningRect(anchor);
        sender.performClose();
        sender.close();
        show();
    };
    show();
    popover->performClose();
    EXPECT_EQ(takeCalls(), shown + asked + closed);
    EXPECT_FALSE(popover->isShown());

    // A field's text is committed when the field loses the focus.
    QObject::connect(firstField, &QLineEdit::editingFinished, popover.get(), &NSPopover::close);
    reactions["didClose"] = [this](NSPopover&) {
        popover.reset();
    };
    show();
    popover->setBehavior(NSPopover::Behavior::Semitransient);
    press({10, 490});
    EXPECT_EQ(takeCalls(), shown + asked + closed);
    EXPECT_FALSE(popover);
}

TEST_F(NSPopoverTest, AnAnimatedPopoverTakesKeysAtOnceAndIsShownAtTheEnd)
{
    popover->setAnimates(true);
    style.duration = 60;
    show();
    QTest::keyClicks(window->focusWidget(), QStringLiteral("12"));
    EXPECT_EQ(firstField->text(), QStringLiteral("12"));
    EXPECT_EQ(takeCalls(), "willShow ");
    EXPECT_TRUE(QTest::qWaitFor([this] { return takeCalls() == "didShow "; }));

    const auto place = panel();
    popover->setPositioningRect(anchor.translated(40, 0));
    EXPECT_NE(panel(), place.translated(40, 0));
    EXPECT_TRUE(QTest::qWaitFor([&] { return panel() == place.translated(40, 0); }));
    popover->setPositioningRect(anchor);
    scrollView->verticalScrollBar()->setValue(1);
    EXPECT_EQ(panel(), place.translated(0, -1)) << "what scrolls is followed without delay";
    popover->close();
    EXPECT_EQ(takeCalls(), closed);

    show();
    popover->close();
    style.duration = 0;
    show();
    EXPECT_EQ(takeCalls(), "willShow " + closed + shown);
}

TEST_F(NSPopoverTest, TypingDoesNotPaintWhatIsBehind)
{
    show();
    QCoreApplication::processEvents();
    ground->count.clear();
    QTest::keyClicks(firstField, QStringLiteral("123"));
    QCoreApplication::processEvents();
    EXPECT_EQ(ground->count[QEvent::Paint], 0);
}

TEST(PopoverFrameTest, TheBorderIsAsSharpAsTheDeviceAndTheCornersLeaveRoomForABody)
{
    QWidget window;
    PopoverFrame frame(window);
    for (const auto edge :
         {NSRectEdge::MinX, NSRectEdge::MinY, NSRectEdge::MaxX, NSRectEdge::MaxY}) {
        const PopoverPlacement placement{QRect(101, 103, 81, 77), edge, 40};
        frame.arrange(placement);
        const auto insideArrow = (placement.arrowTip() * 3 + placement.panel.center()) / 4;
        EXPECT_TRUE(frame.outline().contains(insideArrow - frame.pos()));
        EXPECT_FALSE(frame.outline().contains(placement.panel.topLeft() - frame.pos()));
    }
    constexpr QPoint inset(PopoverFrame::bodyInset, PopoverFrame::bodyInset);
    const QPointF corner = QPoint(101, 103) - frame.pos();
    for (const double ratio : {1.0, 1.25, 1.5, 2.0}) {
        QImage image((QSizeF(frame.size()) * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(ratio);
        image.fill(Qt::transparent);
        frame.render(&image, {}, {}, {});
        EXPECT_EQ(image.pixelColor(((corner + inset) * ratio).toPoint()),
                  PopoverFrame::panelColor());
        // Down through the border. The rasteriser rounds to parts of a pixel that nobody sees.
        int thickness = 0;
        for (int y = 0; y < image.height() / 2; ++y) {
            const auto color = image.pixelColor(qRound((corner.x() + 20) * ratio), y);
            const bool isSolid = color == PopoverFrame::panelColor() || color.red() < 165;
            EXPECT_TRUE(isSolid && (color.alpha() < 50 || color.alpha() > 250)) << ratio;
            thickness += color.alpha() > 250 && color.red() < 165 ? 1 : 0;
        }
        EXPECT_EQ(thickness, ratio < 2 ? 1 : 2) << ratio;
    }
}
