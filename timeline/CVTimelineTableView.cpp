#include "timeline/CVTimelineTableView.h"

#include "foundation/Log.h"
#include "model/CVCard.h"
#include "model/CVStatement.h"
#include "store/NSArrayController.h"
#include "store/NSManagedObjectContext.h"
#include "store/NSPersistentStoreCoordinator.h"
#include "timeline/AccessibleTimelineRow.h"
#include "timeline/CVCardTimelineCellDelegate.h"
#include "timeline/CVTimelineTableViewDelegate.h"
#include "timeline/StatementText.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QToolTip>

#include <algorithm>

namespace {

/// An object, for a log line.
QString described(const NSManagedObject* object)
{
    if (!object) {
        return QStringLiteral("(null)");
    }
    const auto id = object->recordID();
    return QStringLiteral("<%1 %2>").arg(QString::fromStdString(object->entity().name()),
                                         id ? QString::number(*id) : QStringLiteral("new"));
}

} // namespace

CVTimelineTableView::CVTimelineTableView(QWidget* parent)
    : RowTableView(parent)
{
    // Time runs from left to right wherever the reader's text does not.
    setLayoutDirection(Qt::LeftToRight);
    setTiledBackground(TiledBackground(QStringLiteral(":/images/black_linen_v2.png")));
    m_cell.setBackdropOpaque(true);
    setAccessibleName(tr("Timeline"));
}

void CVTimelineTableView::setManagedObjectContext(NSManagedObjectContext* context)
{
    m_context = context;
    m_cell.setManagedObjectContext(context);
    m_accessibleStatementEvents.setManagedObjectContext(context);
    update();
}

void CVTimelineTableView::setCardsController(NSArrayController& cards)
{
    m_cards = &cards;
    setModel(&cards);
    setSelectionModel(&cards.selectionModel());
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

CVCard* CVTimelineTableView::cardAtRow(int row) const
{
    return m_cards ? static_cast<CVCard*>(m_cards->objectAtRow(row)) : nullptr;
}

std::optional<int> CVTimelineTableView::rowForCard(const CVCard* card) const
{
    const auto index = m_cards && card ? m_cards->indexOfObject(card) : std::nullopt;
    return index ? std::optional(static_cast<int>(*index)) : std::nullopt;
}

std::optional<CardTimelineGeometry> CVTimelineTableView::geometryOfRow(int row) const
{
    const auto* const card = cardAtRow(row);
    if (!card || !m_context) {
        return std::nullopt;
    }
    const ReadTransaction reading(m_context->persistentStoreCoordinator().store());
    return CardTimelineGeometry(*m_context, *card, rectOfRow(row));
}

std::optional<QRectF> CVTimelineTableView::rectForStatement(const CVStatement& statement) const
{
    const auto place = placeOfStatement(statement);
    return place ? std::optional(CardTimelineGeometry::rectForStatementPoint(place->point))
                 : std::nullopt;
}

std::optional<QRectF>
CVTimelineTableView::anchorRectForStatement(const CVStatement& statement) const
{
    const auto place = placeOfStatement(statement);
    return place ? std::optional(place->geometry.anchorRect(place->point)) : std::nullopt;
}

std::optional<CVTimelineTableView::Place>
CVTimelineTableView::placeOfStatement(const CVStatement& statement) const
{
    const auto* const card = statement.card();
    const auto row = rowForCard(card);
    const auto geometry = row ? geometryOfRow(*row) : std::nullopt;
    if (!geometry) {
        Log::line(QString(u"Internal error: no row for card " + described(card)));
        return std::nullopt;
    }
    const auto& statements = geometry->sortedStatements();
    const auto found = std::ranges::find(statements, &statement);
    if (found == statements.end()) {
        Log::line(
            QString(u"Internal error: index not found for statement " + described(&statement)));
        return std::nullopt;
    }
    const auto point =
        geometry->sortedStatementPoint(static_cast<std::size_t>(found - statements.begin()));
    return point ? std::optional(Place{*geometry, *point}) : std::nullopt;
}

bool CVTimelineTableView::isStatementSelected(const CVStatement& statement) const
{
    const auto* const delegate = timelineCellDelegate();
    return delegate && delegate->timelineCellSelectStatement(m_cell, statement);
}

void CVTimelineTableView::selectedStatementDidChange(CVStatement* previous, CVStatement* current)
{
    m_accessibleStatementEvents.selectedStatementDidChange(previous, current);
}

void CVTimelineTableView::clickStatement(CVStatement& statement, int clickCount)
{
    const auto row = rowForCard(statement.card());
    const auto rect = row ? anchorRectForStatement(statement) : std::nullopt;
    if (!rect) {
        return;
    }
    scrollRowToVisible(*row);
    const QRectF visible = visibleRect();
    if (rect->left() < visible.left() || rect->right() > visible.right()) {
        scrollPoint({rect->center().x() - visible.width() / 2.0, visible.top()});
    }
    chooseRow(*row);
    if (m_delegate) {
        m_delegate->timelineTableViewDidSelectStatement(*this, &statement, rect->center(),
                                                        clickCount);
    }
}

void CVTimelineTableView::unselectStatement()
{
    if (m_delegate) {
        m_delegate->timelineTableViewDidSelectStatement(*this, nullptr, QPointF(), 0);
    }
}

void CVTimelineTableView::cancelOperation()
{
    if (m_delegate) {
        m_delegate->timelineTableViewDidCancelOperation(*this);
    }
}

std::unique_ptr<AccessibleRow> CVTimelineTableView::makeAccessibleRow(AccessibleRowList& list,
                                                                      const QModelIndex& index)
{
    return std::make_unique<AccessibleTimelineRow>(list, index);
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
    m_cell.setObjectValue(cardAtRow(row));
    m_cell.setHighlighted(isRowSelected(row));
    m_cell.drawWithFrame(painter, rect, exposed, &*m_axis);
}

void CVTimelineTableView::willSelectRow(int row)
{
    if (m_delegate) {
        m_delegate->timelineTableViewDidSelectTimelineForCard(*this, *cardAtRow(row), row);
    }
}

bool CVTimelineTableView::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        showToolTip(static_cast<const QHelpEvent&>(*event));
        return true;
    }
    return RowTableView::event(event);
}

