#include "timeline/CVTimelineTableView.h"

#include "model/CVCard.h"
#include "store/NSArrayController.h"
#include "store/NSManagedObjectContext.h"
#include "store/NSPersistentStoreCoordinator.h"

#include <algorithm>

CVTimelineTableView::CVTimelineTableView(QWidget* parent)
    : RowTableView(parent)
{
    // Time runs from left to right wherever the reader's text does not.
    setLayoutDirection(Qt::LeftToRight);
    setTiledBackground(TiledBackground(QStringLiteral(":/images/black_linen_v2.png")));
    m_cell.setBackdropOpaque(true);
}

void CVTimelineTableView::setManagedObjectContext(NSManagedObjectContext* context)
{
    m_context = context;
    m_cell.setManagedObjectContext(context);
    update();
}

void CVTimelineTableView::setCardsController(NSArrayController& cards)
{
    m_cards = &cards;
    setModel(&cards);
}

void CVTimelineTableView::setTimelineCellDelegate(CVCardTimelineCellDelegate* delegate)
{
    m_cell.setTimelineCellDelegate(delegate);
}

void CVTimelineTableView::setTimelineWidth(double width)
{
    // Not as a cast alone: an unbounded zoom may ask for more than a widget can be.
    setFixedWidth(static_cast<int>(std::clamp(width, 0.0, double(QWIDGETSIZE_MAX))));
}

void CVTimelineTableView::beginRows()
{
    if (m_context) {
        m_reading.emplace(m_context->persistentStoreCoordinator().store());
        m_axis.emplace().calculateTimelineWithContext(*m_context, rectOfRow(0));
    }
}

void CVTimelineTableView::endRows()
{
    m_axis.reset();
    m_reading.reset();
}

void CVTimelineTableView::paintRow(QPainter& painter, int row, const QRect& rect,
                                   const QRect& exposed)
{
    if (!m_axis) {
        return;
    }
    m_cell.setObjectValue(
        static_cast<CVCard*>(m_cards->arrangedObjects()[static_cast<std::size_t>(row)]));
    m_cell.setHighlighted(isRowSelected(row));
    m_cell.drawWithFrame(painter, rect, exposed, &*m_axis);
}
