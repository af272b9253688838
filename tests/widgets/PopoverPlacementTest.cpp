#include "widgets/PopoverPlacement.h"

#include <gtest/gtest.h>

TEST(PopoverPlacementTest, APanelStandsWhereThereIsRoomAndItsArrowPointsAtTheAnchor)
{
    using enum NSRectEdge;
    constexpr QSize panel(200, 100);
    constexpr QSize tall(200, 300);
    constexpr QSize huge(500, 300);
    struct
    {
        const char* name = nullptr;
        QRect anchor;
        QSize panel;
        NSRectEdge preferredEdge = MaxY;
        QPoint corner;
        QPoint arrowTip;
    } const cases[]{
        {"below", {300, 100, 6, 6}, panel, MaxY, {203, 117}, {303, 106}},
        {"above", {300, 200, 6, 6}, panel, MinY, {203, 89}, {303, 200}},
        {"on the right", {100, 200, 20, 10}, panel, MaxX, {131, 155}, {120, 205}},
        {"on the left", {300, 200, 20, 10}, panel, MinX, {89, 155}, {300, 205}},
        {"just room", {300, 275, 6, 6}, panel, MaxY, {203, 292}, {303, 281}},
        {"none below", {300, 276, 6, 6}, panel, MaxY, {203, 165}, {303, 276}},
        {"none above", {300, 90, 6, 6}, panel, MinY, {203, 107}, {303, 96}},
        {"more left", {310, 190, 6, 6}, tall, MaxY, {99, 43}, {310, 193}},
        {"more right", {290, 190, 6, 6}, tall, MaxY, {307, 43}, {296, 193}},
        {"near the end", {585, 100, 6, 6}, panel, MaxY, {392, 117}, {573, 106}},
        {"at the start", {0, 100, 0, 6}, panel, MaxY, {8, 117}, {27, 106}},
        {"room nowhere", {300, 200, 6, 6}, huge, MaxX, {53, 8}, {303, 319}},
    };
    for (const auto& [name, anchor, size, preferredEdge, corner, arrowTip] : cases) {
        const auto placement =
            PopoverPlacement::nextToAnchor(anchor, size, preferredEdge, {600, 400});
        EXPECT_EQ(placement.panel, QRect(corner, size)) << name;
        EXPECT_EQ(placement.arrowTip(), arrowTip) << name;
    }
    const auto inSmallWindow =
        PopoverPlacement::nextToAnchor({50, 40, 6, 6}, panel, MaxX, {90, 80});
    EXPECT_EQ(inSmallWindow.panel, QRect(QPoint(8, 8), panel));
}

TEST(PopoverPlacementTest, OfAnAnchorOutOfSightTheNearestPlaceInSightCounts)
{
    constexpr QRect area(10, 20, 100, 50);
    struct
    {
        const char* name = nullptr;
        QRect anchor;
        QRect visiblePart;
    } const cases[]{
        {"in sight", {30, 30, 6, 6}, {30, 30, 6, 6}},
        {"cut off on the left", {5, 30, 20, 6}, {10, 30, 15, 6}},
        {"cut off all round", {0, 0, 500, 500}, area},
        {"away to the right", {150, 30, 6, 6}, {110, 30, 0, 6}},
        {"away below and on the left", {-80, 300, 6, 6}, {10, 70, 0, 0}},
    };
    for (const auto& [name, anchor, visiblePart] : cases) {
        EXPECT_EQ(PopoverPlacement::visiblePartOfAnchor(anchor, area), visiblePart) << name;
    }
}
