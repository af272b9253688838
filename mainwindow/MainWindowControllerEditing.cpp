// How the main window's controller adds, edits and deletes cards and statements: the popovers with
// their editors, and what becomes of what was typed in them.

#include "editors/CVCardPopoverController.h"
#include "editors/CVStatementPopoverController.h"
#include "editors/OADatePickerTextField.h"
#include "editors/VRClone.h"
#include "foundation/Clock.h"
#include "foundation/Log.h"
#include "mainwindow/MainWindowController.h"
#include "model/CVCard.h"
#include "model/CVManagedObjectContext.h"
#include "model/CVStatement.h"
#include "store/NSArrayController.h"
#include "store/NSManagedObjectContext.h"
#include "widgets/NSPopover.h"

#include "ui_MainWindow.h"

#include <QScopedValueRollback>

NSManagedObjectContext& MainWindowController::scratchContext()
{
    if (!m_scratchContext) {
        m_scratchContext =
            std::make_unique<NSManagedObjectContext>(m_context->persistentStoreCoordinator());
    }
    return *m_scratchContext;
}

CVCardPopoverController& MainWindowController::cardPopoverController()
{
    if (!m_cardPopoverController) {
        m_cardPopoverController = std::make_unique<CVCardPopoverController>();
    }
    return *m_cardPopoverController;
}

CVStatementPopoverController& MainWindowController::statementPopoverController()
{
    if (!m_statementPopoverController) {
        m_statementPopoverController = std::make_unique<CVStatementPopoverController>();
    }
    return *m_statementPopoverController;
}

std::unique_ptr<NSPopover> MainWindowController::newPopover(QWidget& content, const QString& name)
{
    auto popover = std::make_unique<NSPopover>(content);
    popover->setAnimates(true);
    popover->setDelegate(this);
    popover->setAccessibleName(name);
    return popover;
}

std::unique_ptr<NSPopover> MainWindowController::newCardPopover()
{
    auto popover = newPopover(cardPopoverController().view(), tr("Card"));
    popover->setBehavior(NSPopover::Behavior::Semitransient);
    return popover;
}

std::unique_ptr<NSPopover> MainWindowController::newStatementPopover()
{
    return newPopover(statementPopoverController().view(), tr("Statement"));
}

void MainWindowController::addCard()
{
    if (!m_context) {
        return;
    }
    auto& editor = cardPopoverController();
    editor.setContext(&scratchContext());
    // The popover may be open for another card: what it shows from now on is a new one.
    editor.setOriginalCard(nullptr);
    m_editingCard = nullptr;
    editor.createNewCard();
    if (!m_cardPopover) {
        m_ui->splitView->setPaneCollapsed(0, false);
        m_cardPopover = newCardPopover();
        m_cardPopover->showRelativeToRect(m_ui->cardsTitleBox->geometry(), *m_ui->cardsPane,
                                          NSRectEdge::MaxY);
        editor.setPopover(m_cardPopover.get());
    }
}

void MainWindowController::showNewCardPopoverIfNeeded()
{
    if (m_context && CVManagedObjectContext::cardCount(*m_context) == 0) {
        addCard();
    }
}

void MainWindowController::addStatement(QObject* sender)
{
    if (!m_context) {
        return;
    }
    m_ui->splitView->setPaneCollapsed(0, false);
    const auto* const view = qobject_cast<QWidget*>(sender);
    auto row = view ? m_ui->cardsTableView->rowForView(view) : selectedRow();
    if (!row) {
        row = selectedRow();
    }
    auto* const card = row ? m_ui->cardsTableView->cardAtRow(*row) : nullptr;
    if (!card) {
        return;
    }
    selectCardAndMakeVisible(*card);
    m_cardForNewStatement = card;
    m_notifications.enqueue(newStatementNotification);
}

void MainWindowController::showNewStatementPopoverForSelectedCard()
{
    if (const auto row = selectedRow()) {
        showNewStatementPopoverAtRow(*row);
    }
}

void MainWindowController::showNewStatementPopoverAtRow(int row)
{
    auto& editor = statementPopoverController();
    editor.setOriginalStatement(nullptr);
    editor.setIsDirty(false);
    if (m_statementPopover || !m_cardForNewStatement) {
        return;
    }
    editor.setContext(&scratchContext());
    editor.setCard(m_cardForNewStatement);
    editor.createNewStatement();
    m_statementPopover = newStatementPopover();
    m_statementPopover->showRelativeToRect(
        m_ui->cardsTableView->newStatementPopoverAnchorRectForRow(row), *m_ui->cardsTableView,
        NSRectEdge::MaxX);
    editor.setPopover(m_statementPopover.get());
}

void MainWindowController::showStatementPopoverAtPoint(const QPointF& /*point*/)
{
    if (m_selectedStatement) {
        showSelectedStatementPopover();
    }
}

