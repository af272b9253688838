#pragma once

#include <QColor>

/// The CIE 1976 L*a*b* space that the palette is adjusted in: its white point (D65, black point 0).
struct LabColorSpace
{
    double whiteX;
    double whiteY;
    double whiteZ;
};

/// A colour by its lightness and two colour axes, as the eye measures it.
///
/// Nothing is held to what a screen can show before the colour is converted back, so that several
/// adjustments in a row lose nothing: L* may pass 100 on the way.
class LabColor
{
public:
    static constexpr LabColorSpace gtm_labColorSpace() { return {0.95047, 1.0, 1.08883}; }

    static LabColor labColor(const QColor& color);

    /// The nearest colour that a screen shows: components outside their range are cut off.
    QColor color() const;

    /// From 0 for black to 1 for white: L* / 100.
    double gtm_luminance() const { return m_lightness / 100; }

    /// The colour with its lightness changed in proportion (0.2 is a fifth lighter) and its
    /// saturation multiplied. What becomes lighter than white loses saturation, the more the
    /// farther it goes.
    LabColor gtm_colorByAdjustingLuminance(double amount, double saturation = 1.0) const;

private:
    LabColor(double lightness, double a, double b, float alpha)
        : m_lightness(lightness)
        , m_a(a)
        , m_b(b)
        , m_alpha(alpha)
    {}

    double m_lightness;
    double m_a;
    double m_b;
    float m_alpha;
};
