#include "timeline/TimelinePictures.h"

#include <QColor>
#include <QPainter>

#include <cmath>

namespace {

/// The side of a sign, in points.
constexpr double extent = 6.0;

/// What `draw` fills in a square of 6 by 6.
template <typename Draw>
QImage sign(const QColor& color, double ratio, Draw draw)
{
    const int side = static_cast<int>(std::ceil(extent * ratio));
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.scale(ratio, ratio);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    draw(painter);
    return image;
}

} // namespace

const QImage& TimelinePictures::dot(const QColor& color, double ratio)
{
    useRatio(ratio);
    auto& dot = m_dots[color.rgba()];
    if (dot.isNull()) {
        dot = sign(color, ratio, [](QPainter& painter) {
            painter.drawEllipse(QRectF(0.0, 0.0, extent, extent));
        });
    }
    return dot;
}

const QImage& TimelinePictures::mark(NSRectEdge edge, const QColor& color, double ratio)
{
    useRatio(ratio);
    auto& mark = m_marks[{edge, color.rgba()}];
    if (mark.isNull()) {
        mark = sign(color, ratio, [edge](QPainter& painter) {
            const double tip = edge == NSRectEdge::MinY ? 0.0 : extent;
            const QPointF corners[] = {
                {0.0, extent - tip}, {extent, extent - tip}, {extent / 2.0, tip}};
            painter.drawConvexPolygon(corners, 3);
        });
    }
    return mark;
}

const CapsuleFrame& TimelinePictures::capsuleFrame(const CapsuleFrame::Style& style,
                                                   const QSize& size)
{
    useRatio(style.ratio);
    const QSize used = CapsuleFrame::sizeOfPicture(style, size);
    const auto key = std::tuple(style.border, style.highlight, style.shadow, style.lineWidth,
                                used.width(), used.height());
    return m_frames.try_emplace(key, style, used).first->second;
}

void TimelinePictures::useRatio(double ratio)
{
    if (m_ratio != ratio) {
        m_ratio = ratio;
        m_dots.clear();
        m_marks.clear();
        m_frames.clear();
    }
}