void MainWindowController::showSelectedStatementPopover()
{
    const auto rect = m_ui->timelineTableView->rectForStatement(*m_selectedStatement);
    if (rect) {
        showStatementPopoverForStatement(*m_selectedStatement, rect->toAlignedRect());
    }
}

void MainWindowController::showStatementPopoverForStatement(CVStatement& statement,
                                                            const QRect& anchor)
{
    auto& scratch = scratchContext();
    auto& clone = static_cast<CVStatement&>(VRClone::vrShallowCloneInContext(statement, scratch));
    auto& editor = statementPopoverController();
    editor.setContext(&scratch);
    editor.setCard(statement.card());
    editor.setStatement(&clone);
    editor.setOriginalStatement(&statement);
    if (m_statementPopover) {
        m_statementPopover->setPositioningRect(anchor);
        return;
    }
    m_statementPopover = newStatementPopover();
    m_statementPopover->showRelativeToRect(anchor, *m_ui->timelineTableView, NSRectEdge::MaxY);
    editor.setPopover(m_statementPopover.get());
}

void MainWindowController::dismissStatementPopover()
{
    if (m_statementPopover) {
        statementPopoverController().setIsDirty(false);
        m_statementPopover->close();
    }
}

void MainWindowController::getInfo(QObject* sender)
{
    if (!m_context) {
        return;
    }
    const auto* const view = qobject_cast<QWidget*>(sender);
    auto row = view ? m_ui->cardsTableView->rowForView(view) : std::nullopt;
    if (!row && m_selectedStatement) {
        showSelectedStatementPopover();
        return;
    }
    if (!row) {
        row = selectedRow();
    }
    auto* const card = row ? m_ui->cardsTableView->cardAtRow(*row) : nullptr;
    if (!card) {
        return;
    }
    dismissStatementPopover();
    const auto anchor = m_ui->cardsTableView->cardInfoPopoverAnchorRectForRow(*row);
    if (m_cardPopover) {
        cardPopoverController().setCard(card);
        m_cardPopover->setPositioningRect(anchor);
    } else {
        showCardPopoverForCard(*card, *row, anchor);
    }
}

void MainWindowController::getSelectedCardInfo()
{
    if (!m_context) {
        return;
    }
    if (m_selectedStatement) {
        showSelectedStatementPopover();
    } else {
        showSelectedCardPopover();
    }
}

void MainWindowController::showSelectedCardPopover()
{
    auto* const card = selectedCard();
    if (!card) {
        Log::line(u"Editing card and no selection");
        return;
    }
    const int row = selectedRow().value();
    m_ui->splitView->setPaneCollapsed(0, false);
    m_ui->cardsTableView->scrollRowToVisible(row);
    showCardPopoverForCard(*card, row, m_ui->cardsTableView->cardInfoPopoverAnchorRectForRow(row));
}

void MainWindowController::showCardPopoverForCard(CVCard& card, int row, const QRect& anchor)
{
    auto& scratch = scratchContext();
    auto& clone = static_cast<CVCard&>(VRClone::vrShallowCloneInContext(card, scratch));
    auto& editor = cardPopoverController();
    editor.setContext(&scratch);
    editor.setOriginalCard(&card);
    editor.setCard(&clone);
    if (m_cardPopover) {
        m_cardPopover->setPositioningRect(anchor);
    } else {
        m_cardPopover = newCardPopover();
        m_cardPopover->showRelativeToRect(
            m_ui->cardsTableView->cardInfoPopoverAnchorRectForRow(row), *m_ui->cardsTableView,
            NSRectEdge::MaxX);
    }
    editor.setPopover(m_cardPopover.get());
    m_editingCard = &card;
}

void MainWindowController::delete_()
{
    if (!m_context) {
        return;
    }
    const KeyValueChange totals(*this, "formattedTotals");
    if (m_selectedStatement) {
        dismissStatementPopover();
        if (!m_selectedStatement->isDeleted()) {
            m_context->deleteObject(*m_selectedStatement);
        }
        m_context->undoManager().setActionName(tr("Delete Statement"));
    } else {
        m_cardsController->remove();
        m_context->undoManager().setActionName(tr("Delete Card"));
    }
    CVManagedObjectContext::saveAndLogError(*m_context);
    tickleCanScale();
    redrawTimeline();
}

void MainWindowController::selectedStatementFiguresDidChange()
{
    if (!m_statementPopover || m_isClosingStatementPopover || !m_selectedStatement) {
        return;
    }
    if (m_selectedStatement != statementPopoverController().originalStatement()) {
        showSelectedStatementPopover();
        return;
    }
    redrawTimeline();
    if (m_selectedStatement->card()) {
        if (const auto rect = m_ui->timelineTableView->rectForStatement(*m_selectedStatement)) {
            m_statementPopover->setPositioningRect(rect->toAlignedRect());
        }
    }
}

void MainWindowController::popoverWillShow(NSPopover& popover)
{
    if (&popover == m_statementPopover.get()) {
        statementPopoverController().dateField().setMaxDate(Clock::now());
    }
}

