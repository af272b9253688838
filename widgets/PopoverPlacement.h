#pragma once

#include "widgets/NSRectEdge.h"

#include <QPoint>
#include <QRect>
#include <QSize>

/// Where a popover stands: a panel beside the anchor that it is about, and an arrow that leads from
/// the panel to the anchor. All is in points and in the coordinates of the popover's window.
struct PopoverPlacement
{
    static constexpr int arrowLength = 11;
    static constexpr int arrowWidth = 22;
    static constexpr int cornerRadius = 8;
    /// What the panel keeps free between itself and the window's edges.
    static constexpr int windowMargin = 8;

    /// The panel with its border, without the arrow.
    QRect panel;
    /// The edge of the anchor at which the panel stands; the arrow is on the panel's opposite side.
    NSRectEdge edge = NSRectEdge::MaxY;
    /// How far the middle of the arrow is from the left or upper end of its side.
    int arrowPosition = 0;

    /// Places a panel of this size: at the preferred edge of the anchor, else at the opposite one,
    /// else where there is room. The panel is inside the window, or, when the window is too small
    /// for that, begins at its upper left corner. The arrow points at the anchor's middle as far as
    /// it can without leaving the straight part of its side.
    static PopoverPlacement nextToAnchor(const QRect& anchor, const QSize& panelSize,
                                         NSRectEdge preferredEdge, const QSize& windowSize);

    /// The part of `anchor` that lies in `area`. If none does: what is nearest to it on the area's
    /// edge, a rectangle without width or height.
    static QRect visiblePartOfAnchor(const QRect& anchor, const QRect& area);

    QPoint arrowTip() const;
    PopoverPlacement translated(const QPoint& distance) const;

    bool operator==(const PopoverPlacement& other) const = default;
};
