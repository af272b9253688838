#include "widgets/PanelStyle.h"

#include <QImage>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyleOptionSlider>
#include <QTest>
#include <gtest/gtest.h>

#include <limits>

namespace {

constexpr int smallest = std::numeric_limits<int>::min();
constexpr int largest = std::numeric_limits<int>::max();

QStyleOptionSlider scrollBar(Qt::Orientation orientation, int length)
{
    QStyleOptionSlider option;
    option.orientation = orientation;
    option.rect = orientation == Qt::Horizontal ? QRect(7, 3, length, 12) : QRect(7, 3, 12, length);
    option.subControls = QStyle::SC_All;
    option.state = QStyle::State_Enabled;
    return option;
}

} // namespace

TEST(PanelStyleTest, AThumbLiesInsideItsTrackWhateverTheRange)
{
    struct Row
    {
        const char* name;
        int length;
        int minimum;
        int maximum;
        int page;
        int value;
        int start;
        int thumb;
    };
    const PanelStyle style;
    for (const auto& row :
         {Row{"half is in view, at the start", 200, 0, 100, 100, 0, 0, 100},
          Row{"half is in view, at the end", 200, 0, 100, 100, 100, 100, 100},
          Row{"nothing to scroll", 200, 5, 5, 100, 5, 0, 0},
          Row{"a step of one", 200, 0, 1, 100, 1, 2, 198},
          Row{"a huge document", 200, 0, largest, 100, largest, 176, 24},
          Row{"the widest range there is", 200, smallest, largest, largest, largest, 134, 66},
          Row{"a value beyond the range", 200, 0, 100, 100, 5000, 100, 100},
          Row{"a page of no size", 200, 0, 100, -3, 100, 176, 24},
          Row{"a track shorter than a thumb", 10, 0, 1000, 10, 500, 0, 10},
          Row{"a track of no length", 0, 0, 100, 100, 50, 0, 0}}) {
        for (const auto orientation : {Qt::Horizontal, Qt::Vertical}) {
            for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
                auto bar = scrollBar(orientation, row.length);
                bar.direction = direction;
                bar.minimum = row.minimum;
                bar.maximum = row.maximum;
                bar.pageStep = row.page;
                bar.sliderPosition = row.value;
                const auto part = [&](QStyle::SubControl control) {
                    return style.subControlRect(QStyle::CC_ScrollBar, &bar, control, nullptr);
                };
                const auto thumb = part(QStyle::SC_ScrollBarSlider);
                const bool isHorizontal = orientation == Qt::Horizontal;
                EXPECT_EQ(isHorizontal ? thumb.width() : thumb.height(), row.thumb) << row.name;
                const int before =
                    isHorizontal ? thumb.left() - bar.rect.left() : thumb.top() - bar.rect.top();
                const bool isMirrored = isHorizontal && direction == Qt::RightToLeft;
                EXPECT_EQ(isMirrored ? row.length - row.thumb - before : before, row.start)
                    << row.name;
                const auto pages =
                    part(QStyle::SC_ScrollBarSubPage) | part(QStyle::SC_ScrollBarAddPage);
                EXPECT_EQ((pages | thumb).isEmpty() ? bar.rect : pages | thumb, bar.rect)
                    << row.name;
                EXPECT_TRUE(part(QStyle::SC_ScrollBarAddLine).isEmpty());
            }
        }
    }
}

TEST(PanelStyleTest, AClickBesideTheThumbTurnsAPage)
{
    PanelStyle style;
    QScrollBar bar(Qt::Vertical);
    bar.setStyle(&style);
    bar.resize(12, 300);
    bar.setRange(0, 1000);
    bar.setPageStep(100);
    QTest::mouseClick(&bar, Qt::LeftButton, {}, QPoint(6, 299));
    EXPECT_EQ(bar.value(), 100);
    QTest::mouseClick(&bar, Qt::LeftButton, {}, QPoint(6, 0));
    EXPECT_EQ(bar.value(), 0);
}

TEST(PanelStyleTest, ThumbsStandOutOnDarkAndOnLightGround)
{
    const PanelStyle style;
    for (const auto& ground : {QColor(0x3A, 0x3A, 0x3A), QColor(0xEF, 0xEF, 0xEF)}) {
        auto bar = scrollBar(Qt::Vertical, 100);
        bar.palette.setColor(QPalette::Window, ground);
        bar.maximum = 100;
        bar.pageStep = 100;
        QImage image(30, 120, QImage::Format_RGB32);
        const auto contrast = [&](QStyle::State state) {
            bar.state = state;
            bar.activeSubControls = QStyle::SC_ScrollBarSlider;
            QPainter painter(&image);
            style.drawComplexControl(QStyle::CC_ScrollBar, &bar, &painter, nullptr);
            EXPECT_LT(qAbs(image.pixelColor(13, 95).lightness() - ground.lightness()), 12);
            return qAbs(image.pixelColor(13, 30).lightness() - ground.lightness());
        };
        EXPECT_GT(contrast({}), 15);
        EXPECT_GT(contrast(QStyle::State_Enabled), 45);
        EXPECT_GT(contrast(QStyle::State_Enabled | QStyle::State_Sunken),
                  contrast(QStyle::State_Enabled));
    }
}

TEST(PanelStyleTest, MnemonicsAreUnderlinedWhileAltIsHeld)
{
    PanelStyle style;
    QObject receiver;
    const auto isUnderlinedAfter = [&](QEvent::Type type, int key, Qt::KeyboardModifiers held) {
        QKeyEvent event(type, key, held);
        EXPECT_FALSE(style.eventFilter(&receiver, &event));
        return style.styleHint(QStyle::SH_UnderlineShortcut, nullptr, nullptr, nullptr) != 0;
    };
    EXPECT_FALSE(isUnderlinedAfter(QEvent::KeyPress, Qt::Key_F, {}));
    EXPECT_TRUE(isUnderlinedAfter(QEvent::KeyPress, Qt::Key_Alt, {}));
    EXPECT_TRUE(isUnderlinedAfter(QEvent::KeyPress, Qt::Key_F, Qt::AltModifier));
    EXPECT_FALSE(isUnderlinedAfter(QEvent::KeyRelease, Qt::Key_Meta, Qt::AltModifier));
    EXPECT_TRUE(isUnderlinedAfter(QEvent::KeyPress, Qt::Key_Alt, {}));
    EXPECT_FALSE(isUnderlinedAfter(QEvent::KeyPress, Qt::Key_F, {})) << "released elsewhere";
}
