#pragma once

/// The arithmetic of zooming the timeline.
namespace TimelineZoom {

/// The range of zooms that a pinch stays in; a menu command may go beyond.
constexpr double minimumScale = 1.0;
constexpr double maximumScale = 10.0;

/// Where the view has to begin after a zoom, in points, so that the content under its middle stays
/// there; never before the content does, and 0 when the numbers leave no finite position. `x` and
/// `width` are those of what is visible before. A scale of 0 counts as 1.
double xKeepingMiddle(double x, double width, double oldScale, double newScale);

/// The scale after a pinch: each multiplies it by 1 + 5 × magnification, as far as the range goes.
double scaleAfterMagnification(double scale, double magnification);

} // namespace TimelineZoom
