#include "timeline/CardTimelineGeometry.h"

#include "tests/support/CardStore.h"
#include "tests/support/Utc.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

constexpr double day = 86400.0;
/// 31 + 30 + 31 days in 92 × 10 points, but for the last second.
const QRectF frame(0, 180, 92 * 10 + 16, 90);

class CardTimelineGeometryTest : public testing::Test
{
protected:
    CVStatement& insert(std::optional<Instant> date, const char* balance, const char* limit)
    {
        return m_store.insertStatement(&m_card, date, {.balance = balance, .limit = limit});
    }
    CardTimelineGeometry geometry(const QRectF& rect = frame)
    {
        m_store.save();
        return CardTimelineGeometry(m_store.context(), m_card, rect);
    }

    CardStore m_store;
    CVCard& m_card = m_store.insertCard(QStringLiteral("Everyday"));
    CVCard& m_other = m_store.insertCard(QStringLiteral("Other"));
    /// They give the axis its span, October to December.
    CVStatement& m_first = m_store.insertStatement(&m_other, utc(2013, 10, 6, 12));
    CVStatement& m_last = m_store.insertStatement(&m_other, utc(2013, 12, 20));
};

} // namespace

TEST_F(CardTimelineGeometryTest, PutsAStatementWhereItsDateAndUsageSay)
{
    insert(utc(2013, 10, 6, 12), "0", "1000");
    insert(utc(2013, 10, 16), "500", "1000");
    insert(utc(2013, 11, 5), "999.99", "1000");
    insert(utc(2013, 12, 15), "1000", "1000");
    const auto points = geometry().sortedStatementPoints();
    // 5.5 days and a second less than half a point; then 9.5 days, both rounded down by themselves.
    EXPECT_EQ(points, (std::vector<std::optional<QPointF>>{
                          {{63, 190}}, {{158, 224}}, {{358, 258}}, {{758, 259}}}));
    EXPECT_EQ(geometry().borderRect(), QRectF(63.5, 182.5, 695, 84));
    EXPECT_EQ(geometry().bandRect(), QRectF(0, 182, 936, 85));
    EXPECT_EQ(geometry().statementHeight(), 69);
}

