#include "widgets/VRGradientBackgroundStencil.h"

#include "widgets/PixelSnapping.h"

#include <QLinearGradient>
#include <QPainter>

#include <cmath>

namespace {

/// A colour's way towards white (above 0) or black (below 0), from -1 to 1.
struct Shades
{
    float upperEdge;
    float upperGradient;
    float lowerGradient;
    float lowerEdge;
};

constexpr Shades raised{0.75F, 0.38F, -0.04F, -0.12F};
constexpr Shades pressed{-0.14F, -0.09F, 0.12F, -0.10F};

QColor shaded(const QColor& color, float shade)
{
    const float target = shade > 0 ? 1 : 0;
    const auto mix = [&](float component) {
        return component + (target - component) * std::abs(shade);
    };
    return QColor::fromRgbF(mix(color.redF()), mix(color.greenF()), mix(color.blueF()),
                            color.alphaF());
}

} // namespace

void VRGradientBackgroundStencil::drawInRect(QPainter& painter, const QRectF& rect) const
{
    if (rect.isEmpty()) {
        return;
    }
    const Shades& shades = m_isHighlighted ? pressed : raised;
    const PixelSnapping snapping(painter);
    const QRectF row = snapping.snappedRect(rect);

    const double reach = m_gradientHeight > 0 ? qMin(m_gradientHeight / row.height(), 0.5) : 0.0;
    QLinearGradient gradient(row.topLeft(), row.bottomLeft());
    gradient.setColorAt(0, shaded(m_baseColor, shades.upperGradient));
    gradient.setColorAt(1, shaded(m_baseColor, shades.lowerGradient));
    gradient.setColorAt(reach, m_baseColor);
    gradient.setColorAt(1 - reach, m_baseColor);
    painter.fillRect(row, gradient);

    const QSizeF edge(row.width(), snapping.lineWidth());
    painter.fillRect(QRectF(row.topLeft(), edge), shaded(m_baseColor, shades.upperEdge));
    painter.fillRect(QRectF(row.bottomLeft() - QPointF(0, edge.height()), edge),
                     shaded(m_baseColor, shades.lowerEdge));
}
