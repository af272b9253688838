// What the main window's controller does at the person's command, when commands make sense, and the
// line of totals.

#include "mainwindow/MainWindowController.h"
#include "mainwindow/MainWindowHost.h"
#include "model/CVCard.h"
#include "model/CVManagedObjectContext.h"
#include "model/CVStatement.h"
#include "model/DebtForecast.h"
#include "store/NSArrayController.h"
#include "store/NSManagedObjectContext.h"

#include "ui_MainWindow.h"

#include <QApplication>
#include <QKeyEvent>

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
    changeByUndoManager(&NSUndoManager::undo);
}

void MainWindowController::redo()
{
    changeByUndoManager(&NSUndoManager::redo);
}

void MainWindowController::changeByUndoManager(void (NSUndoManager::*change)())
{
    auto* const undoManager = windowWillReturnUndoManager();
    if (!undoManager) {
        return;
    }
    const KeyValueChange totals(*this, "formattedTotals");
    (undoManager->*change)();
    CVManagedObjectContext::saveAndLogError(*m_context);
    redrawTimeline();
}

bool MainWindowController::windowShouldClose()
{
    return m_host.mayTerminate();
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
        item.setText(m_selectedStatement ? tr("&Delete Statement") : tr("&Delete Card"));
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
    if ((event.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) {
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
        delete_();
        return true;
    default:
        return false;
    }
}

void MainWindowController::insertNewline()
{
    if (m_selectedStatement) {
        getSelectedCardInfo();
    } else {
        QApplication::beep();
    }
}

void MainWindowController::selectNextStatement()
{
    const auto* const card = selectedCard();
    if (m_selectedStatement && m_selectedStatement->card() == card && card) {
        if (auto* const next = card->nextStatement(*m_selectedStatement)) {
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
    if (m_selectedStatement && m_selectedStatement->card() == card && card) {
        if (auto* const previous = card->previousStatement(*m_selectedStatement)) {
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
    const auto* const before = m_selectedStatement;
    setSelectedStatement(statement);
    if (statement != before) {
        redrawTimeline();
        if (statement) {
            makeStatementVisible(*statement);
        }
    }
}
