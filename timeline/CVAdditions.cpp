#include "timeline/CVAdditions.h"

#include "timeline/LabColor.h"
#include "widgets/HighContrast.h"

namespace {

QColor colorWithCalibratedRGB(QRgb rgb, float alpha = 1.0F)
{
    QColor color = QColor::fromRgb(rgb);
    color.setAlphaF(alpha);
    return color;
}

struct BaseColors
{
    QRgb fill;
    QRgb graph;
};

BaseColors baseColors(double ratio)
{
    if (ratio < 0.3) {
        return {0x729FCF, 0x204A87};
    }
    if (ratio < 0.6) {
        return {0xFCAF3E, 0xAD4D00};
    }
    return {0xFF7371, 0xA40000};
}

} // namespace

QColor CVAdditions::cvPanelGradientStartColor()
{
    return colorWithCalibratedRGB(0xF6F5F6);
}

QColor CVAdditions::cvPanelGradientEndColor()
{
    return colorWithCalibratedRGB(0xD8D8D8);
}

QColor CVAdditions::cvPanelDarkBorderColor()
{
    return HighContrast::ink(colorWithCalibratedRGB(0xC5C5C5));
}

QColor CVAdditions::cvPanelDarkerBorderColor()
{
    return HighContrast::ink(colorWithCalibratedRGB(0x999999));
}

QColor CVAdditions::cvTimelineHeaderTextColor()
{
    return HighContrast::ink(colorWithCalibratedRGB(0x222122));
}

QColor CVAdditions::cvTimelineHeaderYearTextColor()
{
    return HighContrast::ink(colorWithCalibratedRGB(0x2B5176));
}

QColor CVAdditions::cvSelectedGlowColor()
{
    return colorWithCalibratedRGB(0x50B7FC);
}

QColor CVAdditions::cvTimelineBackgroundLightColor()
{
    return colorWithCalibratedRGB(0x6F6F6F, 0.25F);
}

QColor CVAdditions::cvTimelineBackgroundDarkColor()
{
    return colorWithCalibratedRGB(0x5E5E5E, 0.15F);
}

QColor CVAdditions::cvCardBackgroundColorForHighlightedState(bool highlighted)
{
    return colorWithCalibratedRGB(highlighted ? 0xCBCCCE : 0xE4E4E4);
}

QColor CVAdditions::cvCardTitleColorForHighlightedState(bool highlighted)
{
    return HighContrast::ink(colorWithCalibratedRGB(highlighted ? 0x000000 : 0x444444));
}

QColor CVAdditions::cvCardSubtitleColorForHighlightedState(bool highlighted)
{
    return HighContrast::ink(colorWithCalibratedRGB(highlighted ? 0x666666 : 0x888888));
}

QColor CVAdditions::cvTimelineBorderColorForHighlightedState(bool highlighted)
{
    return colorWithCalibratedRGB(highlighted ? 0x262626 : 0x272727);
}

NSColorList CVAdditions::cvColorsWithCreditUsageRatio(double ratio, bool highlighted)
{
    const BaseColors base = baseColors(ratio);
    LabColor fill = LabColor::labColor(colorWithCalibratedRGB(base.fill));
    LabColor graph = LabColor::labColor(colorWithCalibratedRGB(base.graph));
    if (!highlighted) {
        fill = fill.gtm_colorByAdjustingLuminance(0.2);
        graph = graph.gtm_colorByAdjustingLuminance(0.2);
    }
    NSColorList colors;
    colors.setColor(fill.color(), "fill");
    colors.setColor(fill.gtm_colorByAdjustingLuminance(-0.05).color(), "dark");
    colors.setColor(fill.gtm_colorByAdjustingLuminance(0.05).color(), "light");
    colors.setColor(QColor::fromRgbF(1, 1, 1, 0.3F), "highlight");
    colors.setColor(graph.color(), "graph");
    colors.setColor(graph.gtm_colorByAdjustingLuminance(0.2).color(), "graphHighlight");
    return colors;
}
