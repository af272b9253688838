#include "widgets/NoticeBar.h"

#include "widgets/AccessibleAnnouncements.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>
#include <gtest/gtest.h>

#include <utility>

namespace {

const auto deleted = QStringLiteral("Deleted Northgate Store and its 14 statements.");
const auto failed =
    QStringLiteral("The statement of Northgate Store of 14 November could not be saved: there is "
                   "no space left on the disk that holds your cards and statements.");

class NoticeBarTest : public testing::Test
{
protected:
    NoticeBarTest()
    {
        auto* const layout = new QVBoxLayout(&window);
        layout->addWidget(field);
        layout->addWidget(bar);
        layout->addWidget(lastField);
        window.resize(400, 200);
        window.show();
        field->setFocus();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        QObject::connect(bar, &NoticeBar::actionTriggered, bar, [this] { heard += u'!'; });
        QObject::connect(bar, &NoticeBar::dismissed, bar, [this] { heard += u'x'; });
    }
    void press(Qt::Key key) { QTest::keyClick(window.focusWidget(), key); }
    QString nameOfFocus()
    {
        return QAccessible::queryAccessibleInterface(window.focusWidget())->text(QAccessible::Name);
    }

    QWidget window;
    QLineEdit* field = new QLineEdit;
    NoticeBar* bar = new NoticeBar;
    QLineEdit* lastField = new QLineEdit;
    QString heard;
};

} // namespace

TEST_F(NoticeBarTest, ItIsThereWhileThereIsANoticeAndGivesTheFocusBack)
{
    EXPECT_FALSE(bar->isVisible());
    bar->showNotice(deleted, QStringLiteral("Undo"));
    EXPECT_TRUE(bar->isVisible() && bar->isShowingNotice());
    EXPECT_EQ(window.focusWidget(), field) << "nobody is interrupted";
    press(Qt::Key_Tab);
    EXPECT_EQ(nameOfFocus(), QStringLiteral("Undo"));
    press(Qt::Key_Return);
    EXPECT_EQ(std::exchange(heard, {}), u"!");
    EXPECT_TRUE(bar->isShowingNotice());
    bar->showNotice(failed, QString());
    EXPECT_EQ(nameOfFocus(), QStringLiteral("Dismiss")) << "its button is gone";
    press(Qt::Key_Return);
    EXPECT_EQ(std::exchange(heard, {}), u"x");
    EXPECT_FALSE(bar->isVisible() || bar->isShowingNotice());
    EXPECT_EQ(window.focusWidget(), field);

    bar->showNotice(deleted, QString());
    press(Qt::Key_Tab);
    field->hide();
    bar->clearNotice();
    EXPECT_EQ(window.focusWidget(), lastField);
    EXPECT_EQ(heard, QString()) << "the person pressed nothing";
}

TEST_F(NoticeBarTest, TheBarMayEndWithTheFocusInIt)
{
    bar->showNotice(deleted, QStringLiteral("Undo"));
    press(Qt::Key_Tab);
    ASSERT_EQ(nameOfFocus(), QStringLiteral("Undo"));
    delete bar;
}

TEST_F(NoticeBarTest, EachNoticeIsAnnounced)
{
    static QStringList announced;
    AccessibleAnnouncements::setListener([](QAccessibleEvent& event) {
        announced.append(event.accessibleInterface()->text(QAccessible::Name));
    });
    bar->showNotice(deleted, QString());
    auto* const notice = QAccessible::queryAccessibleInterface(bar);
    EXPECT_EQ(notice->role(), QAccessible::Notification);
    EXPECT_EQ(notice->text(QAccessible::Name), deleted);
    bar->showNotice(failed, QString());
    EXPECT_EQ(announced, QStringList{failed}) << "Qt tells of the first, which came with the bar";
    AccessibleAnnouncements::setListener(nullptr);
}

TEST_F(NoticeBarTest, ALongTextTakesTwoLinesAndKeepsOutOfTheButtons)
{
    bar->showNotice(deleted, QString());
    window.layout()->activate();
    const int height = bar->height();
    EXPECT_EQ(bar->toolTip(), QString());
    for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        window.setLayoutDirection(direction);
        bar->showNotice(failed, QStringLiteral("Save Again"));
        window.layout()->activate();
        EXPECT_EQ(bar->toolTip(), failed) << "shortened";
        EXPECT_LE(bar->height(), height + bar->fontMetrics().lineSpacing());
        // What is drawn is in the text's half of the bar, on plain ground.
        bar->setPalette(Qt::white);
        auto picture = bar->grab().toImage();
        const bool isMirrored = direction == Qt::RightToLeft;
        picture = picture.mirrored(isMirrored, false);
        const auto buttons = bar->findChildren<QAbstractButton*>();
        int firstButton = picture.width();
        for (const auto* const button : buttons) {
            const auto place = button->geometry();
            firstButton =
                std::min(firstButton, isMirrored ? bar->width() - 1 - place.right() : place.left());
        }
        int lastInk = 0;
        for (int x = 0; x < firstButton; ++x) {
            for (int y = 0; y < picture.height(); ++y) {
                lastInk = qGray(picture.pixel(x, y)) < 128 ? x : lastInk;
            }
        }
        EXPECT_GT(lastInk, firstButton / 2) << direction;
        EXPECT_LE(lastInk, firstButton - 8) << direction;
    }
    window.resize(900, 200);
    window.layout()->activate();
    EXPECT_EQ(bar->toolTip(), QString()) << "there is room now";
}
