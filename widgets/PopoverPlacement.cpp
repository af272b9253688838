#include "widgets/PopoverPlacement.h"

#include <algorithm>
#include <array>

namespace {

/// A rectangle's extent in one direction. Unlike QRect, it does not count the end in.
struct Span
{
    int start;
    int end;

    int length() const { return end - start; }
    int middle() const { return start + length() / 2; }
};

Span horizontalSpan(const QRect& rect)
{
    return {rect.x(), rect.x() + rect.width()};
}

Span verticalSpan(const QRect& rect)
{
    return {rect.y(), rect.y() + rect.height()};
}

bool isBeside(NSRectEdge edge)
{
    return edge == NSRectEdge::MinX || edge == NSRectEdge::MaxX;
}

bool isAtStart(NSRectEdge edge)
{
    return edge == NSRectEdge::MinX || edge == NSRectEdge::MinY;
}

NSRectEdge oppositeEdge(NSRectEdge edge)
{
    if (isBeside(edge)) {
        return isAtStart(edge) ? NSRectEdge::MaxX : NSRectEdge::MinX;
    }
    return isAtStart(edge) ? NSRectEdge::MaxY : NSRectEdge::MinY;
}

/// Where a stretch begins that would rather begin at `start` but is to be in `area`; one that is
/// too long sticks out at the end.
int startInside(const Span& area, int start, int length)
{
    return std::max(area.start, std::min(start, area.end - length));
}

/// What is left between a panel at this edge and the end of `area`; negative when it lacks.
int roomLeft(NSRectEdge edge, const QRect& anchor, const QSize& panelSize, const QRect& area)
{
    const auto anchorSpan = isBeside(edge) ? horizontalSpan(anchor) : verticalSpan(anchor);
    const auto areaSpan = isBeside(edge) ? horizontalSpan(area) : verticalSpan(area);
    const int needed =
        (isBeside(edge) ? panelSize.width() : panelSize.height()) + PopoverPlacement::arrowLength;
    return (isAtStart(edge) ? anchorSpan.start - areaSpan.start : areaSpan.end - anchorSpan.end) -
           needed;
}

NSRectEdge bestEdge(NSRectEdge preferredEdge, const QRect& anchor, const QSize& panelSize,
                    const QRect& area)
{
    const auto room = [&](NSRectEdge edge) {
        return roomLeft(edge, anchor, panelSize, area);
    };
    const bool isPreferredBeside = isBeside(preferredEdge);
    const std::array edges{preferredEdge, oppositeEdge(preferredEdge),
                           isPreferredBeside ? NSRectEdge::MaxY : NSRectEdge::MaxX,
                           isPreferredBeside ? NSRectEdge::MinY : NSRectEdge::MinX};
    for (const auto edge : {edges[0], edges[1]}) {
        if (room(edge) >= 0) {
            return edge;
        }
    }
    const auto hasLessRoom = [&](NSRectEdge edge, NSRectEdge other) {
        return room(edge) < room(other);
    };
    const auto roomier = std::max(edges[2], edges[3], hasLessRoom);
    // When all lack room, the panel covers as little of the anchor as it can.
    return room(roomier) >= 0 ? roomier
                              : *std::max_element(edges.begin(), edges.end(), hasLessRoom);
}

} // namespace

PopoverPlacement PopoverPlacement::nextToAnchor(const QRect& anchor, const QSize& panelSize,
                                                NSRectEdge preferredEdge, const QSize& windowSize)
{
    const auto area = QRect(QPoint(), windowSize)
                          .adjusted(windowMargin, windowMargin, -windowMargin, -windowMargin);
    PopoverPlacement placement;
    placement.edge = bestEdge(preferredEdge, anchor, panelSize, area);

    const auto startOfPanel = [&](const Span& anchorSpan, int length, bool isFacing) {
        if (!isFacing) {
            return anchorSpan.middle() - length / 2;
        }
        return isAtStart(placement.edge) ? anchorSpan.start - arrowLength - length
                                         : anchorSpan.end + arrowLength;
    };
    const bool isPanelBeside = isBeside(placement.edge);
    const int x = startOfPanel(horizontalSpan(anchor), panelSize.width(), isPanelBeside);
    const int y = startOfPanel(verticalSpan(anchor), panelSize.height(), !isPanelBeside);
    placement.panel = QRect(QPoint(startInside(horizontalSpan(area), x, panelSize.width()),
                                   startInside(verticalSpan(area), y, panelSize.height())),
                            panelSize);

    const auto side =
        isPanelBeside ? verticalSpan(placement.panel) : horizontalSpan(placement.panel);
    const auto target = isPanelBeside ? verticalSpan(anchor) : horizontalSpan(anchor);
    const int nearestToEnd = std::min(cornerRadius + arrowWidth / 2, side.length() / 2);
    placement.arrowPosition =
        std::clamp(target.middle() - side.start, nearestToEnd, side.length() - nearestToEnd);
    return placement;
}

QRect PopoverPlacement::visiblePartOfAnchor(const QRect& anchor, const QRect& area)
{
    const auto nearest = [](const Span& span, const Span& bounds) {
        const int start = std::max(bounds.start, std::min(span.start, bounds.end));
        return Span{start, std::max(start, std::min(span.end, bounds.end))};
    };
    const auto x = nearest(horizontalSpan(anchor), horizontalSpan(area));
    const auto y = nearest(verticalSpan(anchor), verticalSpan(area));
    return {x.start, y.start, x.length(), y.length()};
}

QPoint PopoverPlacement::arrowTip() const
{
    switch (edge) {
    case NSRectEdge::MinX:
        return {panel.x() + panel.width() + arrowLength, panel.y() + arrowPosition};
    case NSRectEdge::MaxX:
        return {panel.x() - arrowLength, panel.y() + arrowPosition};
    case NSRectEdge::MinY:
        return {panel.x() + arrowPosition, panel.y() + panel.height() + arrowLength};
    case NSRectEdge::MaxY:
        break;
    }
    return {panel.x() + arrowPosition, panel.y() - arrowLength};
}

PopoverPlacement PopoverPlacement::translated(const QPoint& distance) const
{
    auto placement = *this;
    placement.panel.translate(distance);
    return placement;
}
