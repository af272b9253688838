#pragma once

#include <QRectF>

class QPainter;
class QTransform;

/// Where the device's pixels lie under a painter, in the painter's own coordinates.
///
/// Geometry is in points; what has to be sharp at any scale factor is moved onto whole pixels just
/// before it is filled (without antialiasing or with it). One value serves a whole painting, as
/// long as the painter is not transformed again. Under a rotated painter there is nothing to snap
/// to, and all is answered as it came.
class PixelSnapping
{
public:
    explicit PixelSnapping(const QPainter& painter);

    /// `rect` with each edge on the nearest pixel edge, but never thinner than one pixel where it
    /// was not empty. Rectangles that share an edge share it afterwards.
    QRectF snappedRect(const QRectF& rect) const;

    /// A line one point thick, given as the rectangle that it fills: its left and top edges and its
    /// ends go to the nearest pixel edge, and its thickness to lineWidth(). Unlike in
    /// snappedRect(), lines are alike wherever they lie: at a scale factor of 1.5 some would be
    /// twice as thick as others.
    QRectF snappedLine(const QRectF& line) const;

    /// The thickness, in points, of a line that is meant to be one point thick: a whole number of
    /// pixels, rather too few than too many.
    double lineWidth() const { return m_lineWidth; }

private:
    /// One direction: a position in points becomes `position * scale + offset` in pixels.
    struct Axis
    {
        double scale;
        double offset;

        double snapped(double position) const;
    };

    explicit PixelSnapping(const QTransform& transform);

    bool m_snaps;
    Axis m_x;
    Axis m_y;
    double m_lineWidth = 1.0;
};
