#pragma once

#include "timeline/TimelinePictures.h"

#include <QPointF>
#include <QRectF>

#include <optional>
#include <span>

class CVCard;
class CVCardTimelineCellDelegate;
class CVStatement;
class CVTimelineData;
class CardTimelineGeometry;
class NSColorList;
class NSManagedObjectContext;
class QPainter;
class TimelineCapsule;

/// Draws the row of a card in the timeline: a capsule from the card's first to its last statement,
/// tinted by how much of the credit is used, ticks across it, and the statements as dots on a line.
///
/// One cell draws all rows in turn. Card, context and delegate are borrowed: they must outlive the
/// cell or be taken away again.
class CVCardTimelineCell
{
public:
    /// The card of the row; null when there is none.
    CVCard* objectValue() const { return m_card; }
    void setObjectValue(CVCard* card) { m_card = card; }
    CVCard* card() const { return objectValue(); }

    NSManagedObjectContext* managedObjectContext() const { return m_context; }
    void setManagedObjectContext(NSManagedObjectContext* context) { m_context = context; }

    /// Without one, no statement is the selected one.
    CVCardTimelineCellDelegate* timelineCellDelegate() const { return m_delegate; }
    void setTimelineCellDelegate(CVCardTimelineCellDelegate* delegate) { m_delegate = delegate; }

    /// A highlighted row has stronger colours: it is the selected one.
    bool isHighlighted() const { return m_isHighlighted; }
    void setHighlighted(bool isHighlighted) { m_isHighlighted = isHighlighted; }

    /// Whether what the row is drawn over is opaque everywhere, as a table's background is. The
    /// band darkens what is there and leaves alone what is not; where all is there, a mode of
    /// composition does the same that is an order of magnitude faster.
    bool isBackdropOpaque() const { return m_isBackdropOpaque; }
    void setBackdropOpaque(bool isOpaque) { m_isBackdropOpaque = isOpaque; }

    /// Draws the row in `frame`, in points, as far as it lies in `exposed`. Nothing is drawn
    /// outside of `exposed`; within, the line to a balance above its limit may lead below the
    /// frame, at whose edge a mark stands for the dot. Nothing at all is drawn for a card without
    /// statements.
    ///
    /// `axis` is the one calculated for a frame of the same width in the same paint event; without
    /// it, the cell calculates its own. Throws NSError when the store cannot be read; the painter
    /// is then as it was.
    void drawWithFrame(QPainter& painter, const QRectF& frame, const QRectF& exposed,
                       const CVTimelineData* axis = nullptr);

private:
    void drawBand(QPainter& painter, const QRectF& rect, const CVTimelineData& axis) const;
    void drawCapsule(QPainter& painter, const TimelineCapsule& capsule, const QRectF& border,
                     const QRectF& exposed, const NSColorList& colors, const CVTimelineData& axis);
    /// In the colour of the painter's pen.
    void drawGraphAtOffset(QPainter& painter, const CardTimelineGeometry& geometry,
                           const QRectF& exposed, const QPointF& offset,
                           std::span<const std::optional<QPointF>> points,
                           std::span<CVStatement* const> statements);

    CVCard* m_card = nullptr;
    NSManagedObjectContext* m_context = nullptr;
    CVCardTimelineCellDelegate* m_delegate = nullptr;
    bool m_isHighlighted = false;
    bool m_isBackdropOpaque = false;
    TimelinePictures m_pictures;
};
