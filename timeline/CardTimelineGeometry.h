#pragma once

#include "timeline/TimelineScale.h"
#include "widgets/NSRectEdge.h"

#include <QPointF>
#include <QRectF>

#include <cstddef>
#include <optional>
#include <vector>

class CVCard;
class CVStatement;
class NSManagedObjectContext;

/// Where a card's row of the timeline has its parts, in points, y growing downward: a value that
/// drawing, clicks and anchors ask alike. It is good until the card or the store changes.
///
/// The x of statements counts from x = 0, whatever the frame's own x. A position that is absent is
/// nowhere: its statement has no date, or the numbers leave no finite one.
class CardTimelineGeometry
{
public:
    /// A range of the sorted statements, by their indexes: from first up to, not including, end.
    struct Range
    {
        std::size_t first = 0;
        std::size_t end = 0;
    };

    struct Hit
    {
        CVStatement* statement = nullptr;
        QPointF point;
    };

    /// How far a hand may miss what it means, in points.
    static constexpr double reach = 8.0;

    /// Reads the card's statements; throws NSError when that fails.
    CardTimelineGeometry(const TimelineScale& scale, const CVCard& card, const QRectF& frame);
    CardTimelineGeometry(NSManagedObjectContext& context, const CVCard& card, const QRectF& frame);

    /// The row.
    const QRectF& frame() const { return m_frame; }

    /// The statements of the card as of its sortedStatements().
    const std::vector<CVStatement*>& sortedStatements() const { return m_statements; }

    std::optional<double> xOffset(const CVStatement& statement) const;
    /// The x of the card's first statement that has a date.
    std::optional<double> timelineOffset() const;
    /// From the first to the last statement with a date, 0 for a single one; rounded down as a
    /// whole, so the last dot may lie a point beyond.
    double timelineWidth() const;

    /// The darker strip that the row lies on.
    QRectF bandRect() const;
    /// The capsule, along the middle of its border. Absent when no statement has a date.
    std::optional<QRectF> borderRect() const;

    /// How much lower a balance at its limit is drawn than one of 0.
    double statementHeight() const;
    /// One for each of the sorted statements. Nothing holds them to the capsule: a balance above
    /// its limit lies below it.
    std::vector<std::optional<QPointF>> sortedStatementPoints() const;
    /// One of them. Throws std::out_of_range when there is no such statement.
    std::optional<QPointF> sortedStatementPoint(std::size_t index) const;
    /// The statements between two x, and to either side the nearest one that is somewhere, so that
    /// the lines to it are there too.
    Range statementsBetween(double left, double right) const;

    /// The square of the dot at a statement's point. A point beyond all screens is drawn nearer, so
    /// that its square can be counted in whole points too.
    static QRectF rectForStatementPoint(const QPointF& point);
    /// The edge of the row, upper or lower, beyond which a dot at this point would lie, in part at
    /// least: the balance is below zero or above its limit. There, a mark at the row's edge stands
    /// for the dot. Absent for a dot within the row.
    std::optional<NSRectEdge> edgeBefore(const QPointF& point) const;
    /// Where a statement at this point is seen: the square of its dot, or that of its mark.
    QRectF anchorRect(const QPointF& point) const;

    /// The first statement in order whose dot's square holds `position`; left and top edges belong
    /// to a square, right and bottom ones do not. Absent when none does.
    std::optional<Hit> hit(const QPointF& position) const;
    /// The same, or else the statement whose dot or mark is nearest, with the middle of that, if it
    /// is within reach; of two as near, the earlier.
    std::optional<Hit> hitWithinReach(const QPointF& position) const;

private:
    std::optional<double> xOffset(std::optional<Instant> date) const;

    TimelineScale m_scale;
    /// From the beginning of the first month of the axis to the first of all statements.
    double m_firstStatementOffset = 0.0;
    QRectF m_frame;
    std::vector<CVStatement*> m_statements;
    /// The first of them with a date: those without come first.
    std::size_t m_firstDated = 0;
};