void CVTimelineTableView::mousePressEvent(QMouseEvent* event)
{
    mouseDown(event, 1);
}

void CVTimelineTableView::mouseDoubleClickEvent(QMouseEvent* event)
{
    mouseDown(event, 2);
}

void CVTimelineTableView::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && event->modifiers() == Qt::NoModifier) {
        cancelOperation();
        return;
    }
    RowTableView::keyPressEvent(event);
}

void CVTimelineTableView::mouseDown(QMouseEvent* event, int clickCount)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    const auto point = pointOfPress(*event);
    const auto row = rowAtPoint(point);
    if (!row) {
        unselectStatement();
        return;
    }
    // The row first, then the statement in it.
    RowTableView::mousePressEvent(event);
    const auto geometry = geometryOfRow(*row);
    const auto hit = geometry ? geometry->hitWithinReach(point) : std::nullopt;
    if (m_delegate) {
        m_delegate->timelineTableViewDidSelectStatement(*this, hit ? hit->statement : nullptr,
                                                        hit ? hit->point : QPointF(), clickCount);
    }
}

void CVTimelineTableView::showToolTip(const QHelpEvent& event)
{
    const auto row = rowAtPoint(event.pos());
    const auto geometry = row ? geometryOfRow(*row) : std::nullopt;
    const auto hit = geometry ? geometry->hitWithinReach(event.pos()) : std::nullopt;
    if (!hit) {
        QToolTip::hideText();
        return;
    }
    // No farther than to the dot: the next one may be as near.
    const auto square = CardTimelineGeometry::rectForStatementPoint(hit->point).toAlignedRect();
    QToolTip::showText(event.globalPos(), StatementText::toolTip(*hit->statement), this,
                       square.united({event.pos(), QSize(1, 1)}));
}
