#include "timeline/CVCardTimelineCell.h"

#include "model/Amounts.h"
#include "model/CVCard.h"
#include "model/CVStatement.h"
#include "timeline/CVAdditions.h"
#include "timeline/CVCardTimelineCellDelegate.h"
#include "timeline/CVTimelineData.h"
#include "timeline/CardTimelineGeometry.h"
#include "timeline/DevicePixels.h"
#include "timeline/TimelineCapsule.h"
#include "timeline/VerticalLines.h"
#include "widgets/HighContrast.h"
#include "widgets/PixelSnapping.h"

#include <QLineF>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace {

/// How far a dot and its ring reach from their middle, in points.
constexpr double graphReach = 6.0;

/// From the edge of a dot's square to that of its ring's.
constexpr double ringDistance = 2.5;

/// How far lines are followed beyond the frame, in points: nobody sees what a balance of a million
/// times the limit does out there, and painters count pixels in few bits.
constexpr double farthestLine = 100'000.0;

/// No window reaches farther than this, in points.
constexpr double farthestCoordinate = 1e7;

/// A row has to be higher than what lies above and below its capsule, in points.
constexpr double lowestRow = 6.0;

/// While one lives, changes to a painter's state are on trial; they are gone with it.
class SavedGraphicsState
{
public:
    explicit SavedGraphicsState(QPainter& painter)
        : m_painter(painter)
    {
        m_painter.save();
    }
    ~SavedGraphicsState() { m_painter.restore(); }
    Q_DISABLE_COPY_MOVE(SavedGraphicsState)

private:
    QPainter& m_painter;
};

/// Whether it is a rectangle that a painter can be asked for at all.
bool isDrawable(const QRectF& rect)
{
    const auto isNear = [](double position) {
        return std::abs(position) <= farthestCoordinate;
    };
    return isNear(rect.left()) && isNear(rect.top()) && isNear(rect.right()) &&
           isNear(rect.bottom());
}

QColor gray(float white, float alpha)
{
    return QColor::fromRgbF(white, white, white, alpha);
}

/// The part of the line inside the rectangle; absent when there is none.
std::optional<QLineF> clipped(const QLineF& line, const QRectF& rect)
{
    double first = 0.0;
    double last = 1.0;
    const auto cut = [&](double start, double change, double low, double high) {
        if (change == 0.0) {
            return start >= low && start <= high;
        }
        const auto [from, to] = std::minmax({(low - start) / change, (high - start) / change});
        first = std::max(first, from);
        last = std::min(last, to);
        return first <= last;
    };
    if (!cut(line.x1(), line.dx(), rect.left(), rect.right()) ||
        !cut(line.y1(), line.dy(), rect.top(), rect.bottom())) {
        return std::nullopt;
    }
    return QLineF(first > 0.0 ? line.pointAt(first) : line.p1(),
                  last < 1.0 ? line.pointAt(last) : line.p2());
}

/// Lines for the ticks in the colour of their kind.
template <typename AddTick>
void forEachTick(const CVTimelineData& axis, const QColor& monthColor, const QColor& yearColor,
                 AddTick addTick)
{
    const QColor month = HighContrast::line(monthColor);
    const QColor year = HighContrast::line(yearColor);
    for (const auto& tick : axis.tickOffsets()) {
        if (tick.isYear || !axis.monthTicksHidden()) {
            addTick(tick.offset, tick.isYear ? year : month);
        }
    }
}

void drawBackgroundMonthTicksInFrame(QPainter& painter, const QRectF& frame,
                                     const CVTimelineData& axis)
{
    VerticalLines lines(painter, frame.left(), frame.right());
    forEachTick(axis, gray(1.0F, 0.05F), gray(1.0F, 0.1F),
                [&](double offset, const QColor& color) { lines.addLine(offset, color); });
    lines.draw(painter, frame.top(), frame.bottom());
}

