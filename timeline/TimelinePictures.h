#pragma once

#include "timeline/CapsuleFrame.h"
#include "widgets/NSRectEdge.h"

#include <QImage>
#include <QRgb>

#include <map>
#include <tuple>
#include <utility>

class QColor;
class QSize;

/// The pictures that rows of the timeline are drawn with, again and again. Each is made when it is
/// first asked for; all are forgotten when the pixels of the device are others.
class TimelinePictures
{
public:
    /// The filled circle that fits into 6 by 6 points, at so many pixels to the point.
    const QImage& dot(const QColor& color, double ratio);

    /// What stands for a dot that lies beyond an edge of its row, the upper or the lower one: a
    /// triangle of 6 by 6 points that points there.
    const QImage& mark(NSRectEdge edge, const QColor& color, double ratio);

    /// The frame that serves a capsule of this size, in pixels.
    const CapsuleFrame& capsuleFrame(const CapsuleFrame::Style& style, const QSize& size);

private:
    void useRatio(double ratio);

    double m_ratio = 0.0;
    std::map<QRgb, QImage> m_dots;
    std::map<std::pair<NSRectEdge, QRgb>, QImage> m_marks;
    /// By all of their style but the ratio, which is the same for all, and by width and height.
    std::map<std::tuple<QRgb, QRgb, QRgb, int, int, int>, CapsuleFrame> m_frames;
};
