#include "timeline/CardTimelineGeometry.h"

#include "model/Amounts.h"
#include "model/CVCard.h"
#include "model/CVStatement.h"
#include "model/Calculations.h"

#include <QLineF>

#include <algorithm>
#include <cmath>

namespace {

/// From a dot's middle to the edges of its square.
constexpr double dotRadius = 3.0;
/// From an edge of the row to a mark: the space around the capsule, its border, and a point of air
/// inside of it.
constexpr double markInset = 5.0;
/// What lies farther away than any screen reaches. It fits whole points as well.
constexpr double farthest = 1e8;

/// From the top of the frame to a balance of 0: the space around the capsule (4.0 + 2.5), the half
/// of a dot, and its distance from the border.
constexpr double topOfGraph = 4.0 + 2.5 + dotRadius + 1.0 - 0.5;

std::optional<double> ifFinite(double value)
{
    return std::isfinite(value) ? std::optional(value) : std::nullopt;
}

} // namespace

CardTimelineGeometry::CardTimelineGeometry(const TimelineScale& scale, const CVCard& card,
                                           const QRectF& frame)
    : m_scale(scale)
    , m_frame(frame)
    , m_statements(card.sortedStatements())
{
    if (const auto first = scale.firstStatementDate()) {
        m_firstStatementOffset = scale.points(*first - Calculations::beginningOfMonth(*first));
    }
    const auto firstDated = std::ranges::partition_point(
        m_statements, [](const CVStatement* statement) { return !statement->date(); });
    m_firstDated = static_cast<std::size_t>(firstDated - m_statements.begin());
}

CardTimelineGeometry::CardTimelineGeometry(NSManagedObjectContext& context, const CVCard& card,
                                           const QRectF& frame)
    : CardTimelineGeometry(TimelineScale(context, frame), card, frame)
{}

std::optional<double> CardTimelineGeometry::xOffset(const CVStatement& statement) const
{
    return xOffset(statement.date());
}

std::optional<double> CardTimelineGeometry::xOffset(std::optional<Instant> date) const
{
    const auto first = m_scale.firstStatementDate();
    if (!first || !date) {
        return std::nullopt;
    }
    const double x = m_firstStatementOffset + TimelineScale::margin;
    return ifFinite(*date == *first ? x : x + m_scale.points(*date - *first));
}

std::optional<double> CardTimelineGeometry::timelineOffset() const
{
    return m_firstDated < m_statements.size() ? xOffset(*m_statements[m_firstDated]) : std::nullopt;
}

double CardTimelineGeometry::timelineWidth() const
{
    if (m_firstDated == m_statements.size()) {
        return 0.0;
    }
    return m_scale.points(*m_statements.back()->date() - *m_statements[m_firstDated]->date());
}

QRectF CardTimelineGeometry::bandRect() const
{
    return {m_frame.x(), m_frame.y() + 2.0, m_frame.width(), m_frame.height() - 5.0};
}

std::optional<QRectF> CardTimelineGeometry::borderRect() const
{
    const auto left = timelineOffset();
    if (!left) {
        return std::nullopt;
    }
    const QRectF rect(m_frame.x() + *left + 0.5, m_frame.y() + 2.5, timelineWidth(),
                      m_frame.height() - 6.0);
    const bool isSomewhere = std::isfinite(rect.x()) && std::isfinite(rect.y()) &&
                             std::isfinite(rect.width()) && std::isfinite(rect.height());
    return isSomewhere ? std::optional(rect) : std::nullopt;
}

double CardTimelineGeometry::statementHeight() const
{
    return m_frame.height() - 8.0 - 5.0 - 6.0 - 2.0;
}

std::vector<std::optional<QPointF>> CardTimelineGeometry::sortedStatementPoints() const
{
    std::vector<std::optional<QPointF>> points(m_statements.size());
    for (std::size_t index = 0; index < points.size(); ++index) {
        points[index] = sortedStatementPoint(index);
    }
    return points;
}

