#pragma once

class CVCard;
class CVStatement;
class CVTimelineTableView;
class QPointF;

/// Learns what the person does in the timeline.
class CVTimelineTableViewDelegate
{
public:
    virtual ~CVTimelineTableViewDelegate() = default;

    /// The row of a card was chosen.
    virtual void timelineTableViewDidSelectTimelineForCard(CVTimelineTableView& table, CVCard& card,
                                                           int index) = 0;
    /// A statement was clicked, or, when it is null, something that is no statement. The point is
    /// the middle of the statement's dot, in the table's coordinates; (0, 0) without one.
    virtual void timelineTableViewDidSelectStatement(CVTimelineTableView& table,
                                                     CVStatement* statement, const QPointF& point,
                                                     int clickCount) = 0;
    /// Escape was pressed.
    virtual void timelineTableViewDidCancelOperation(CVTimelineTableView& table) = 0;
};
