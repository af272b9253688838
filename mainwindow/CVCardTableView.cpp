#include "mainwindow/CVCardTableView.h"

#include "mainwindow/CVCardTableRowView.h"
#include "model/CVCard.h"
#include "store/NSArrayController.h"
#include "store/NSManagedObjectContext.h"
#include "store/NSPersistentStoreCoordinator.h"

namespace {

/// How far a card's cell stays away from the ends of its row, in points.
constexpr int cellInset = 4;

} // namespace

CVCardTableView::CVCardTableView(QWidget* parent)
    : RowTableView(parent)
{
    setTiledBackground(TiledBackground(QStringLiteral(":/images/whitey.png")));
}

void CVCardTableView::setCardsController(NSArrayController& cards)
{
    m_cards = &cards;
    setModel(&cards);
    setSelectionModel(&cards.selectionModel());
}

void CVCardTableView::beginRows()
{
    if (auto* const context = m_cards ? m_cards->managedObjectContext() : nullptr) {
        m_reading.emplace(context->persistentStoreCoordinator().store());
    }
}

void CVCardTableView::endRows()
{
    m_reading.reset();
}

void CVCardTableView::paintRow(QPainter& painter, int row, const QRect& rect,
                               const QRect& /*exposed*/)
{
    const bool isSelected = isRowSelected(row);
    CVCardTableRowView::drawBackground(painter, rect, isSelected);
    m_cell.setObjectValue(
        static_cast<CVCard*>(m_cards->arrangedObjects()[static_cast<std::size_t>(row)]));
    m_cell.setHighlighted(isSelected);
    m_cell.drawWithFrame(painter, rect.adjusted(cellInset, 0, -cellInset, 0));
}
