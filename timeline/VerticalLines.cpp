#include "timeline/VerticalLines.h"

#include "timeline/DevicePixels.h"

#include <QBrush>
#include <QColor>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

/// The most pixels that a row is made for: more than any screen has.
constexpr double widestRow = 1 << 17;

/// Of premultiplied colours.
QRgb over(QRgb above, QRgb below)
{
    const int uncovered = 255 - qAlpha(above);
    const auto mixed = [uncovered](int upper, int lower) {
        return upper + (lower * uncovered + 127) / 255;
    };
    return qRgba(mixed(qRed(above), qRed(below)), mixed(qGreen(above), qGreen(below)),
                 mixed(qBlue(above), qBlue(below)), mixed(qAlpha(above), qAlpha(below)));
}

} // namespace

VerticalLines::VerticalLines(const QPainter& painter, double left, double right)
    : m_snapping(painter)
    , m_ratio(DevicePixels::ratio(painter))
    , m_left(left)
{
    const QRectF extent = m_snapping.snappedRect(QRectF(left, 0.0, right - left, 1.0));
    const double pixels = extent.width() * m_ratio;
    if (pixels > 0.0 && pixels <= widestRow) {
        m_left = extent.left();
        m_row = QImage(qRound(pixels), 1, QImage::Format_ARGB32_Premultiplied);
        m_row.fill(Qt::transparent);
    }
}

void VerticalLines::addLine(double x, const QColor& color, double lineWidthsAside)
{
    // Most lines of a long axis are far away; not even their pixels are looked for.
    const double nearby = 2.0 + std::abs(lineWidthsAside);
    if (!(x > m_left - nearby && x < m_left + m_row.width() / m_ratio + nearby)) {
        return;
    }
    const QRectF line = m_snapping.snappedLine(QRectF(x - 0.5, 0.0, 1.0, 2.0));
    const double left = line.left() + lineWidthsAside * line.width();
    const int first = qRound((left - m_left) * m_ratio);
    const int end = std::min(first + qRound(line.width() * m_ratio), m_row.width());
    const QRgb premultiplied = qPremultiply(color.rgba());
    auto* const pixels = reinterpret_cast<QRgb*>(m_row.bits());
    for (int pixel = std::max(first, 0); pixel < end; ++pixel) {
        pixels[pixel] = over(premultiplied, pixels[pixel]);
    }
}

void VerticalLines::draw(QPainter& painter, double top, double bottom) const
{
    if (m_row.isNull()) {
        return;
    }
    const QRectF area =
        m_snapping.snappedRect(QRectF(m_left, top, m_row.width() / m_ratio, bottom - top));
    DevicePixels pixels(painter);
    const QRectF areaInPixels = pixels.pixels(area);
    painter.setBrushOrigin(areaInPixels.topLeft());
    pixels.fillRect(areaInPixels, QBrush(m_row));
}
