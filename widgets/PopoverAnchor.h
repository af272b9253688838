#pragma once

#include "widgets/NSRectEdge.h"

#include <QRect>

class QWidget;

/// Where a popover points: a rectangle of a view, in its coordinates, and at which edge of it the
/// popover stands.
struct PopoverAnchor
{
    QWidget* view = nullptr;
    QRect rect;
    NSRectEdge preferredEdge = NSRectEdge::MaxY;
};
