#include "mainwindow/CVMainWindow.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QNativeGestureEvent>
#include <QWheelEvent>

namespace {

/// A notch of the wheel counts as a pinch by this much.
constexpr double magnificationPerNotch = 0.04;

} // namespace

QMenu* CVMainWindow::applicationMenu() const
{
    const auto items = menuBar()->actions();
    return items.isEmpty() ? nullptr : items.first()->menu();
}

bool CVMainWindow::validateUserInterfaceItem(QAction& item)
{
    return !m_delegate || m_delegate->validateUserInterfaceItem(item);
}

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

void CVMainWindow::performClose()
{
    close();
}

bool CVMainWindow::event(QEvent* event)
{
    if (event->type() == QEvent::NativeGesture && m_delegate) {
        const auto& gesture = static_cast<const QNativeGestureEvent&>(*event);
        if (gesture.gestureType() == Qt::ZoomNativeGesture) {
            m_delegate->magnifyWithEvent(gesture.value());
            event->accept();
            return true;
        }
    }
    return QMainWindow::event(event);
}

void CVMainWindow::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::StyleChange || event->type() == QEvent::FontChange) {
        Q_EMIT appearanceDidChange();
    }
}

void CVMainWindow::closeEvent(QCloseEvent* event)
{
    const bool mayClose = !m_delegate || m_delegate->windowShouldClose();
    event->setAccepted(mayClose);
    if (mayClose && m_delegate) {
        m_delegate->windowWillClose();
    }
}

void CVMainWindow::keyPressEvent(QKeyEvent* event)
{
    event->setAccepted(m_delegate && m_delegate->keyDown(*event));
}

void CVMainWindow::wheelEvent(QWheelEvent* event)
{
    const bool zooms =
        m_delegate && (event->modifiers() & Qt::ControlModifier) && event->angleDelta().y() != 0;
    event->setAccepted(zooms);
    if (zooms) {
        const double notches = event->angleDelta().y() / double{QWheelEvent::DefaultDeltasPerStep};
        m_delegate->magnifyWithEvent(notches * magnificationPerNotch);
    }
}
