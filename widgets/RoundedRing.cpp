#include "widgets/RoundedRing.h"

#include "widgets/PixelSnapping.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

QRectF RoundedRing::draw(QPainter& painter, const QRectF& rect, double radius, double thickness,
                         const QColor& color)
{
    const auto outer = PixelSnapping(painter).snappedRect(rect);
    if (outer.isEmpty()) {
        return {};
    }
    const double scale = painter.deviceTransform().m11();
    const double width =
        scale > 0.0 ? std::max(std::ceil(thickness * scale - 0.5), 1.0) / scale : thickness;
    const auto inner = outer.adjusted(width, width, -width, -width);
    const double outerRadius = std::min(radius, std::min(outer.width(), outer.height()) / 2.0);
    const double innerRadius = std::max(outerRadius - width, 0.0);

    QPainterPath ring;
    ring.addRoundedRect(outer, outerRadius, outerRadius);
    if (!inner.isEmpty()) {
        ring.addRoundedRect(inner, innerRadius, innerRadius);
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(ring, color);
    painter.restore();
    return inner;
}
