#pragma once

#include "widgets/PixelSnapping.h"

#include <QImage>

class QColor;
class QPainter;

/// Vertical lines one point thick and equally high, on whole pixels.
///
/// Hundreds of single lines would each reach into every row of pixels once, and miss the memory
/// cache each time. These are collected in a picture one pixel high, which is then drawn row by
/// row: the cost is that of filling the area, however many lines there are.
class VerticalLines
{
public:
    /// For lines between two x, in points, under the painter as it is now. What lies outside is
    /// cut off.
    VerticalLines(const QPainter& painter, double left, double right);

    /// Adds a line whose middle is at `x`, moved by a number of line widths so that lines side by
    /// side touch at any scale factor. It lies over those that are there already.
    void addLine(double x, const QColor& color, double lineWidthsAside = 0.0);

    /// Draws all lines from `top` to `bottom`. The painter must be as it was at first.
    void draw(QPainter& painter, double top, double bottom) const;

private:
    PixelSnapping m_snapping;
    double m_ratio;
    double m_left;
    QImage m_row;
};
