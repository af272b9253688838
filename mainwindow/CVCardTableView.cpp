#include "mainwindow/CVCardTableView.h"

#include "mainwindow/AccessibleCardRow.h"
#include "mainwindow/CVCardTableRowView.h"
#include "mainwindow/CVCardTableViewDelegate.h"
#include "model/CVCard.h"
#include "store/NSArrayController.h"

#include <QAbstractButton>
#include <QAction>
#include <QMouseEvent>

#include <algorithm>
#include <utility>

CVCardTableView::CVCardTableView(QWidget* parent)
    : RowTableView(parent)
{
    setTiledBackground(TiledBackground(QStringLiteral(":/images/whitey.png")));
    setAccessibleName(tr("Cards"));
}

void CVCardTableView::setCardsController(NSArrayController& cards)
{
    m_cards = &cards;
    setModel(&cards);
    setSelectionModel(&cards.selectionModel());
    connect(&cards.selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &CVCardTableView::showSelection);
    connect(&cards, &QAbstractItemModel::dataChanged, this,
            [this](const QModelIndex& first, const QModelIndex& last) {
                for (int row = first.row(); row <= last.row(); ++row) {
                    if (auto* const view = rowView(row)) {
                        view->cellView().update();
                    }
                }
            });
}

void CVCardTableView::setAddStatementAction(QAction* action)
{
    m_addStatementAction = action;
    connect(action, &QAction::enabledChanged, this,
            &CVCardTableView::showWhetherStatementsCanBeAdded);
    showWhetherStatementsCanBeAdded();
}

CVCard* CVCardTableView::cardAtRow(int row) const
{
    return m_cards ? static_cast<CVCard*>(m_cards->objectAtRow(row)) : nullptr;
}

std::optional<int> CVCardTableView::rowForCard(const CVCard* card) const
{
    const auto index = m_cards && card ? m_cards->indexOfObject(card) : std::nullopt;
    return index ? std::optional(static_cast<int>(*index)) : std::nullopt;
}

CVCardTableRowView* CVCardTableView::rowView(int row) const
{
    const auto found = m_rowViews.find(row);
    return found == m_rowViews.end() ? nullptr : found->second;
}

std::optional<int> CVCardTableView::rowForView(const QWidget* view) const
{
    const auto found = std::ranges::find_if(m_rowViews, [view](const auto& entry) {
        return view == entry.second || entry.second->isAncestorOf(view);
    });
    return found == m_rowViews.end() ? std::nullopt : std::optional(found->first);
}

QRect CVCardTableView::cardInfoPopoverAnchorRectForRow(int row) const
{
    const auto* const view = rowView(row);
    return view
               ? rectForSubview(view->cellView().viewWithTag(CVCardTableCellView::cardInfoTag), row)
               : QRect();
}

QRect CVCardTableView::newStatementPopoverAnchorRectForRow(int row) const
{
    const auto* const view = rowView(row);
    return view ? rectForSubview(view->cellView().viewWithTag(CVCardTableCellView::newStatementTag),
                                 row)
                : QRect();
}

void CVCardTableView::doubleClickRow(int row)
{
    scrollRowToVisible(row);
    // None while the list is shut.
    if (auto* const view = rowView(row)) {
        Q_EMIT doubleClicked(view);
    }
}

void CVCardTableView::redrawRows()
{
    for (const auto& [row, view] : m_rowViews) {
        view->cellView().update();
    }
    accessibleRowEvents().descriptionsDidChange();
}

std::unique_ptr<AccessibleRow> CVCardTableView::makeAccessibleRow(AccessibleRowList& list,
                                                                  const QModelIndex& index)
{
    return std::make_unique<AccessibleCardRow>(list, index);
}

void CVCardTableView::willSelectRow(int row)
{
    if (m_delegate) {
        m_delegate->cardTableViewDidSelectCard(*this, *cardAtRow(row), row);
    }
}

void CVCardTableView::layoutRows()
{
    const auto visible = visibleRect();
    const bool isAnyVisible = isVisible() && numberOfRows() > 0 && !visible.isEmpty();
    const int first = isAnyVisible ? visible.top() / rowHeight() : 0;
    const int end = isAnyVisible ? std::min(numberOfRows(), visible.bottom() / rowHeight() + 1) : 0;
    const auto before = std::exchange(m_rowViews, {});
    std::map<const CVCard*, CVCardTableRowView*> viewsOfCards;
    for (const auto& [row, view] : before) {
        viewsOfCards.emplace(view->cellView().objectValue(), view);
    }
    for (int row = first; row < end; ++row) {
        if (const auto known = viewsOfCards.extract(cardAtRow(row))) {
            m_rowViews.emplace(row, known.mapped());
        }
    }
    for (const auto& [card, view] : viewsOfCards) {
        // Its button may be pressed; whatever card it shows next was not meant.
        view->cellView().addStatementButton().setDown(false);
        view->hide();
        view->cellView().setObjectValue(nullptr);
        m_spareRowViews.push_back(view);
    }
    for (int row = first; row < end; ++row) {
        auto& place = m_rowViews[row];
        auto& view = place ? *place : spareRowView();
        place = &view;
        view.setGeometry(rectOfRow(row));
        view.setSelected(isRowSelected(row));
        auto* const card = cardAtRow(row);
        if (view.cellView().objectValue() != card) {
            view.cellView().setObjectValue(card);
        }
        view.cellView().addStatementButton().setEnabled(canAddStatements());
        view.show();
        const auto known = before.find(row);
        if (known == before.end() || known->second != &view) {
            Q_EMIT didAddRowView(&view, row);
        }
    }
}

void CVCardTableView::mouseDoubleClickEvent(QMouseEvent* event)
{
    const auto row = rowAtPoint(pointOfPress(*event));
    RowTableView::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton && row) {
        doubleClickRow(*row);
    }
}

QRect CVCardTableView::rectForSubview(const QWidget* view, int row) const
{
    return view ? QRect(view->mapTo(this, QPoint()), view->size()) & rectOfRow(row) : QRect();
}

CVCardTableRowView& CVCardTableView::spareRowView()
{
    if (m_spareRowViews.empty()) {
        auto* const view = new CVCardTableRowView(this);
        auto* const button = &view->cellView().addStatementButton();
        connect(button, &QAbstractButton::clicked, this,
                [this, button] { Q_EMIT addStatement(button); });
        return *view;
    }
    auto* const view = m_spareRowViews.back();
    m_spareRowViews.pop_back();
    return *view;
}

void CVCardTableView::showSelection()
{
    for (const auto& [row, view] : m_rowViews) {
        view->setSelected(isRowSelected(row));
    }
}

bool CVCardTableView::canAddStatements() const
{
    return m_addStatementAction && m_addStatementAction->isEnabled();
}

void CVCardTableView::showWhetherStatementsCanBeAdded()
{
    for (const auto& [row, view] : m_rowViews) {
        view->cellView().addStatementButton().setEnabled(canAddStatements());
    }
}
