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
    : QScrollArea(parent)
{
    // The table is a little narrower than the view: beside it the colour of its cloth goes on.
    QPalette palette = viewport()->palette();
    palette.setColor(QPalette::Window, clothColor);
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
    const double timelineWidth = std::floor(scale * viewport()->width()) - columnSpacing;
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
