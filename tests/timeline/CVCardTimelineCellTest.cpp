#include "timeline/CVCardTimelineCell.h"

#include "tests/support/CardStore.h"
#include "tests/support/Utc.h"
#include "timeline/CVAdditions.h"
#include "timeline/CVCardTimelineCellDelegate.h"
#include "timeline/CVTimelineData.h"
#include "timeline/CardTimelineGeometry.h"

#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

#include <cmath>
#include <stdexcept>

namespace {

const QRectF frame(0, 10, 416, 90);
const QRectF everything(0, 0, 430, 200);
const QColor backdrop(0x33, 0x33, 0x33);

/// The farthest that a component of two colours is apart.
int difference(const QColor& left, const QColor& right)
{
    return std::max({std::abs(left.red() - right.red()), std::abs(left.green() - right.green()),
                     std::abs(left.blue() - right.blue()), std::abs(left.alpha() - right.alpha())});
}

int difference(const QImage& left, const QImage& right)
{
    int largest = 0;
    for (int pixel = 0; pixel < left.width() * left.height(); ++pixel) {
        const QPoint place(pixel % left.width(), pixel / left.width());
        largest = std::max(largest, difference(left.pixelColor(place), right.pixelColor(place)));
    }
    return largest;
}

QImage canvas(double ratio, const QColor& color = backdrop)
{
    QImage image((everything.size() * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(color);
    return image;
}

class CVCardTimelineCellTest : public testing::Test, protected CVCardTimelineCellDelegate
{
protected:
    CVCardTimelineCellTest()
    {
        m_cell.setManagedObjectContext(&m_store.context());
        m_cell.setObjectValue(&m_card);
        m_cell.setTimelineCellDelegate(this);
    }

    bool timelineCellSelectStatement(const CVCardTimelineCell& /*cell*/,
                                     const CVStatement& statement) const override
    {
        return m_delegateFails ? throw std::runtime_error("no answer") : &statement == m_selected;
    }

    /// Ten statements of sixteen months, 25 points each, from the fourth month on.
    void insertStatements()
    {
        m_store.insertStatement(&m_other, utc(2012, 12, 1));
        m_store.insertStatement(&m_other, utc(2014, 3, 1));
        for (unsigned month = 3; month <= 12; ++month) {
            const auto balance = std::to_string(150 + 20 * (month % 5));
            m_store.insertStatement(&m_card, utc(2013, month, 15), {balance.c_str(), "1000"});
        }
        m_store.save();
    }

    void draw(QImage& image, const QRectF& exposed = everything, const QRectF& rect = frame)
    {
        QPainter painter(&image);
        m_cell.drawWithFrame(painter, rect, exposed);
    }

    QImage drawn(double ratio)
    {
        QImage image = canvas(ratio);
        draw(image);
        return image;
    }

    QPointF pointOf(std::size_t index)
    {
        return *CardTimelineGeometry(m_store.context(), m_card, frame).sortedStatementPoint(index);
    }

    CardStore m_store;
    CVCard& m_card = m_store.insertCard(QStringLiteral("Everyday"));
    CVCard& m_other = m_store.insertCard(QStringLiteral("Other"));
    const CVStatement* m_selected = nullptr;
    bool m_delegateFails = false;
    CVCardTimelineCell m_cell;
};

} // namespace

TEST_F(CVCardTimelineCellTest, DrawsNothingWithoutStatementsAndOnlyTheBandWithoutDates)
{
    m_store.insertStatement(&m_other, utc(2013, 12, 1));
    m_store.save();
    EXPECT_EQ(drawn(1), canvas(1));
    m_store.insertStatement(&m_card, std::nullopt);
    const QImage image = drawn(1);
    EXPECT_GT(image.pixelColor(200, 50).red(), backdrop.red());
    EXPECT_EQ(image.pixelColor(200, 50), image.pixelColor(210, 96));
    EXPECT_EQ(image.pixelColor(200, 97), backdrop);
}

TEST_F(CVCardTimelineCellTest, TintsTheCapsuleByTheLastStatement)
{
    insertStatements();
    const double left = pointOf(0).x();
    for (const double ratio : {1.0, 1.5, 2.0}) {
        const bool isHighlighted = ratio > 1;
        m_cell.setHighlighted(isHighlighted);
        const QImage image = drawn(ratio);
        const auto at = [&](double x, double y) {
            return image.pixelColor(int((left + x) * ratio), int(y * ratio));
        };
        const auto colors = CVAdditions::cvColorsWithCreditUsageRatio(0.19, isHighlighted);
        const auto border = CVAdditions::cvTimelineBorderColorForHighlightedState(isHighlighted);
        EXPECT_LE(difference(at(5, 15.5), colors.colorWithKey("light")), 4) << ratio;
        EXPECT_LE(difference(at(5, 93), colors.colorWithKey("dark")), 4) << ratio;
        EXPECT_TRUE(at(0.5, 60) == border && at(50, 12.5) == border) << ratio;
        EXPECT_GT(at(50, 13.5).red(), at(50, 15.5).red()) << "light from above";
        EXPECT_LT(difference(at(0.5, 12.5), at(-20, 50)), 12) << "round corners";
    }
    QImage image = canvas(1, Qt::white);
    draw(image);
    const int besideIt = image.pixelColor(int(left) - 1, 60).red();
    const int farFromIt = image.pixelColor(int(left) - 12, 60).red();
    EXPECT_NEAR(farFromIt - besideIt, (farFromIt - 0x27) * 0.8 * 0.15 * 0.37, 3) << "shadow";
}

TEST_F(CVCardTimelineCellTest, CutsGroovesIntoWholePixels)
{
    insertStatements();
    CVTimelineData axis;
    axis.calculateTimelineWithContext(m_store.context(), frame);
    for (const double ratio : {1.0, 1.5, 2.0}) {
        const QImage image = drawn(ratio);
        const int thickness = ratio < 2 ? 1 : 2;
        const auto columnOf = [&](std::size_t tick) {
            return int(std::floor((axis.tickOffsets()[tick].offset - 0.5) * ratio + 0.5));
        };
        const auto green = [&](int column) {
            return image.pixelColor(column, int(80 * ratio)).green();
        };
        for (const std::size_t tick : {5U, 8U, 11U}) {
            const int first = columnOf(tick);
            const int body = green(first - 4);
            for (int column = -3; column < 2 * thickness + 3; ++column) {
                const bool isDark = column >= 0 && column < thickness;
                const bool isLight = column >= thickness && column < 2 * thickness;
                EXPECT_EQ(green(first + column) < body, isDark) << ratio << " " << column;
                EXPECT_EQ(green(first + column) > body, isLight) << ratio << " " << column;
            }
        }
        const int january = columnOf(1);
        EXPECT_GT(green(january), green(columnOf(2))) << "years are marked stronger";
        EXPECT_EQ(green(january - 1), green(january + thickness));
    }
}

TEST_F(CVCardTimelineCellTest, RingsTheSelectedStatementOnly)
{
    insertStatements();
    m_selected = m_card.sortedStatements()[4];
    const auto graph = CVAdditions::cvColorsWithCreditUsageRatio(0.19, false).colorWithKey("graph");
    for (const double ratio : {1.0, 2.0}) {
        const QImage image = drawn(ratio);
        for (std::size_t index = 0; index < 10; ++index) {
            const auto isDrawnAt = [&](double x, double y) {
                const QPointF place = (pointOf(index) + QPointF(x, y)) * ratio;
                return difference(image.pixelColor(int(place.x()), int(place.y())), graph) < 60;
            };
            EXPECT_TRUE(isDrawnAt(0, 0)) << "the dot";
            EXPECT_FALSE(isDrawnAt(-0.5, 3.9)) << "between dot and ring";
            EXPECT_EQ(isDrawnAt(-0.5, 5.5), index == 4) << "the ring";
            EXPECT_FALSE(isDrawnAt(-0.5, 6.6)) << "around it";
        }
    }
}

TEST_F(CVCardTimelineCellTest, MarksADotThatLiesBeyondTheRowAtTheRowsEdge)
{
    m_store.insertStatement(&m_other, utc(2012, 12, 1));
    m_store.insertStatement(&m_other, utc(2014, 3, 1));
    // Alone, so that no line leads there.
    m_selected = &m_store.insertStatement(&m_card, utc(2013, 6, 15), {"100", "1000"});
    m_store.save();
    for (const auto* const balance : {"1900", "-900"}) {
        m_card.sortedStatements()[0]->setBalance(NSDecimalNumber::fromText(balance));
        const bool isAbove = balance[0] == '-';
        const auto graph = CVAdditions::cvColorsWithCreditUsageRatio(isAbove ? -0.9 : 1.9, false)
                               .colorWithKey("graph");
        const CardTimelineGeometry geometry(m_store.context(), m_card, frame);
        const auto middle = geometry.anchorRect(pointOf(0)).center();
        for (const double ratio : {1.0, 2.0}) {
            const QImage image = drawn(ratio);
            const auto isDrawnAt = [&](double x, double y) {
                const QPointF place = (middle + QPointF(x, isAbove ? -y : y)) * ratio;
                return difference(image.pixelColor(int(place.x()), int(place.y())), graph) < 60;
            };
            EXPECT_TRUE(isDrawnAt(0, 0)) << balance;
            EXPECT_TRUE(isDrawnAt(-1.5, -2)) << "broad at its back";
            EXPECT_FALSE(isDrawnAt(-1.8, 1.8)) << "it points out of the row";
            EXPECT_TRUE(isDrawnAt(-5.3, 0)) << "the ring";
        }
    }
}

TEST_F(CVCardTimelineCellTest, PaintsTheSameInPartsAsAtOnceAndNothingElsewhere)
{
    insertStatements();
    m_store.insertStatement(&m_card, utc(2014, 1, 10), {"1900", "1000"});
    m_store.insertStatement(&m_card, utc(2014, 1, 20), {"1e60", "1000"});
    m_store.insertStatement(&m_card, utc(2014, 2, 20), {"-400", "1000"});
    m_selected = m_card.sortedStatements()[4];
    for (const double ratio : {1.0, 1.5, 2.0}) {
        const QImage whole = drawn(ratio);
        for (const int width : {3, 16, 50, 137}) {
            QImage parts = canvas(ratio);
            for (int left = 0; left < 430; left += width) {
                const QImage before = parts;
                draw(parts, QRectF(left, 0, width, 200));
                const QRect behind(int(std::ceil((left + width) * ratio)), 0, 12, 300);
                ASSERT_EQ(parts.copy(behind), before.copy(behind)) << ratio << " " << left;
            }
            // Where a line is cut off, Qt rounds by up to a 64th of a pixel.
            EXPECT_LE(difference(parts, whole), 4) << ratio << " " << width;
        }
    }
}

TEST_F(CVCardTimelineCellTest, LooksTheSameOnASharedAxisAndOnABackdropKnownToBeOpaque)
{
    insertStatements();
    CVTimelineData axis;
    axis.calculateTimelineWithContext(m_store.context(), QRectF(0, 0, frame.width(), 1));
    QImage clear = canvas(1, Qt::transparent);
    draw(clear);
    EXPECT_EQ(clear.pixelColor(45, 60).alpha(), 0) << "the band darkens only what is there";
    const QImage expected = drawn(1);
    m_cell.setBackdropOpaque(true);
    QImage image = canvas(1);
    QPainter painter(&image);
    m_cell.drawWithFrame(painter, frame, everything, &axis);
    EXPECT_LE(difference(image, expected), 1);
}

TEST_F(CVCardTimelineCellTest, DrawsASingleStatementAndWhateverElseIsThere)
{
    m_store.insertStatement(&m_other, utc(2012, 12, 1));
    m_store.insertStatement(&m_other, utc(2014, 3, 1));
    m_store.insertStatement(&m_card, utc(2013, 6, 15), {"500", "1000"});
    m_store.save();
    const auto border = CVAdditions::cvTimelineBorderColorForHighlightedState(false);
    for (int y = 11; y <= 97; ++y) {
        const bool isBorder = drawn(1).pixelColor(int(pointOf(0).x()), y) == border;
        EXPECT_EQ(isBorder, y >= 12 && y <= 96 && std::abs(y + 0.5 - pointOf(0).y()) > 3) << y;
    }

    for (const auto* const balance : {"1e30", "-1e30", "1e60", "1e-60"}) {
        m_store.insertStatement(&m_card, utc(2013, 7, 15), {balance, "1e-30"});
        m_store.insertStatement(&m_card, utc(2013, 8, 15), {balance, "-1"});
    }
    QImage image = canvas(1.5);
    for (const double extent : {-5.0, 0.0, 7.0, 15.0, 16.0, 1e7, 1e300, double(NAN)}) {
        draw(image, everything, QRectF(0, 10, extent, 90));
        draw(image, everything, QRectF(0, 10, 416, extent));
        draw(image, QRectF(0, 10, extent, extent));
    }
    QPainter painter(&image);
    painter.rotate(30);
    painter.scale(0.3, 3);
    m_cell.drawWithFrame(painter, frame, everything);
}

TEST_F(CVCardTimelineCellTest, LeavesThePainterAsItWasAlsoWhenItFails)
{
    insertStatements();
    QImage image = canvas(2);
    QPainter painter(&image);
    painter.translate(3, 4);
    const auto transform = painter.worldTransform();
    m_cell.drawWithFrame(painter, frame, everything);
    m_delegateFails = true;
    EXPECT_THROW(m_cell.drawWithFrame(painter, frame, everything), std::runtime_error);
    EXPECT_EQ(painter.worldTransform(), transform);
    EXPECT_FALSE(painter.hasClipping() || painter.testRenderHint(QPainter::Antialiasing));
}
