#pragma once

#include "foundation/Instant.h"

#include <optional>

class NSManagedObjectContext;
class QRectF;

/// How seconds become points on the timeline, for frames of one width: the only place that divides
/// by the scale. It is read from the store once, so that all that one painting draws agrees.
class TimelineScale
{
public:
    /// The margin at both ends of the axis, in points.
    static constexpr double margin = 8.0;

    /// Only the width of the frame counts.
    TimelineScale(NSManagedObjectContext& context, const QRectF& frame);

    /// The earliest (latest) date of all statements. Absent when the store has none, or cannot be
    /// read.
    std::optional<Instant> firstStatementDate() const { return m_firstStatementDate; }
    std::optional<Instant> lastStatementDate() const { return m_lastStatementDate; }

    /// The whole points that so many seconds take, rounded down. No frame is refused: in one of 16
    /// points or fewer, where the margins leave no room, lengths are 0 or negative, and they need
    /// not be finite.
    double points(double seconds) const;
    /// Whether what is later lies no farther to the left, as in every frame with room for its
    /// margins.
    bool runsToTheRight() const { return m_secondsPerPoint > 0; }

private:
    double m_secondsPerPoint;
    std::optional<Instant> m_firstStatementDate;
    std::optional<Instant> m_lastStatementDate;
};
