#include "timeline/TimelineCapsule.h"

#include "timeline/DevicePixels.h"
#include "timeline/TimelinePictures.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace {

/// How much of a capsule that goes on beyond the exposed range is kept there: enough for its
/// corners to stay out of sight.
constexpr double beyondExposed = 32.0;

QRectF shortened(const QRectF& border, const QRectF& exposed)
{
    QRectF rect = border.normalized();
    rect.setLeft(std::max(rect.left(), exposed.left() - beyondExposed));
    rect.setRight(std::min(rect.right(), exposed.right() + beyondExposed));
    return rect;
}

} // namespace

TimelineCapsule::TimelineCapsule(const QPainter& painter, const QRectF& border,
                                 const QRectF& exposed)
    : m_snapping(painter)
    , m_exposed(m_snapping.snappedRect(exposed.adjusted(-1.0, -1.0, 1.0, 1.0)))
{
    const QRectF rect = shortened(border, exposed);
    m_isVisible = rect.width() >= 0.0 && rect.height() > 0.0;
    m_outer = m_snapping.snappedRect(rect.adjusted(-0.5, -0.5, 0.5, 0.5));
}

QRectF TimelineCapsule::coveringRect() const
{
    const double corner = CapsuleFrame::cornerRadius + 1.0;
    const QRectF straight = m_outer.adjusted(corner, 0.0, -corner, 0.0);
    return m_isVisible && straight.width() > 0.0 ? m_snapping.snappedRect(straight) : QRectF();
}

void TimelineCapsule::drawBody(QPainter& painter, const QColor& top, const QColor& bottom) const
{
    const double inset = m_snapping.lineWidth() / 2;
    const QRectF rect = m_outer.adjusted(inset, inset, -inset, -inset);
    QPainterPath path;
    path.addRoundedRect(rect, CapsuleFrame::cornerRadius, CapsuleFrame::cornerRadius);
    QLinearGradient gradient(rect.topLeft(), rect.bottomLeft());
    gradient.setColorAt(0.0, top);
    gradient.setColorAt(1.0, bottom);

    const double sliceHeight = DevicePixels::rowsAtOnce / DevicePixels::ratio(painter);
    const QRectF visible = m_outer & m_exposed;
    const int slices = static_cast<int>(std::ceil(visible.height() / sliceHeight));
    for (int slice = 0; slice < slices; ++slice) {
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setClipRect(QRectF(visible.left(), visible.top() + slice * sliceHeight,
                                   visible.width(), sliceHeight),
                            Qt::IntersectClip);
        painter.fillPath(path, gradient);
        painter.restore();
    }
}

void TimelineCapsule::drawFrame(QPainter& painter, TimelinePictures& pictures, const QColor& border,
                                const QColor& highlight, const QColor& shadow) const
{
    const double ratio = DevicePixels::ratio(painter);
    const DevicePixels pixels(painter);
    const QRect outer = pixels.pixels(m_outer).toRect();
    const CapsuleFrame::Style style{border.rgba(), highlight.rgba(), shadow.rgba(),
                                    qRound(m_snapping.lineWidth() * ratio), ratio};
    pictures.capsuleFrame(style, outer.size()).draw(painter, outer);
}
