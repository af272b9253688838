#include "foundation/Log.h"
#include "tests/support/CardStore.h"
#include "tests/support/Utc.h"
#include "timeline/CVAdditions.h"
#include "timeline/CVTimelineData.h"
#include "timeline/CVTimelineHeaderView.h"
#include "timeline/TimelineHeaderLabels.h"

#include <QImage>
#include <gtest/gtest.h>

namespace {

using TimelineHeaderLabels::monthTitles;
using TimelineHeaderLabels::yearLabels;

class TimelineHeaderTest : public testing::Test
{
protected:
    void store(Instant first, Instant last)
    {
        m_store.insertStatement(&m_card, first);
        m_store.insertStatement(&m_card, last);
        m_store.save();
        m_header.setManagedObjectContext(&m_store.context());
    }

    CVTimelineData axis(double width)
    {
        CVTimelineData data;
        data.calculateTimelineWithContext(m_store.context(), QRectF(0, 0, width, 38));
        return data;
    }

    QImage drawn(int width, double ratio = 1)
    {
        m_header.resize(width, 38);
        QImage image((QSizeF(m_header.size()) * ratio).toSize(), QImage::Format_RGB32);
        image.setDevicePixelRatio(ratio);
        m_header.render(&image, {}, {}, QWidget::DrawChildren);
        return image;
    }

    CardStore m_store;
    CVCard& m_card = m_store.insertCard(QStringLiteral("Everyday"));
    CVTimelineHeaderView m_header;
};

/// In a font whose letters and digits are all 6 points wide.
double widthOf(const QString& text)
{
    return 6.0 * double(text.size());
}

std::string textOf(const std::vector<TimelineHeaderLabels::Label>& labels)
{
    QStringList texts;
    for (const auto& label : labels) {
        texts.append(label.text);
    }
    return texts.join(u' ').toStdString();
}

} // namespace

TEST_F(TimelineHeaderTest, LabelsFallBackTogether)
{
    const std::vector<std::tuple<const char*, double, const char*, const char*>> rows = {
        {"all fit", 321, "2013 2014", "September October November December January"},
        {"September does not", 315, "2013 2014", "Sep Oct Nov Dec Jan"},
        {"the shorter year does not", 136, "13 14", "Sep Oct Nov Dec Jan"},
        {"nor do the shorter months", 131, "13 14", "09 10 11 12 01"},
        {"nor do their numbers", 101, "13 14", ""},
        {"nothing fits", 96, "", ""},
        {"no room at all", 16, "", ""},
        {"less than none", 3, "", ""},
    };
    store(utc(2013, 9, 1), utc(2014, 1, 31));
    for (const auto& [name, width, years, months] : rows) {
        const QRectF all(0, 0, width, 38);
        EXPECT_EQ(textOf(yearLabels(axis(width), all, widthOf)), years) << name;
        EXPECT_EQ(textOf(monthTitles(axis(width), all, widthOf)), months) << name;
    }
    store(utc(2010, 1, 1), utc(2014, 12, 31));
    const QRectF october2010(560, 0, 30, 38);
    EXPECT_EQ(textOf(monthTitles(axis(3666), october2010, widthOf)), "October");
    const auto nothing = [](const QString& /*text*/) {
        return 0.0;
    };
    EXPECT_EQ(textOf(monthTitles(axis(216), october2010, nothing)), "") << "months of 3 points";
    EXPECT_EQ(textOf(yearLabels(axis(216), QRectF(0, 0, 88, 38), nothing)), "2010 2011");
}

TEST_F(TimelineHeaderTest, AYearScrolledOutInPartKeepsItsLabelInView)
{
    store(utc(2010, 1, 1), utc(2011, 12, 31));
    // Each year is 500 points wide: from 9 to 509, and on to 1009.
    const auto labels = yearLabels(axis(1016), QRectF(300, 0, 400, 30), widthOf);
    ASSERT_EQ(textOf(labels), "2010 2011");
    EXPECT_EQ(labels[0].rect, QRectF(302, 0, 204, 15));
    EXPECT_EQ(labels[1].rect, QRectF(511, 0, 186, 15));
    const auto leaving = yearLabels(axis(1016), QRectF(490, 0, 30, 30), widthOf);
    ASSERT_EQ(textOf(leaving), "2010 2011");
    EXPECT_EQ(leaving[0].horizontalAlignment, Qt::AlignRight) << "its end is what stays";
    EXPECT_EQ(leaving[1].horizontalAlignment, Qt::AlignLeft);

    QWidget window;
    QWidget viewport(&window);
    auto* const header = new CVTimelineHeaderView(&viewport);
    window.resize(370, 200);
    viewport.setGeometry(100, 50, 300, 38);
    header->setGeometry(-50, 0, 900, 38);
    EXPECT_EQ(header->visibleRect(), QRect(50, 0, 270, 38));
}

TEST_F(TimelineHeaderTest, DrawsTicksWithADotAtTheirFeet)
{
    store(utc(2012, 11, 5), utc(2013, 2, 5));
    for (const double ratio : {1.0, 1.25, 1.5, 2.0}) {
        const auto pixel = [&](double points) {
            return int(points * ratio + 0.5);
        };
        const int thickness = ratio < 2 ? 1 : 2;
        for (const int width : {416, 24}) {
            const QImage image = drawn(width, ratio);
            const auto ticks = axis(width).tickOffsets();
            for (const auto& [offset, isYear] : {ticks[1], ticks[2], ticks[3]}) {
                const int top = pixel(isYear ? 2 : 19);
                for (int aside = -1; aside <= thickness; ++aside) {
                    const int x = pixel(offset - 0.5) + aside;
                    const bool isTick = (isYear || width > 24) && aside >= 0 && aside < thickness;
                    for (int y = 0; y < pixel(35); ++y) {
                        EXPECT_EQ(image.pixelColor(x, y) == QColor(0xAA, 0xAA, 0xAA),
                                  isTick && y >= top)
                            << ratio << ": " << width << ", " << x << ", " << y;
                    }
                    EXPECT_EQ(image.pixelColor(x, pixel(35)).red() > 250, isTick);
                    EXPECT_LT(image.pixelColor(x, pixel(35) + thickness).red(), 230);
                }
            }
        }
    }
}

TEST_F(TimelineHeaderTest, IsBlankWithoutStatementsAndWithoutAStore)
{
    const QImage blank = drawn(416);
    EXPECT_EQ(blank.pixelColor(200, 37), CVAdditions::cvPanelDarkerBorderColor());
    m_header.setManagedObjectContext(&m_store.context());
    EXPECT_EQ(drawn(416), blank);
    store(utc(2012, 11, 5), utc(2013, 2, 5));
    EXPECT_NE(drawn(416), blank);

    const Log::Collector log;
    NSPersistentStoreCoordinator coordinator(m_store.coordinator().managedObjectModel());
    NSManagedObjectContext context(coordinator);
    m_header.setManagedObjectContext(&context);
    EXPECT_EQ(drawn(416), blank);
    EXPECT_EQ(log.lines().size(), 1);
    m_header.setManagedObjectContext(nullptr);
}
