#include "widgets/PixelSnapping.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

PixelSnapping::PixelSnapping(const QPainter& painter)
    : PixelSnapping(painter.deviceTransform())
{}

PixelSnapping::PixelSnapping(const QTransform& transform)
    : m_snaps(transform.type() <= QTransform::TxScale && transform.isInvertible())
    , m_x{transform.m11(), transform.dx()}
    , m_y{transform.m22(), transform.dy()}
{
    if (m_snaps) {
        const double scale = std::sqrt(std::abs(m_x.scale * m_y.scale));
        m_lineWidth = std::max(std::ceil(scale - 0.5), 1.0) / scale;
    }
}

double PixelSnapping::Axis::snapped(double position) const
{
    // Always up from half a pixel, so that lines at equal distances stay at equal distances.
    return (std::floor(position * scale + offset + 0.5) - offset) / scale;
}

QRectF PixelSnapping::snappedRect(const QRectF& rect) const
{
    if (!m_snaps || rect.isEmpty()) {
        return rect;
    }
    const QPointF topLeft(m_x.snapped(rect.left()), m_y.snapped(rect.top()));
    const QPointF bottomRight(m_x.snapped(rect.right()), m_y.snapped(rect.bottom()));
    const QSizeF size(std::max(bottomRight.x() - topLeft.x(), 1 / std::abs(m_x.scale)),
                      std::max(bottomRight.y() - topLeft.y(), 1 / std::abs(m_y.scale)));
    return {topLeft, size};
}

QRectF PixelSnapping::snappedLine(const QRectF& line) const
{
    if (!m_snaps || line.isEmpty()) {
        return line;
    }
    QRectF snapped = snappedRect(line);
    if (line.width() < line.height()) {
        snapped.setWidth(m_lineWidth);
    } else {
        snapped.setHeight(m_lineWidth);
    }
    return snapped;
}
