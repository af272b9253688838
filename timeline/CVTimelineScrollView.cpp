#include "timeline/CVTimelineScrollView.h"

#include "timeline/CVTimelineTableView.h"

#include <cmath>

namespace {

/// What stays free of the view's width, in points.
constexpr double columnSpacing = 3.0;

/// The mean of the pattern that the table stands on.
constexpr QColor clothColor(0x3A, 0x3A, 0x3A);

} // namespace

CVTimelineScrollView::CVTimelineScrollView(QWidget* parent)
    : CVSyncScrollView(parent)
{
    // Time runs from left to right wherever the reader's text does not.
    setLayoutDirection(Qt::LeftToRight);
    // The table is a little narrower than the view: beside it, and under the scroll bars, the
    // colour of its cloth goes on.
    QPalette cloth = palette();
    cloth.setColor(QPalette::Window, clothColor);
    setPalette(cloth);
    viewport()->setAutoFillBackground(true);
}

CVTimelineTableView* CVTimelineScrollView::timelineTableView() const
{
    return qobject_cast<CVTimelineTableView*>(widget());
}

void CVTimelineScrollView::setScale(double scale)
{
    m_scale = scale;
}

double CVTimelineScrollView::adjustTimelineWidth()
{
    const auto timelineWidthIn = [scale = m_scale == 0.0 ? 1.0 : m_scale](int width) {
        return std::floor(scale * width) - columnSpacing;
    };
    // Decided without the vertical bar, which may be there only because of the horizontal one: by
    // the width beside it the two would take turns without end.
    const int widest = maximumViewportSize().width();
    setHorizontalScrollBarPolicy(timelineWidthIn(widest) > widest ? Qt::ScrollBarAlwaysOn
                                                                  : Qt::ScrollBarAlwaysOff);
    const double timelineWidth = timelineWidthIn(viewport()->width());
    if (auto* const table = timelineTableView()) {
        table->setTimelineWidth(timelineWidth);
        Q_EMIT timelineWidthDidChange(table->timelineWidth());
    }
    return timelineWidth;
}

double CVTimelineScrollView::timelineWidth() const
{
    const auto* const table = timelineTableView();
    return table ? table->timelineWidth() : 0.0;
}

void CVTimelineScrollView::resizeEvent(QResizeEvent* event)
{
    CVSyncScrollView::resizeEvent(event);
    adjustTimelineWidth();
}