std::optional<QPointF> CardTimelineGeometry::sortedStatementPoint(std::size_t index) const
{
    const auto& statement = *m_statements.at(index);
    const auto x = xOffset(statement);
    if (!x) {
        return std::nullopt;
    }
    const double limit = static_cast<float>(doubleValue(statement.limit()));
    const double balance = static_cast<float>(doubleValue(statement.balance()));
    const double drop = limit == 0.0 ? 0.0 : std::floor(balance * statementHeight() / limit);
    const auto y = ifFinite(m_frame.y() + drop + topOfGraph);
    return y ? std::optional(QPointF(*x, *y)) : std::nullopt;
}

CardTimelineGeometry::Range CardTimelineGeometry::statementsBetween(double left, double right) const
{
    const auto isSomewhere = [this](std::size_t index) {
        return sortedStatementPoint(index).has_value();
    };
    if (!m_scale.runsToTheRight()) {
        return {m_firstDated, m_statements.size()};
    }
    const auto firstFrom = [this](double x, auto isBefore) {
        const auto found =
            std::ranges::partition_point(m_statements, [&](const CVStatement* statement) {
                const auto offset = xOffset(*statement);
                return !offset || isBefore(*offset, x);
            });
        return static_cast<std::size_t>(found - m_statements.begin());
    };
    Range range{firstFrom(left, std::less()), firstFrom(right, std::less_equal())};
    range.end = std::max(range.first, range.end);
    for (bool isFound = false; range.first > m_firstDated && !isFound;) {
        isFound = isSomewhere(--range.first);
    }
    for (bool isFound = false; range.end < m_statements.size() && !isFound;) {
        isFound = isSomewhere(range.end++);
    }
    return range;
}

QRectF CardTimelineGeometry::rectForStatementPoint(const QPointF& point)
{
    const double x = std::clamp(point.x(), -farthest, farthest);
    const double y = std::clamp(point.y(), -farthest, farthest);
    return {x - dotRadius, y - dotRadius, 2 * dotRadius, 2 * dotRadius};
}

std::optional<NSRectEdge> CardTimelineGeometry::edgeBefore(const QPointF& point) const
{
    if (point.y() + dotRadius > m_frame.bottom()) {
        return NSRectEdge::MaxY;
    }
    return point.y() - dotRadius < m_frame.top() ? std::optional(NSRectEdge::MinY) : std::nullopt;
}

QRectF CardTimelineGeometry::anchorRect(const QPointF& point) const
{
    const auto edge = edgeBefore(point);
    if (!edge) {
        return rectForStatementPoint(point);
    }
    constexpr double distance = markInset + dotRadius;
    return rectForStatementPoint({point.x(), *edge == NSRectEdge::MinY
                                                 ? m_frame.top() + distance
                                                 : m_frame.bottom() - distance});
}

std::optional<CardTimelineGeometry::Hit> CardTimelineGeometry::hit(const QPointF& position) const
{
    for (std::size_t index = m_firstDated; index < m_statements.size(); ++index) {
        if (const auto point = sortedStatementPoint(index)) {
            const QRectF square = rectForStatementPoint(*point);
            if (position.x() >= square.left() && position.x() < square.right() &&
                position.y() >= square.top() && position.y() < square.bottom()) {
                return Hit{m_statements[index], *point};
            }
        }
    }
    return std::nullopt;
}

std::optional<CardTimelineGeometry::Hit>
CardTimelineGeometry::hitWithinReach(const QPointF& position) const
{
    if (const auto exact = hit(position)) {
        return exact;
    }
    std::optional<Hit> nearest;
    double nearestDistance = reach;
    const auto range = statementsBetween(position.x() - reach, position.x() + reach);
    for (auto index = range.first; index < range.end; ++index) {
        const auto point = sortedStatementPoint(index);
        const auto middle = point ? anchorRect(*point).center() : QPointF();
        const double distance = QLineF(middle, position).length();
        if (point && (nearest ? distance < nearestDistance : distance <= nearestDistance)) {
            nearest = {m_statements[index], middle};
            nearestDistance = distance;
        }
    }
    return nearest;
}
