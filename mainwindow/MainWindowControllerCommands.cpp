// What the main window's controller does at the person's command, and the line of totals.

#include "mainwindow/MainWindowController.h"
#include "model/CVManagedObjectContext.h"
#include "model/CVStatement.h"
#include "model/DebtForecast.h"
#include "store/NSManagedObjectContext.h"

QString MainWindowController::formattedTotals() const
{
    return m_context ? DebtForecast::formattedDebtFreeDate(*m_context) : QString();
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
