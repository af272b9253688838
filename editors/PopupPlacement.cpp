#include "editors/PopupPlacement.h"

#include <QRect>

#include <algorithm>
#include <cmath>

namespace {

constexpr int gap = 2;

/// Where a length begins that is to lie between two positions.
int keptBetween(int first, int end, int start, int length)
{
    return std::max(first, std::min(start, end - length));
}

} // namespace

QPoint PopupPlacement::topLeftBelowField(const QRect& field, const QSize& popupSize,
                                         const QRect& available)
{
    const double middle = field.x() + field.width() / 2.0;
    const int x = static_cast<int>(std::floor(middle)) - popupSize.width() / 2;
    const int y = field.y() + field.height() + gap;
    return {keptBetween(available.x(), available.x() + available.width(), x, popupSize.width()),
            keptBetween(available.y(), available.y() + available.height(), y, popupSize.height())};
}
