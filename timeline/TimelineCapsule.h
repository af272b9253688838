#pragma once

#include "timeline/CapsuleFrame.h"
#include "widgets/PixelSnapping.h"

#include <QRectF>

class QColor;
class QPainter;
class TimelinePictures;

/// The capsule of a row of the timeline, as it lies on the pixels of a painter's device. However
/// large it is, only what the exposed rectangle shows of it costs time.
class TimelineCapsule
{
public:
    /// For the painter as it is now. `border` runs along the middle of the border, which is one
    /// point thick; also a capsule without width has one.
    TimelineCapsule(const QPainter& painter, const QRectF& border, const QRectF& exposed);

    /// Whether any of it can lie in the exposed range of x.
    bool isVisible() const { return m_isVisible; }

    /// Where the body hides all that is beneath, over the capsule's whole height. Empty when that
    /// is nowhere.
    QRectF coveringRect() const;

    /// The inside up to the border, with colours from top to bottom.
    void drawBody(QPainter& painter, const QColor& top, const QColor& bottom) const;

    void drawFrame(QPainter& painter, TimelinePictures& pictures, const QColor& border,
                   const QColor& highlight, const QColor& shadow) const;

private:
    PixelSnapping m_snapping;
    bool m_isVisible;
    /// The outer edge of the border.
    QRectF m_outer;
    QRectF m_exposed;
};
