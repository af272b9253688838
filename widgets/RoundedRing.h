#pragma once

class QColor;
class QPainter;
class QRectF;

/// A band along the inside of a rounded rectangle's edge: borders, glows and focus rings.
namespace RoundedRing {

/// Draws a ring whose outer edge is that of `rect`, moved to whole pixels, and answers what it
/// leaves free inside. `radius` is that of the outer corners, and at most half of the shorter side;
/// `thickness` becomes a whole number of pixels, too, rather too few than too many. All in points.
QRectF draw(QPainter& painter, const QRectF& rect, double radius, double thickness,
            const QColor& color);

} // namespace RoundedRing
