#include "widgets/PopoverFrame.h"

#include "widgets/HighContrast.h"
#include "widgets/PixelSnapping.h"

#include <QImage>
#include <QMargins>
#include <QPainter>
#include <QPainterPath>

#include <array>
#include <cmath>
#include <vector>

namespace {

constexpr QColor borderColor(0xA1, 0xA1, 0xA1);

// The light comes from above. Lengths are in points.
constexpr double shadowAlpha = 0.35;
constexpr double shadowDeviation = 12.0;
constexpr int shadowReach = 30;
constexpr int shadowDrop = 8;

/// What the frame is larger than its panel: by the shadow, which reaches farther than the arrow.
constexpr QMargins frameMargins(shadowReach, shadowReach - shadowDrop, shadowReach,
                                shadowReach + shadowDrop);

/// The panel's edge, clockwise, with the arrow's two slopes.
QPainterPath outlinePath(const QRectF& panel, NSRectEdge edge, const QPointF& arrowTip)
{
    constexpr double radius = PopoverPlacement::cornerRadius;
    constexpr double halfArrow = PopoverPlacement::arrowWidth / 2.0;
    // Each side starts at its corner. At the anchor's lower edge the arrow is on the upper side.
    const std::array corners{panel.topLeft(), panel.topRight(), panel.bottomRight(),
                             panel.bottomLeft()};
    const std::array facedEdges{NSRectEdge::MaxY, NSRectEdge::MinX, NSRectEdge::MinY,
                                NSRectEdge::MaxX};
    const std::array<QPointF, 4> directions{QPointF(1, 0), QPointF(0, 1), QPointF(-1, 0),
                                            QPointF(0, -1)};
    QPainterPath path(panel.topLeft() + QPointF(radius, 0));
    for (std::size_t side = 0; side < corners.size(); ++side) {
        const auto along = directions.at(side);
        const QPointF outwards(along.y(), -along.x());
        const auto end = corners.at((side + 1) % corners.size());
        if (facedEdges.at(side) == edge) {
            const auto start = corners.at(side);
            const auto foot = start + along * QPointF::dotProduct(arrowTip - start, along);
            path.lineTo(foot - along * halfArrow);
            path.lineTo(arrowTip);
            path.lineTo(foot + along * halfArrow);
        }
        path.lineTo(end - along * radius);
        const auto centre = end - (along + outwards) * radius;
        const QPointF reach(radius, radius);
        path.arcTo(QRectF(centre - reach, centre + reach), 90.0 - 90.0 * static_cast<double>(side),
                   -90.0);
    }
    path.closeSubpath();
    return path;
}

/// The opacity, pixel by pixel, of a blurred stretch from `start` to `end`, which are in points.
std::vector<double> blurredStretch(int pixels, double start, double end, double devicePixelRatio)
{
    const auto share = [](double distance) {
        return std::erf(distance / (shadowDeviation * std::sqrt(2.0))) / 2.0;
    };
    std::vector<double> opacities;
    opacities.reserve(static_cast<std::size_t>(pixels));
    for (int pixel = 0; pixel < pixels; ++pixel) {
        const double position = (pixel + 0.5) / devicePixelRatio;
        opacities.push_back(share(position - start) - share(position - end));
    }
    return opacities;
}

} // namespace

PopoverFrame::PopoverFrame(QWidget& window)
    : QWidget(&window)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

QColor PopoverFrame::panelColor()
{
    return {0xF7, 0xF7, 0xF7};
}

void PopoverFrame::arrange(const PopoverPlacement& placement)
{
    const auto frame = placement.panel.marginsAdded(frameMargins);
    const auto placementInside = placement.translated(-frame.topLeft());
    if (placementInside.panel.size() != m_placement.panel.size()) {
        m_shadow = {};
    }
    if (placementInside != m_placement) {
        m_placement = placementInside;
        update();
    }
    setGeometry(frame);
}

QRegion PopoverFrame::outline() const
{
    return {outlinePath(m_placement.panel, m_placement.edge, m_placement.arrowTip())
                .toFillPolygon()
                .toPolygon()};
}

void PopoverFrame::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const double ratio = painter.deviceTransform().m11();
    if (m_shadow.isNull() || m_shadow.devicePixelRatio() != ratio) {
        prepareShadow(ratio);
    }
    painter.drawPixmap(QPoint(), m_shadow);

    const PixelSnapping snapping(painter);
    const double line = snapping.lineWidth();
    const double inset = line / 2.0;
    const auto panel =
        snapping.snappedRect(m_placement.panel).adjusted(inset, inset, -inset, -inset);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(
        QPen(HighContrast::ink(borderColor), line, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    painter.setBrush(panelColor());
    // Between pixels the arrow's slopes would differ.
    const auto tip = snapping.snappedRect({m_placement.arrowTip(), QSizeF(1, 1)}).topLeft();
    painter.drawPath(outlinePath(panel, m_placement.edge, tip));
}

void PopoverFrame::prepareShadow(double devicePixelRatio)
{
    // A blurred rectangle is one blurred stretch times another; that its corners were round is lost
    // in the blur.
    const auto pixels = (QSizeF(size()) * devicePixelRatio).toSize();
    const auto shadow = QRectF(m_placement.panel).translated(0.0, shadowDrop);
    const auto columns =
        blurredStretch(pixels.width(), shadow.left(), shadow.right(), devicePixelRatio);
    const auto rows =
        blurredStretch(pixels.height(), shadow.top(), shadow.bottom(), devicePixelRatio);
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < pixels.height(); ++y) {
        auto* const line = reinterpret_cast<QRgb*>(image.scanLine(y));
        const double rowAlpha = shadowAlpha * rows.at(static_cast<std::size_t>(y));
        for (int x = 0; x < pixels.width(); ++x) {
            const double alpha = rowAlpha * columns.at(static_cast<std::size_t>(x));
            line[x] = qRgba(0, 0, 0, qRound(alpha * 255.0));
        }
    }
    m_shadow = QPixmap::fromImage(std::move(image));
    m_shadow.setDevicePixelRatio(devicePixelRatio);
}
