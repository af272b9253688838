#pragma once

/// An edge of a rectangle whose y axis points down: MinY is the upper edge, MaxY the lower one.
enum class NSRectEdge
{
    MinX,
    MinY,
    MaxX,
    MaxY,
};
