#pragma once

#include <QRectF>
#include <QString>

#include <functional>
#include <vector>

class CVTimelineData;

/// What is written above the timeline, and where: years in the upper half, months in the lower one.
///
/// All years are written in the same way, and so are all months: in the longest pattern in which
/// every one of them fits its place, be it in view or not. Nothing is written where even the
/// shortest leaves one without room. All lengths are in points.
namespace TimelineHeaderLabels {

struct Label
{
    QString text;
    /// The place for the text, which may reach below the axis.
    QRectF rect;
    /// In the middle, but for a year that is leaving the view.
    Qt::Alignment horizontalAlignment = Qt::AlignHCenter;
};

/// How wide a text is, in the font that it will be drawn in. Asked at most once for equal texts.
using WidthOfText = std::function<double(const QString& text)>;

/// A label for each year that has room in the visible rectangle. One that lies partly outside has
/// its label in the middle of what is in view of it.
std::vector<Label> yearLabels(const CVTimelineData& axis, const QRectF& visibleRect,
                              const WidthOfText& widthOfText);

/// The titles of the months in the visible rectangle; none where the axis does not mark months.
std::vector<Label> monthTitles(const CVTimelineData& axis, const QRectF& visibleRect,
                               const WidthOfText& widthOfText);

} // namespace TimelineHeaderLabels
