#include "editors/PopupPlacement.h"

#include <QRect>
#include <gtest/gtest.h>

#include <vector>

TEST(PopupPlacementTest, ThePopupHangsBelowItsFieldAndStaysOnTheScreen)
{
    struct Row
    {
        const char* name;
        QRect field;
        QSize popup;
        QPoint topLeft;
    };
    // A panel takes the screen's first 30 points, and another screen is to its left.
    const QRect available(-100, 30, 1000, 700);
    const std::vector<Row> rows = {
        {"centred, 2 points below", {300, 200, 174, 26}, {242, 220}, {266, 228}},
        {"odd widths go down to a whole point", {300, 200, 175, 26}, {243, 220}, {266, 228}},
        {"at the right edge", {800, 200, 174, 26}, {242, 220}, {658, 228}},
        {"at the left edge", {-150, 200, 174, 26}, {242, 220}, {-100, 228}},
        {"at the bottom", {300, 600, 174, 26}, {242, 220}, {266, 510}},
        {"above the top", {300, -50, 174, 26}, {242, 220}, {266, 30}},
        {"too large", {300, 200, 174, 26}, {1200, 900}, {-100, 30}},
    };
    for (const auto& [name, field, popup, topLeft] : rows) {
        EXPECT_EQ(PopupPlacement::topLeftBelowField(field, popup, available), topLeft) << name;
    }
}
