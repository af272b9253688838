#pragma once

#include "foundation/Instant.h"
#include "timeline/CVTickOffset.h"
#include "timeline/TimelineScale.h"

#include <QRectF>
#include <QString>

#include <functional>
#include <optional>
#include <utility>
#include <vector>

class NSManagedObjectContext;

/// The time axis: where the months of all statements lie in an area of some width.
///
/// A value without any drawing: the header and the rows draw from equal ones, so that their lines
/// meet. It is filled once, for one painting, and holds nothing while the store has no statements.
class CVTimelineData
{
public:
    /// Fills a new, empty axis. The rectangle's width decides where the months lie, measured from
    /// x = 0 whatever the rectangle's own x; its y and height become those of every month.
    void calculateTimelineWithContext(NSManagedObjectContext& context, const QRectF& rect);

    /// What the axis was calculated with; absent before.
    const std::optional<TimelineScale>& scale() const { return m_scale; }

    /// One for each beginning of a month, and one for the end of the last month.
    const std::vector<CVTickOffset>& tickOffsets() const { return m_tickOffsets; }
    void setTickOffsets(std::vector<CVTickOffset> offsets) { m_tickOffsets = std::move(offsets); }

    /// One for each month, from its left tick to its right one.
    const std::vector<QRectF>& tickRectangles() const { return m_tickRectangles; }
    void setTickRectangles(std::vector<QRectF> rects) { m_tickRectangles = std::move(rects); }

    /// The first instant of each month, parallel to the rectangles.
    const std::vector<Instant>& tickDates() const { return m_tickDates; }
    void setTickDates(std::vector<Instant> dates) { m_tickDates = std::move(dates); }

    /// Whether the months are too narrow to mark: one of them, other than the last, is narrower
    /// than 4 points.
    bool monthTicksHidden() const { return m_monthTicksHidden; }

    /// Calls the block for each year that the axis shows, from left to right, with a date in that
    /// year and the rectangle of its months. False as soon as the block answers false.
    bool enumerateYearsUsingBlock(
        const std::function<bool(Instant date, const QRectF& rect)>& block) const;

    /// All of it as text, for a person who looks for a fault.
    QString description() const;

private:
    std::optional<TimelineScale> m_scale;
    std::vector<CVTickOffset> m_tickOffsets;
    std::vector<QRectF> m_tickRectangles;
    std::vector<Instant> m_tickDates;
    bool m_monthTicksHidden = false;
};
