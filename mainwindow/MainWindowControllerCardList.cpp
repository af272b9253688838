// How the main window's controller keeps the list of cards and the timeline, and what is selected
// in them, in step.

#include "foundation/Log.h"
#include "foundation/UserDefaults.h"
#include "mainwindow/DeleteKeyGuard.h"
#include "mainwindow/MainWindowController.h"
#include "mainwindow/MainWindowHost.h"
#include "mainwindow/WindowNotice.h"
#include "model/CVCard.h"
#include "model/CVStatement.h"
#include "store/NSArrayController.h"
#include "store/NSError.h"
#include "timeline/HorizontalScrollAnimation.h"

#include "ui_MainWindow.h"

#include <algorithm>
#include <utility>

std::optional<int> MainWindowController::selectedRow() const
{
    const auto index = m_cardsController->selectionIndex();
    return index ? std::optional(static_cast<int>(*index)) : std::nullopt;
}

CVCard* MainWindowController::selectedCard() const
{
    const auto index = m_cardsController->selectionIndex();
    return index ? static_cast<CVCard*>(m_cardsController->arrangedObjects()[*index]) : nullptr;
}

void MainWindowController::selectCardAndMakeVisible(CVCard& card)
{
    m_cardsController->setSelectedObjects({&card});
    if (const auto row = m_cardsController->indexOfObject(&card)) {
        m_ui->cardsTableView->scrollRowToVisible(static_cast<int>(*row));
    }
}

CVStatement* MainWindowController::selectedStatement() const
{
    return m_selectedStatement && !m_selectedStatement->isDeleted() ? m_selectedStatement : nullptr;
}

void MainWindowController::setSelectedStatement(CVStatement* statement)
{
    const bool isAnother = statement != selectedStatement();
    {
        const KeyValueChange change(*this, "selectedStatement");
        auto* const previous = std::exchange(m_selectedStatement, statement);
        if (m_ui) {
            m_ui->timelineTableView->selectedStatementDidChange(previous, statement);
        }
    }
    if (isAnother && selectedStatement() && m_statementEditor) {
        showSelectedStatementPopover();
    }
}

void MainWindowController::selectedStatementFiguresDidChange()
{
    if (m_statementEditor) {
        redrawTimeline();
        placeEditors();
    }
}

void MainWindowController::showStatement(CVStatement& statement)
{
    if (auto* const card = statement.card()) {
        selectCardAndMakeVisible(*card);
    }
    setSelectedStatement(&statement);
    makeStatementVisible(statement);
}

void MainWindowController::makeStatementVisible(const CVStatement& statement)
{
    const auto& table = *m_ui->timelineTableView;
    const QRectF visible = table.visibleRect();
    try {
        const auto rect = table.rectForStatement(statement);
        if (rect && !visible.contains(*rect)) {
            m_scrollAnimation->scrollTo(
                std::max(0.0, rect->x() - (visible.width() - rect->width()) * 0.5));
        }
    } catch (const NSError& error) {
        // Nothing that was about to be done depends on what is in view.
        Log::line(QString(u"Unable to show a statement: " + error.description()));
    }
}

void MainWindowController::cardTableViewDidSelectCard(CVCardTableView& /*table*/, CVCard& /*card*/,
                                                      int index)
{
    m_deleteKeyGuard->disarm();
    m_cardsController->setSelectionIndex(static_cast<std::size_t>(index));
}

void MainWindowController::timelineTableViewDidSelectTimelineForCard(CVTimelineTableView& /*table*/,
                                                                     CVCard& /*card*/, int index)
{
    m_cardsController->setSelectionIndex(static_cast<std::size_t>(index));
}

void MainWindowController::timelineTableViewDidSelectStatement(CVTimelineTableView& table,
                                                               CVStatement* statement,
                                                               const QPointF& point, int clickCount)
{
    m_deleteKeyGuard->disarm();
    setSelectedStatement(statement);
    table.update();
    if (!statement) {
        dismissStatementPopover();
    } else if (clickCount == 2) {
        showStatementPopoverAtPoint(point);
    }
}

void MainWindowController::showStatementPopoverAtPoint(const QPointF& /*point*/)
{
    if (selectedStatement()) {
        m_notice->withdraw();
        showSelectedStatementPopover();
    }
}

void MainWindowController::timelineTableViewDidCancelOperation(CVTimelineTableView& /*table*/)
{
    cancelOperation();
}

bool MainWindowController::timelineCellSelectStatement(const CVCardTimelineCell& /*cell*/,
                                                       const CVStatement& statement) const
{
    return &statement == m_selectedStatement;
}

void MainWindowController::selectionIndexDidChange()
{
    const bool isFirst = !m_wasSelectionRestored;
    m_wasSelectionRestored = true;
    if (isFirst) {
        const auto stored = m_host.userDefaults().integerForKey(u"selectedCardIndex");
        if (stored >= 0) {
            m_cardsController->setSelectionIndex(static_cast<std::size_t>(stored));
        }
        tickleCanScale();
    }
    const KeyValueChange change(*this, "canAddStatement");
}
