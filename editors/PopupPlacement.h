#pragma once

class QPoint;
class QRect;
class QSize;

/// Where a popup of a field stands. All is in points and in the coordinates of the desktop.
namespace PopupPlacement {

/// The upper left corner of a popup of this size: 2 points below the field and centred on it, moved
/// as little as keeps it in `available`, the part of the screen that windows may cover. A popup
/// that is too large for that begins at the upper left corner of it.
QPoint topLeftBelowField(const QRect& field, const QSize& popupSize, const QRect& available);

} // namespace PopupPlacement
