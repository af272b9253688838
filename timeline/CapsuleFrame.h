#pragma once

#include <QImage>
#include <QRgb>

class QPainter;

/// What surrounds the body of a capsule: the shadow outside of it, and the rim, the light and the
/// border along its edge.
///
/// It is drawn once, for a small capsule. The frames of larger ones are put together from the
/// corners and sides of that picture, on whole pixels.
class CapsuleFrame
{
public:
    /// Of the border's middle, in points.
    static constexpr double cornerRadius = 4.0;

    struct Style
    {
        QRgb border;
        /// The light beneath the upper edge.
        QRgb highlight;
        /// The shadow where nothing of it is blurred away.
        QRgb shadow;
        /// The thickness of the lines, in pixels.
        int lineWidth;
        /// How many pixels a point is long.
        double ratio;
    };

    /// A frame for capsules of this size, in pixels and measured around the border.
    CapsuleFrame(const Style& style, const QSize& size);

    /// The smallest size of which the picture serves a capsule of `size` too.
    static QSize sizeOfPicture(const Style& style, const QSize& size);

    /// Draws the frame around and along the inside of `outer`, in pixels.
    void draw(QPainter& painter, const QRect& outer) const;

private:
    /// How far the shadow reaches beyond the border, and how far the rest reaches inwards.
    int m_reach;
    int m_thickness;
    /// The side of a corner, from the border inwards. Behind it the sides are straight.
    int m_corner;
    QImage m_picture;
};
