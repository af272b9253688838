#pragma once

#include "app/Translation.h"

#include <QApplication>
#include <QByteArray>

class CVMainWindow;
class PanelStyle;
class QKeyEvent;

/// The application: it sends the commands of menus and keys to whom they concern.
///
/// A command is the name of a slot, with or without the sender as argument. It goes to the first
/// that has such a slot: of the widget with the focus, its parents up to the window, the window's
/// delegate, that of the sender's window, the application, and the application's delegate. While no
/// window is active, the sender's window is asked. Undo and redo are the exception:
/// while the main window is active they go to its controller, whatever has the focus. Their keys
/// are the field's that has the focus, as long as there is typing in it to take back or do again.
class CVApplication : public QApplication
{
    Q_OBJECT

public:
    CVApplication(int& argc, char** argv);

    /// The last to be asked; null for none. Must outlive the application or be taken away.
    void setDelegate(QObject* delegate) { m_delegate = delegate; }

    /// Who carries out `action`: `to` if given, else as above; null when nobody does. `from` is the
    /// sender.
    QObject* targetForAction(const QByteArray& action, QObject* to, QObject* from) const;
    /// Sends `action` there. False when nobody carries it out.
    bool sendAction(const QByteArray& action, QObject* to, QObject* from) const;

    /// Whether what would move is there at once, and whether texts and borders stand out more than
    /// usual. As at first: neither. What is on the screen follows.
    void setAppearance(bool reducesMotion, bool hasHighContrast);

    /// Lets each menu item of the window send its action, and be enabled only while somebody
    /// carries that out and finds that it makes sense.
    void connectActions(CVMainWindow& window);

    /// Carries out the command of a menu item as if the person had chosen it. False when the window
    /// has no such item, or it is disabled.
    bool performAction(CVMainWindow& window, const QByteArray& action);

    /// The net under all event handlers: what one throws is logged.
    bool notify(QObject* receiver, QEvent* event) override;
    bool event(QEvent* event) override;

public Q_SLOTS:
    /// Closes the windows, and with the last of them the program. A window that may not close keeps
    /// it running.
    void terminate();

Q_SIGNALS:
    /// The session is over, and wants the program to end without a word.
    void sessionEnded();

private:
    void validateActions(const CVMainWindow& window) const;
    static bool isUndoOrRedo(const QByteArray& action);
    /// Whether a key event is the undo or redo key, pressed in the main window and meant for it.
    static bool isWindowsUndoOrRedoKey(const QEvent& event);

    Translation m_translation;
    /// The application's.
    PanelStyle* m_style;
    QObject* m_delegate = nullptr;
    /// Whether the person's Quit is being carried out.
    bool m_isTerminating = false;
};