TEST_F(CardTimelineGeometryTest, KeepsStatementsWithinTheirLimitInsideTheCapsule)
{
    for (int index = 0; index <= 100; ++index) {
        const auto balance = std::to_string(index * 7.77);
        insert(utc(2013, 10, 7) + index * 0.7 * day, balance.c_str(), "777");
    }
    for (const double width : {200.0, 936.0, 9'000.0}) {
        for (const double height : {30.0, 61.0, 90.0}) {
            const auto rows = geometry(QRectF(0, 40, width, height));
            const QRectF capsule = rows.borderRect().value().adjusted(-0.5, 3, 1.5, -3);
            for (const auto& point : rows.sortedStatementPoints()) {
                EXPECT_TRUE(capsule.contains(point.value())) << width << " " << height;
            }
        }
    }
}

TEST_F(CardTimelineGeometryTest, TakesWhateverAStatementSays)
{
    const std::vector<std::tuple<const char*, const char*, const char*, std::optional<double>>>
        rows = {
            {"no limit", "500", "0", 0},
            {"over the limit", "2000", "1000", 138},
            {"in credit", "-10", "1000", -1},
            {"a limit below zero", "10", "-1000", -1},
            {"in single precision", "16777217", "16777216", 69},
            {"a limit too small for single precision", "1", "1e-60", 0},
            {"a tiny limit", "1e30", "1e-30", std::floor(double(1e30F) * 69 / double(1e-30F))},
            {"a balance too large for single precision", "1e60", "1", std::nullopt},
            {"a limit too large for single precision", "1", "1e60", 0},
            {"both too large for single precision", "1e60", "1e60", std::nullopt},
        };
    for (const auto& row : rows) {
        insert(utc(2013, 11, 1), std::get<1>(row), std::get<2>(row));
    }
    insert(utc(2013, 11, 1), "1", "2").setLimit(std::nullopt);
    insert(utc(2013, 11, 1), "1", "2").setBalance(std::nullopt);
    const auto points = geometry().sortedStatementPoints();
    ASSERT_EQ(points.size(), rows.size() + 2);
    for (std::size_t index = 0; index < rows.size(); ++index) {
        const auto& [name, balance, limit, drop] = rows[index];
        EXPECT_EQ(points[index].has_value(), drop.has_value()) << name;
        EXPECT_EQ(points[index].value_or(QPointF()).y(), drop ? 190 + *drop : 0) << name;
    }
    EXPECT_TRUE(points.end()[-2]->y() == 190 && points.back()->y() == 190) << "absent amounts";
}

TEST_F(CardTimelineGeometryTest, IsNowhereWithoutADateOrAPlace)
{
    EXPECT_FALSE(geometry().borderRect());
    EXPECT_FALSE(geometry().hit({0, 0}));
    insert(std::nullopt, "1", "2");
    EXPECT_FALSE(geometry().borderRect());
    EXPECT_EQ(geometry().sortedStatementPoints(), std::vector<std::optional<QPointF>>(1));

    auto& dated = insert(utc(2013, 11, 1), "1", "2");
    EXPECT_EQ(geometry().borderRect(), QRectF(318.5, 182.5, 0, 84)) << "a single statement";
    EXPECT_EQ(geometry().timelineOffset(), geometry().xOffset(dated));
    insert(utc(2013, 11, 11), "1", "2");
    EXPECT_EQ(geometry().borderRect(), QRectF(318.5, 182.5, 100, 84));

    constexpr double infinity = std::numeric_limits<double>::infinity();
    for (const double extent : {0.0, 16.0, 15.9, -7.0, 1e300, infinity, double(NAN)}) {
        for (const QRectF& rect : {QRectF(0, 0, extent, 90), QRectF(0, 0, 936, extent)}) {
            const auto border = geometry(rect).borderRect().value_or(QRectF());
            EXPECT_TRUE(std::isfinite(border.width()) && std::isfinite(border.bottom())) << extent;
            const auto point = geometry(rect).sortedStatementPoint(2).value_or(QPointF());
            EXPECT_TRUE(std::isfinite(point.x()) && std::isfinite(point.y())) << extent;
        }
    }
    CardStore empty;
    auto& unsaved = empty.insertCard(QStringLiteral("New"));
    empty.insertStatement(&unsaved, utc(2013, 1, 1));
    EXPECT_FALSE(CardTimelineGeometry(empty.context(), unsaved, frame).borderRect());
}

TEST_F(CardTimelineGeometryTest, HitsTheSquareOfADotAndTheEarlierOfTwo)
{
    insert(std::nullopt, "0", "1");
    auto& below = insert(utc(2013, 11, 1), "0", "1");
    auto& above = insert(utc(2013, 11, 1, 12), "0", "1");
    const auto rows = geometry();
    const auto hit = [&](double x, double y) {
        const auto found = rows.hit({x, y});
        return found ? found->statement : nullptr;
    };
    EXPECT_EQ(rows.hit({320, 190})->point, QPointF(318, 190));
    EXPECT_EQ(hit(315, 187), &below);
    EXPECT_EQ(hit(320.9, 192.9), &below);
    EXPECT_EQ(hit(321, 190), &above) << "right edges belong to what follows";
    EXPECT_EQ(hit(314.9, 190), nullptr);
    EXPECT_EQ(hit(318, 186.9), nullptr);
    EXPECT_EQ(hit(318, 193), nullptr);
    EXPECT_EQ(hit(NAN, 190), nullptr);
}

TEST_F(CardTimelineGeometryTest, AStatementIsSeenInItsRowAndMeantByWhatIsWithinReach)
{
    auto& usual = insert(utc(2013, 11, 1), "0", "1000");
    auto& over = insert(utc(2013, 11, 11), "1900", "1000");
    auto& inCredit = insert(utc(2013, 11, 21), "-900", "1000");
    auto& cut = insert(utc(2013, 12, 1), "1150", "1000");
    const auto rows = geometry();
    const auto anchor = [&](std::size_t index) {
        return rows.anchorRect(rows.sortedStatementPoint(index).value());
    };
    EXPECT_EQ(anchor(0), QRectF(315, 187, 6, 6)) << "its dot's";
    EXPECT_EQ(anchor(1), QRectF(415, 259, 6, 6));
    EXPECT_EQ(anchor(2), QRectF(515, 185, 6, 6));
    EXPECT_EQ(anchor(3), QRectF(615, 259, 6, 6)) << "its dot would be cut off";

    const auto meant = [&](double x, double y) {
        const auto found = rows.hitWithinReach({x, y});
        return found ? found->statement : nullptr;
    };
    EXPECT_EQ(meant(326, 190), &usual);
    EXPECT_EQ(meant(318, 198.5), nullptr);
    EXPECT_EQ(meant(324, 196), nullptr) << "reach is round";
    EXPECT_EQ(meant(418, 262), &over);
    EXPECT_EQ(rows.hitWithinReach({418, 262})->point, QPointF(418, 262));
    EXPECT_EQ(meant(520, 182), &inCredit);
    EXPECT_EQ(meant(618, 268), &cut);
    EXPECT_EQ(meant(NAN, 190), nullptr);
    auto& near = insert(utc(2013, 11, 2), "0", "1000");
    const auto crowded = geometry();
    EXPECT_EQ(crowded.hitWithinReach({323, 196})->statement, &usual) << "as near, and earlier";
    EXPECT_EQ(crowded.hitWithinReach({323.5, 196})->statement, &near);
}
