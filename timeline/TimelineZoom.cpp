#include "timeline/TimelineZoom.h"

#include <algorithm>
#include <cmath>

namespace {

/// A pinch tells how much farther apart the fingers are; five times that feels right.
constexpr double magnificationFactor = 5.0;

} // namespace

double TimelineZoom::xKeepingMiddle(double x, double width, double oldScale, double newScale)
{
    const double middle = x + width * 0.5;
    const double anchor = middle / (oldScale == 0.0 ? 1.0 : oldScale);
    const double newX = anchor * newScale + x - middle;
    return std::isfinite(newX) ? std::max(0.0, newX) : 0.0;
}

double TimelineZoom::scaleAfterMagnification(double scale, double magnification)
{
    const double factor = static_cast<float>(magnification * magnificationFactor + 1.0);
    const double magnified = std::max(factor * scale, minimumScale);
    return magnified > maximumScale ? maximumScale : static_cast<float>(magnified);
}