void MainWindowController::popoverDidShow(NSPopover& popover)
{
    if (&popover == m_statementPopover.get()) {
        statementPopoverController().dateField().setFocus();
    }
}

bool MainWindowController::popoverShouldClose(NSPopover& popover)
{
    if (&popover == m_cardPopover.get()) {
        auto* const card = cardPopoverController().card();
        if (m_editingCard && m_editingCard != card) {
            m_editingCard = card;
            return false;
        }
    } else if (&popover == m_statementPopover.get()) {
        const auto* const statement = statementPopoverController().statement();
        auto* const card = statement ? statement->card() : nullptr;
        if (m_cardForNewStatement && m_cardForNewStatement != card) {
            m_cardForNewStatement = card;
            return false;
        }
    }
    return true;
}

void MainWindowController::popoverDidClose(NSPopover& popover)
{
    if (&popover == m_statementPopover.get()) {
        statementPopoverDidClose();
    } else if (&popover == m_cardPopover.get()) {
        cardPopoverDidClose();
    }
}

void MainWindowController::statementPopoverDidClose()
{
    const QScopedValueRollback closing(m_isClosingStatementPopover, true);
    auto& editor = statementPopoverController();
    if (auto* const statement = editor.statement()) {
        const KeyValueChange totals(*this, "formattedTotals");
        if (auto* const original = editor.originalStatement()) {
            if (editor.isDirty() && !original->isDeleted()) {
                updateStatement(*original, *statement);
            }
            scratchContext().deleteObject(*statement);
            scratchContext().processPendingChanges();
        } else {
            if (editor.isDirty() && m_cardForNewStatement && !m_cardForNewStatement->isDeleted()) {
                insertStatement(*statement);
            }
            m_cardForNewStatement = nullptr;
        }
        redrawTimeline();
        tickleCanScale();
    }
    editor.setOriginalStatement(nullptr);
    editor.setStatement(nullptr);
    editor.setPopover(nullptr);
    m_statementPopover.reset();
}

void MainWindowController::updateStatement(CVStatement& statement, const CVStatement& source)
{
    auto& undoManager = m_context->undoManager();
    {
        const UndoGroup group(undoManager);
        VRClone::vrCopyAttributesFromObject(statement, source, scratchContext());
    }
    undoManager.setActionName(tr("Edit Statement"));
    CVManagedObjectContext::saveAndLogError(*m_context);
}

void MainWindowController::insertStatement(const CVStatement& source)
{
    auto& undoManager = m_context->undoManager();
    CVStatement* statement = nullptr;
    {
        const UndoGroup group(undoManager);
        statement =
            static_cast<CVStatement*>(&m_context->insertNewObjectForEntityForName("Statement"));
        VRClone::vrCopyAttributesFromObject(*statement, source, scratchContext());
        statement->setCard(m_cardForNewStatement);
    }
    undoManager.setActionName(tr("Add Statement"));
    CVManagedObjectContext::saveAndLogError(*m_context);
    makeStatementVisible(*statement);
    setSelectedStatement(statement);
    selectCardAndMakeVisible(*m_cardForNewStatement);
}

void MainWindowController::cardPopoverDidClose()
{
    auto& editor = cardPopoverController();
    if (auto* const card = editor.card()) {
        // A card of the main context was edited in place.
        const bool isScratch = &card->managedObjectContext() == m_scratchContext.get();
        if (auto* const original = editor.originalCard()) {
            if (editor.isDirty() && isScratch && !original->isDeleted()) {
                updateCard(*original, *card);
            }
            m_editingCard = nullptr;
            editor.setOriginalCard(nullptr);
        } else if (editor.isDirty() && isScratch) {
            insertCard(*card);
        }
        if (isScratch) {
            scratchContext().deleteObject(*card);
            scratchContext().processPendingChanges();
        }
    }
    editor.setPopover(nullptr);
    redrawTimeline();
    editor.setCard(nullptr);
    m_cardPopover.reset();
}

void MainWindowController::updateCard(CVCard& card, const CVCard& source)
{
    auto& undoManager = m_context->undoManager();
    {
        const UndoGroup group(undoManager);
        VRClone::vrCopyAttributesFromObject(card, source, scratchContext());
    }
    undoManager.setActionName(tr("Edit Card"));
    m_context->processPendingChanges();
}

void MainWindowController::insertCard(const CVCard& source)
{
    auto& undoManager = m_context->undoManager();
    CVCard* card = nullptr;
    {
        const UndoGroup group(undoManager);
        card = static_cast<CVCard*>(&m_context->insertNewObjectForEntityForName("Card"));
        VRClone::vrCopyAttributesFromObject(*card, source, scratchContext());
    }
    undoManager.setActionName(tr("Add Card"));
    m_context->processPendingChanges();
    selectCardAndMakeVisible(*card);
}