void drawMonthTicksWithTimelineData(VerticalLines& lines, const CVTimelineData& axis,
                                    const QRectF& safeRect, double xOffset,
                                    const QColor& monthColor, const QColor& yearColor)
{
    forEachTick(axis, monthColor, yearColor, [&](double offset, const QColor& color) {
        if (offset >= safeRect.left() && offset <= safeRect.right()) {
            lines.addLine(offset, color, xOffset);
        }
    });
}

/// A dark line with a light one at its right is a groove.
void drawMonthTicksWithFrame(QPainter& painter, const QRectF& exposed, const QRectF& border,
                             const CVTimelineData& axis)
{
    const QRectF safe = border.adjusted(3.0, 0.0, -3.0, 0.0);
    if (safe.width() < 0.0) {
        return;
    }
    VerticalLines lines(painter, std::max(exposed.left(), safe.left() - 1.0),
                        std::min(exposed.right(), safe.right() + 2.0));
    drawMonthTicksWithTimelineData(lines, axis, safe, 0.0, gray(0.0F, 0.05F), gray(0.0F, 0.1F));
    drawMonthTicksWithTimelineData(lines, axis, safe, 1.0, gray(1.0F, 0.2F), gray(1.0F, 0.3F));
    lines.draw(painter, std::max(exposed.top(), safe.top()),
               std::min(exposed.bottom(), safe.bottom()));
}

} // namespace

void CVCardTimelineCell::drawWithFrame(QPainter& painter, const QRectF& frame,
                                       const QRectF& exposed, const CVTimelineData* axis)
{
    if (!m_card || !m_context || !isDrawable(frame) || !isDrawable(exposed) ||
        frame.height() <= lowestRow) {
        return;
    }
    std::optional<CVTimelineData> ownAxis;
    if (!axis || !axis->scale()) {
        ownAxis.emplace().calculateTimelineWithContext(*m_context, frame);
        axis = &*ownAxis;
    }
    const CardTimelineGeometry geometry(*axis->scale(), *m_card, frame);
    if (geometry.sortedStatements().empty()) {
        return;
    }

    const SavedGraphicsState savedState(painter);
    painter.setClipRect(exposed, Qt::IntersectClip);
    painter.setRenderHint(QPainter::Antialiasing, false);

    const auto border = geometry.borderRect();
    const TimelineCapsule capsule(painter, border.value_or(QRectF()), exposed);
    const bool isCapsuleVisible = border && capsule.isVisible();

    // The capsule's body hides what is beneath: the band is drawn at its sides only.
    const QRectF reached = exposed.adjusted(-1.0, -1.0, 1.0, 1.0);
    const QRectF band = geometry.bandRect() & reached;
    const QRectF covered = isCapsuleVisible ? capsule.coveringRect() : QRectF();
    if (covered.isEmpty()) {
        drawBand(painter, band, *axis);
    } else {
        QRectF side = band;
        side.setRight(std::min(side.right(), covered.left()));
        drawBand(painter, side, *axis);
        side = band;
        side.setLeft(std::max(side.left(), covered.right()));
        drawBand(painter, side, *axis);
    }

    const auto& statements = geometry.sortedStatements();
    const double ratio = doubleValue(statements.back()->balance()) / doubleValue(m_card->limit());
    const auto colors = CVAdditions::cvColorsWithCreditUsageRatio(ratio, m_isHighlighted);
    if (isCapsuleVisible) {
        drawCapsule(painter, capsule, *border, reached, colors, *axis);
    }

    const auto range =
        geometry.statementsBetween(exposed.left() - graphReach, exposed.right() + graphReach);
    std::vector<std::optional<QPointF>> points;
    for (auto index = range.first; index < range.end; ++index) {
        points.push_back(geometry.sortedStatementPoint(index));
    }
    painter.setPen(colors.colorWithKey("graph"));
    drawGraphAtOffset(painter, geometry, exposed, QPointF(), points,
                      std::span(statements).subspan(range.first, points.size()));
}

