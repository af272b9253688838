#include "timeline/DevicePixels.h"

#include <QBrush>
#include <QPainter>

#include <algorithm>
#include <cmath>

DevicePixels::DevicePixels(QPainter& painter)
    : m_painter(painter)
    , m_ratio(ratio(painter))
{
    m_painter.save();
    m_painter.scale(1.0 / m_ratio, 1.0 / m_ratio);
    m_painter.setRenderHint(QPainter::Antialiasing, false);
}

DevicePixels::~DevicePixels()
{
    m_painter.restore();
}

double DevicePixels::ratio(const QPainter& painter)
{
    const double ratio = std::sqrt(std::abs(painter.deviceTransform().determinant()));
    return std::isnormal(ratio) ? ratio : 1.0;
}

QRectF DevicePixels::pixels(const QRectF& points) const
{
    return {points.topLeft() * m_ratio, points.size() * m_ratio};
}

void DevicePixels::fillRect(const QRectF& pixels, const QBrush& brush)
{
    for (QRectF slice = pixels; slice.top() < pixels.bottom(); slice.moveTop(slice.bottom())) {
        slice.setBottom(std::min(slice.top() + rowsAtOnce, pixels.bottom()));
        m_painter.fillRect(slice, brush);
    }
}
