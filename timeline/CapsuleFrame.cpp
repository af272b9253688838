#include "timeline/CapsuleFrame.h"

#include "timeline/GaussianBlur.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace {

/// How far the shadow can be seen beyond the border, in points.
constexpr double shadowReach = 6.0;

/// A shadow of this blur radius, in points, is a gaussian of half of it.
constexpr double blurRadius = 3.0;

int wholePixels(double points, double ratio)
{
    return static_cast<int>(std::ceil(points * ratio));
}

/// What is blurred at a corner shows along the sides as far as it does outside.
int cornerSide(double ratio)
{
    return wholePixels(shadowReach, ratio) + wholePixels(CapsuleFrame::cornerRadius, ratio);
}

/// The shadow of a shape, without what the shape itself would hide.
QImage shadowPicture(const QSize& size, const QPainterPath& shape, const CapsuleFrame::Style& style)
{
    QImage coverage(size, QImage::Format_Alpha8);
    coverage.fill(0);
    {
        QPainter painter(&coverage);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.fillPath(shape, Qt::black);
    }
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(QColor::fromRgba(style.shadow));
    QPainter painter(&picture);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.drawImage(0, 0, GaussianBlur::blurred(coverage, blurRadius / 2 * style.ratio));
    painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(shape, Qt::black);
    return picture;
}

} // namespace

CapsuleFrame::CapsuleFrame(const Style& style, const QSize& size)
    : m_reach(wholePixels(shadowReach, style.ratio))
    , m_thickness(3 * style.lineWidth)
    , m_corner(cornerSide(style.ratio))
{
    const double line = style.lineWidth;
    const double radius = cornerRadius * style.ratio;
    const QRectF border =
        QRectF(QPointF(m_reach, m_reach), size).adjusted(line / 2, line / 2, -line / 2, -line / 2);
    const QSize pictureSize = size + QSize(2 * m_reach, 2 * m_reach);

    // A capsule without width has a border and a shadow all the same.
    QPainterPath shape;
    const double extra = std::max(line - border.width(), 0.0) / 2;
    shape.addRoundedRect(border.adjusted(-extra, 0.0, extra, 0.0), radius, radius);
    m_picture = shadowPicture(pictureSize, shape, style);

    QPainter painter(&m_picture);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF rim = border.adjusted(line, line, -line, -line);
    if (rim.isValid()) {
        painter.setPen(QPen(QColor::fromRgbF(1, 1, 1, 0.2F), line));
        painter.drawRoundedRect(rim, radius, radius);
    }
    painter.save();
    painter.setClipPath(shape);
    painter.setPen(QPen(QColor::fromRgba(style.highlight), line));
    painter.drawRoundedRect(border.translated(0.0, line), radius, radius);
    painter.restore();
    painter.setPen(QPen(QColor::fromRgba(style.border), line));
    if (border.width() > 0.0) {
        painter.drawRoundedRect(border, radius, radius);
    } else {
        painter.drawLine(border.topLeft(), border.bottomLeft());
    }
}

QSize CapsuleFrame::sizeOfPicture(const Style& style, const QSize& size)
{
    const int largest = 2 * cornerSide(style.ratio) + 1;
    return size.boundedTo(QSize(largest, largest));
}

void CapsuleFrame::draw(QPainter& painter, const QRect& outer) const
{
    // The corners of a small capsule meet in its middle.
    const int left = std::min(m_corner, outer.width() / 2);
    const int top = std::min(m_corner, outer.height() / 2);
    const int right = std::min(m_corner, outer.width() - left);
    const int bottom = std::min(m_corner, outer.height() - top);
    const QRect middle = outer.adjusted(left, top, -right, -bottom);
    const QPoint start = outer.topLeft() - QPoint(m_reach, m_reach);
    const QPoint end = middle.bottomRight() + QPoint(1, 1);
    const QSize nearSize(m_reach + left, m_reach + top);
    const QSize farSize(m_reach + right, m_reach + bottom);
    const int farX = m_picture.width() - farSize.width();
    const int farY = m_picture.height() - farSize.height();

    const auto drawPart = [&](const QRect& target, const QRect& source) {
        painter.drawImage(target, m_picture, source);
    };
    const auto drawCorner = [&](int x, int y, const QRect& source) {
        drawPart(QRect(QPoint(x, y), source.size()), source);
    };
    drawCorner(start.x(), start.y(), {0, 0, nearSize.width(), nearSize.height()});
    drawCorner(end.x(), start.y(), {farX, 0, farSize.width(), nearSize.height()});
    drawCorner(start.x(), end.y(), {0, farY, nearSize.width(), farSize.height()});
    drawCorner(end.x(), end.y(), {farX, farY, farSize.width(), farSize.height()});

    // A side is the same line of pixels all along. Long rows are filled faster than they are
    // stretched, high columns are not.
    if (middle.width() > 0) {
        const int x = nearSize.width();
        for (int row = 0; row < m_reach + m_thickness; ++row) {
            const int lower = m_picture.height() - 1 - row;
            painter.fillRect(middle.left(), start.y() + row, middle.width(), 1,
                             m_picture.pixelColor(x, row));
            painter.fillRect(middle.left(), outer.bottom() + m_reach - row, middle.width(), 1,
                             m_picture.pixelColor(x, lower));
        }
    }
    if (middle.height() > 0) {
        const int y = nearSize.height();
        const int width = m_reach + std::min(m_thickness, left);
        const int farWidth = m_reach + std::min(m_thickness, right);
        drawPart({start.x(), middle.top(), width, middle.height()}, {0, y, width, 1});
        drawPart({outer.right() + 1 + m_reach - farWidth, middle.top(), farWidth, middle.height()},
                 {m_picture.width() - farWidth, y, farWidth, 1});
    }
}
