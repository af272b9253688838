#include "mainwindow/CVMainWindow.h"

#include <QCloseEvent>

void CVMainWindow::undo()
{
    if (m_delegate) {
        m_delegate->undo();
    }
}

void CVMainWindow::redo()
{
    if (m_delegate) {
        m_delegate->redo();
    }
}

void CVMainWindow::closeEvent(QCloseEvent* event)
{
    event->setAccepted(!m_delegate || m_delegate->windowShouldClose());
}
