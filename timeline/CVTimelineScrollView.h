#pragma once

#include "timeline/CVSyncScrollView.h"

class CVTimelineTableView;

/// Shows the timeline table, and makes it as wide as the zoom asks for: a scale of 1 fits the whole
/// history into view.
class CVTimelineScrollView : public CVSyncScrollView
{
    Q_OBJECT

public:
    explicit CVTimelineScrollView(QWidget* parent = nullptr);

    /// The table inside; null until it was set.
    CVTimelineTableView* timelineTableView() const;

    /// How many times the width of the view the timeline is wide. 0, as it is at first, counts
    /// as 1.
    double scale() const { return m_scale; }
    void setScale(double scale);

    /// Gives the table the width for the present size and scale, floor(scale × width) − 3 points,
    /// and answers it. The width is what a scroll bar beside the table leaves of the view.
    double adjustTimelineWidth();

    /// The table's width, in points.
    double timelineWidth() const;

Q_SIGNALS:
    void timelineWidthDidChange(double width);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    double m_scale = 0.0;
};
