#include "timeline/LabColor.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr LabColorSpace space = LabColor::gtm_labColorSpace();

// Where the cube root of the lightness scale gives way to a straight line.
constexpr double delta = 6.0 / 29;

double labCurve(double ratio)
{
    return ratio > delta * delta * delta ? std::cbrt(ratio)
                                         : ratio / (3 * delta * delta) + 4.0 / 29;
}

double inverseLabCurve(double value)
{
    return value > delta ? value * value * value : 3 * delta * delta * (value - 4.0 / 29);
}

double linearComponent(double component)
{
    return component <= 0.04045 ? component / 12.92 : std::pow((component + 0.055) / 1.055, 2.4);
}

float screenComponent(double linear)
{
    const double component =
        linear <= 0.0031308 ? 12.92 * linear : 1.055 * std::pow(linear, 1 / 2.4) - 0.055;
    return static_cast<float>(std::clamp(component, 0.0, 1.0));
}

} // namespace

LabColor LabColor::labColor(const QColor& color)
{
    const double red = linearComponent(color.redF());
    const double green = linearComponent(color.greenF());
    const double blue = linearComponent(color.blueF());
    const double x =
        labCurve((0.4124564 * red + 0.3575761 * green + 0.1804375 * blue) / space.whiteX);
    const double y =
        labCurve((0.2126729 * red + 0.7151522 * green + 0.0721750 * blue) / space.whiteY);
    const double z =
        labCurve((0.0193339 * red + 0.1191920 * green + 0.9503041 * blue) / space.whiteZ);
    return {116 * y - 16, 500 * (x - y), 200 * (y - z), color.alphaF()};
}

QColor LabColor::color() const
{
    const double lightness = (m_lightness + 16) / 116;
    const double x = space.whiteX * inverseLabCurve(lightness + m_a / 500);
    const double y = space.whiteY * inverseLabCurve(lightness);
    const double z = space.whiteZ * inverseLabCurve(lightness - m_b / 200);
    return QColor::fromRgbF(screenComponent(3.2404542 * x - 1.5371385 * y - 0.4985314 * z),
                            screenComponent(-0.9692660 * x + 1.8760108 * y + 0.0415560 * z),
                            screenComponent(0.0556434 * x - 0.2040259 * y + 1.0572252 * z),
                            m_alpha);
}

LabColor LabColor::gtm_colorByAdjustingLuminance(double amount, double saturation) const
{
    const double lightness = m_lightness * (1 + amount);
    const double excess = std::max(lightness - 100, 0.0);
    const double kept = excess > 0 ? std::min(saturation, (50 - excess) / 50) : saturation;
    return {lightness, m_a * kept, m_b * kept, m_alpha};
}
