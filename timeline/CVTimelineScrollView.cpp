#include "timeline/CVTimelineScrollView.h"

#include "timeline/CVTimelineTableView.h"

#include <cmath>

namespace {

/// What stays free of the view's width, in points.
constexpr double columnSpacing = 3.0;

} // namespace

CVTimelineScrollView::CVTimelineScrollView(QWidget* parent)
    : QScrollArea(parent)
{
    // Beside the table, which is a little narrower than the view, its background goes on.
    QPalette palette = viewport()->palette();
    palette.setBrush(QPalette::Window, CVTimelineTableView::backgroundPatternImage());
    viewport()->setPalette(palette);
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
    const double scale = m_scale == 0.0 ? 1.0 : m_scale;
    const double timelineWidth = std::floor(scale * width()) - columnSpacing;
    if (auto* const table = timelineTableView()) {
        table->setTimelineWidth(timelineWidth);
    }
    return timelineWidth;
}

void CVTimelineScrollView::resizeEvent(QResizeEvent* event)
{
    QScrollArea::resizeEvent(event);
    adjustTimelineWidth();
}