void CVCardTimelineCell::drawBand(QPainter& painter, const QRectF& rect,
                                  const CVTimelineData& axis) const
{
    if (rect.width() <= 0.0 || rect.height() <= 0.0) {
        return;
    }
    {
        const QRectF snapped = PixelSnapping(painter).snappedRect(rect);
        DevicePixels pixels(painter);
        if (!m_isBackdropOpaque) {
            painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
        }
        pixels.fillRect(pixels.pixels(snapped), CVAdditions::cvTimelineBackgroundDarkColor());
    }
    drawBackgroundMonthTicksInFrame(painter, rect, axis);
}

void CVCardTimelineCell::drawCapsule(QPainter& painter, const TimelineCapsule& capsule,
                                     const QRectF& border, const QRectF& exposed,
                                     const NSColorList& colors, const CVTimelineData& axis)
{
    capsule.drawBody(painter, colors.colorWithKey("light"), colors.colorWithKey("dark"));
    drawMonthTicksWithFrame(painter, exposed, border, axis);
    // What casts the shadow is filled with the band's colour, and as faint as that is the shadow.
    const QColor borderColor =
        CVAdditions::cvTimelineBorderColorForHighlightedState(m_isHighlighted);
    QColor shadowColor = borderColor;
    shadowColor.setAlphaF(0.8F * CVAdditions::cvTimelineBackgroundDarkColor().alphaF());
    capsule.drawFrame(painter, m_pictures, borderColor, colors.colorWithKey("highlight"),
                      shadowColor);
}

void CVCardTimelineCell::drawGraphAtOffset(QPainter& painter, const CardTimelineGeometry& geometry,
                                           const QRectF& exposed, const QPointF& offset,
                                           std::span<const std::optional<QPointF>> points,
                                           std::span<CVStatement* const> statements)
{
    const SavedGraphicsState savedState(painter);
    const QColor color = painter.pen().color();
    const PixelSnapping snapping(painter);
    const double ratio = DevicePixels::ratio(painter);
    const QRectF reached = exposed.adjusted(-graphReach, -graphReach, graphReach, graphReach);
    const QRectF drawable =
        geometry.frame().adjusted(-farthestLine, -farthestLine, farthestLine, farthestLine);

    std::vector<std::pair<QPointF, const QImage*>> signs;
    std::vector<QRectF> rings;
    std::vector<QLineF> line;
    std::optional<QPointF> previous;
    for (std::size_t index = 0; index < points.size(); ++index) {
        if (!points[index]) {
            continue;
        }
        // All dots are alike on whole pixels, and the line keeps to their middles.
        const QRectF square = CardTimelineGeometry::rectForStatementPoint(*points[index] + offset);
        const QPointF corner = snapping.snappedRect(square).topLeft();
        const QPointF point = corner + (*points[index] + offset - square.topLeft());
        const auto edge = geometry.edgeBefore(*points[index]);
        const QRectF shown =
            edge ? snapping.snappedRect(geometry.anchorRect(*points[index]).translated(offset))
                 : QRectF(corner, square.size());
        if (reached.contains(shown.center())) {
            signs.emplace_back(shown.topLeft() * ratio, edge ? &m_pictures.mark(*edge, color, ratio)
                                                             : &m_pictures.dot(color, ratio));
            if (m_delegate && m_delegate->timelineCellSelectStatement(*this, *statements[index])) {
                rings.push_back(
                    QRectF(shown.topLeft(), square.size())
                        .adjusted(-ringDistance, -ringDistance, ringDistance, ringDistance));
            }
        }
        if (previous) {
            if (const auto segment = clipped(QLineF(*previous, point), drawable)) {
                line.push_back(*segment);
            }
        }
        previous = point;
    }

    if (!signs.empty()) {
        const DevicePixels pixels(painter);
        for (const auto& [corner, picture] : signs) {
            painter.drawImage(corner, *picture);
        }
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(color, 1.0));
    for (const auto& ring : rings) {
        painter.drawEllipse(ring);
    }
    // Single segments with flat ends, which meet inside the dots: joining them costs many times
    // more.
    painter.setPen(QPen(color, 2.0, Qt::SolidLine, Qt::FlatCap));
    painter.drawLines(line.data(), static_cast<int>(line.size()));
}
