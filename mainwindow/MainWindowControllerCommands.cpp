// What the main window's controller does at the person's command, when commands make sense, and the
// line of totals.

#include "mainwindow/DeleteKeyGuard.h"
#include "mainwindow/MainWindowController.h"
#include "mainwindow/MainWindowHost.h"
#include "mainwindow/WindowNotice.h"
#include "model/CVCard.h"
#include "model/CVManagedObjectContext.h"
#include "model/CVStatement.h"
#include "model/DebtForecast.h"
#include "store/NSArrayController.h"
#include "store/NSManagedObjectContext.h"

#include "ui_MainWindow.h"

#include <QApplication>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <algorithm>

QString MainWindowController::formattedTotals() const
{
    return m_context ? DebtForecast::formattedDebtFreeDate(*m_context) : QString();
}

bool MainWindowController::canAddStatement() const
{
    return m_context && CVManagedObjectContext::cardCount(*m_context) != 0 && selectedCard();
}

NSUndoManager* MainWindowController::windowWillReturnUndoManager() const
{
    return m_context ? &m_context->undoManager() : nullptr;
}

void MainWindowController::undo()
{
    changeByUndoManager(&NSUndoManager::undo, &MainWindowController::redo);
}

void MainWindowController::redo()
{
    changeByUndoManager(&NSUndoManager::redo, &MainWindowController::undo);
}

void MainWindowController::changeByUndoManager(void (NSUndoManager::*change)(),
                                               void (MainWindowController::*wayBack)())
{
    auto* const undoManager = windowWillReturnUndoManager();
    if (!undoManager) {
        return;
    }
    m_notice->withdraw();
    m_deleteKeyGuard->disarm();
    const KeyValueChange totals(*this, "formattedTotals");
    const bool isEditing = m_cardEditor || m_statementEditor;
    ObjectChanges changes;
    {
        const QScopedValueRollback changing(m_wayBack, wayBack);
        QObject listener;
        connect(m_context, &NSManagedObjectContext::objectsDidChange, &listener,
                [&changes](const ObjectChanges& announced) { changes = announced; });
        (undoManager->*change)();
    }
    CVManagedObjectContext::saveAndLogError(*m_context);
    redrawTimeline();
    if (!isEditing) {
        selectChanged(changes);
    }
    if (!changes.deleted.empty()) {
        m_deleteKeyGuard->arm();
    }
}

/// What undo brought back or changed is what the next key is for.
void MainWindowController::selectChanged(const ObjectChanges& changes)
{
    CVCard* card = nullptr;
    CVStatement* statement = nullptr;
    for (const auto& records : {changes.updated, changes.inserted}) {
        for (auto* const record : records) {
            if (auto* const changedCard = dynamic_cast<CVCard*>(record)) {
                card = changedCard;
            } else if (auto* const changedStatement = dynamic_cast<CVStatement*>(record)) {
                statement = changedStatement;
            }
        }
    }
    const bool isCardBack =
        card && std::ranges::find(changes.inserted, card) != changes.inserted.end();
    if (statement && !isCardBack) {
        showStatement(*statement);
    } else if (card) {
        setSelectedStatement(nullptr);
        selectCardAndMakeVisible(*card);
    }
}

bool MainWindowController::windowShouldClose()
{
    return !warnsOfUnconfirmed() && m_host.mayTerminate();
}

bool MainWindowController::validateUserInterfaceItem(QAction& item)
{
    const auto action = actionOfItem(item);
    const auto* const undoManager = windowWillReturnUndoManager();
    if (action == "undo") {
        const auto name = undoManager ? undoManager->undoActionName() : QString();
        item.setText(name.isEmpty() ? tr("&Undo") : tr("&Undo %1").arg(name));
        return undoManager && undoManager->canUndo();
    }
    if (action == "redo") {
        const auto name = undoManager ? undoManager->redoActionName() : QString();
        item.setText(name.isEmpty() ? tr("&Redo") : tr("&Redo %1").arg(name));
        return undoManager && undoManager->canRedo();
    }
    if (action == "addStatement") {
        return canAddStatement();
    }
    if (action == "delete_") {
        item.setText(selectedStatement() ? tr("&Delete Statement") : tr("&Delete Card"));
    } else if (action == "applyScaleMultiplier") {
        item.setChecked(item.property("tag").toDouble() == m_scale);
    } else if (action == "toggleCardList") {
        item.setChecked(!m_ui->splitView->isPaneCollapsed(0));
    }
    return true;
}

void MainWindowController::toggleCardList()
{
    m_ui->splitView->setPaneCollapsed(0, !m_ui->splitView->isPaneCollapsed(0));
}

bool MainWindowController::keyDown(const QKeyEvent& event)
{
    const auto modifiers = event.modifiers() & ~Qt::KeypadModifier;
    const bool isPageUp = event.key() == Qt::Key_PageUp;
    if (modifiers == Qt::ControlModifier && (isPageUp || event.key() == Qt::Key_PageDown)) {
        m_ui->timelineScrollView->horizontalScrollBar()->triggerAction(
            isPageUp ? QAbstractSlider::SliderPageStepSub : QAbstractSlider::SliderPageStepAdd);
        return true;
    }
    if (modifiers != Qt::NoModifier) {
        return false;
    }
    switch (event.key()) {
    case Qt::Key_Right:
        selectNextStatement();
        return true;
    case Qt::Key_Left:
        selectPreviousStatement();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        insertNewline();
        return true;
    case Qt::Key_Delete:
        if (m_deleteKeyGuard->isArmed()) {
            QApplication::beep();
        } else {
            delete_();
        }
        return true;
    case Qt::Key_Escape:
        return cancelOperation();
    default:
        return false;
    }
}

void MainWindowController::insertNewline()
{
    // Where the statement went away that was selected, its card is what is meant.
    if (m_selectedStatement) {
        getSelectedCardInfo();
    } else {
        QApplication::beep();
    }
}

void MainWindowController::selectNextStatement()
{
    const auto* const card = selectedCard();
    auto* const selected = selectedStatement();
    if (selected && selected->card() == card) {
        if (auto* const next = card->nextStatement(*selected)) {
            selectStatement(next);
        } else {
            QApplication::beep();
        }
    } else {
        selectStatement(card && card->lastStatement() ? &card->firstStatement() : nullptr);
    }
}

void MainWindowController::selectPreviousStatement()
{
    const auto* const card = selectedCard();
    auto* const selected = selectedStatement();
    if (selected && selected->card() == card) {
        if (auto* const previous = card->previousStatement(*selected)) {
            selectStatement(previous);
        } else {
            QApplication::beep();
        }
    } else {
        selectStatement(card ? card->lastStatement() : nullptr);
    }
}

void MainWindowController::selectStatement(CVStatement* statement)
{
    const auto* const before = selectedStatement();
    if (const auto row = selectedRow()) {
        m_ui->cardsTableView->scrollRowToVisible(*row);
    }
    setSelectedStatement(statement);
    if (statement != before) {
        redrawTimeline();
        if (statement) {
            makeStatementVisible(*statement);
        }
    }
}
