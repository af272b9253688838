#include "timeline/CVAdditions.h"
#include "timeline/LabColor.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <stdexcept>
#include <vector>

namespace {

using namespace CVAdditions;

/// Within half a step of 255: all that another way of computing may differ by.
void expectColor(const QColor& color, QRgb expected, const char* what)
{
    EXPECT_LE(std::abs(color.red() - qRed(expected)), 1) << what << qPrintable(color.name());
    EXPECT_LE(std::abs(color.green() - qGreen(expected)), 1) << what << qPrintable(color.name());
    EXPECT_LE(std::abs(color.blue() - qBlue(expected)), 1) << what << qPrintable(color.name());
}

} // namespace

TEST(PaletteTest, TintsByCreditUsage)
{
    struct Row
    {
        double ratio;
        bool highlighted;
        std::vector<QRgb> colors; // fill, dark, light, graph, graphHighlight
    };
    // Computed apart, with a conversion derived from the primaries and the white point.
    const std::vector<Row> rows = {
        {0.29, false, {0x95C2F3, 0x8BB7E8, 0xA0CCFF, 0x355998, 0x4B6BAC}},
        {0.29, true, {0x729FCF, 0x6997C6, 0x7BA8D8, 0x204A87, 0x355998}},
        {0.30, false, {0xFFDA68, 0xFFCD5C, 0xFFE775, 0xC8631D, 0xEA7F39}},
        {0.59, true, {0xFCAF3E, 0xF0A533, 0xFFB949, 0xAD4D00, 0xC8631D}},
        {0.60, false, {0xFF9793, 0xFF8C88, 0xFFA29D, 0xB92211, 0xD33D24}},
        {0.60, true, {0xFF7371, 0xF56A69, 0xFF7C79, 0xA40000, 0xB92211}},
    };
    for (const auto& row : rows) {
        const auto colors = cvColorsWithCreditUsageRatio(row.ratio, row.highlighted);
        auto expected = row.colors.begin();
        for (const char* const key : {"fill", "dark", "light", "graph", "graphHighlight"}) {
            expectColor(colors.colorWithKey(key), *expected++, key);
        }
        EXPECT_EQ(colors.colorWithKey("highlight"), QColor::fromRgbF(1, 1, 1, 0.3F));
        EXPECT_THROW(colors.colorWithKey("glow"), std::out_of_range);
    }
}

TEST(PaletteTest, TintsACardWithoutALimit)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const auto fill = [](double ratio) {
        return cvColorsWithCreditUsageRatio(ratio, true).colorWithKey("fill").rgb() & RGB_MASK;
    };
    EXPECT_EQ(fill(infinity), 0xFF7371);
    EXPECT_EQ(fill(std::nan("")), 0xFF7371);
    EXPECT_EQ(fill(-infinity), 0x729FCF);
}

TEST(PaletteTest, TakesSaturationFromWhatBecomesLighterThanWhite)
{
    const auto yellow = LabColor::labColor(QColor(255, 255, 0));
    EXPECT_NEAR(yellow.gtm_luminance(), 0.97139, 1e-5);
    const auto beyondWhite = yellow.gtm_colorByAdjustingLuminance(0.2);
    EXPECT_NEAR(beyondWhite.gtm_luminance(), 1.16567, 1e-5);
    expectColor(beyondWhite.color(), 0xFFFFAD, "beyond white");
    // Nothing was cut off on the way there.
    const auto back = beyondWhite.gtm_colorByAdjustingLuminance(-0.1);
    EXPECT_NEAR(back.gtm_luminance(), 1.04910, 1e-5);
    expectColor(back.color(), 0xFFFF9A, "and some of the way back");
    expectColor(yellow.gtm_colorByAdjustingLuminance(0, 0).color(), 0xF6F6F6, "grey");
    EXPECT_EQ(LabColor::labColor(QColor(1, 2, 3, 51)).color(), QColor(1, 2, 3, 51));
}
