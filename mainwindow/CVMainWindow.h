#pragma once

#include <QMainWindow>

/// Decides for a main window: the controller that the window belongs to.
class CVMainWindowDelegate
{
public:
    virtual ~CVMainWindowDelegate() = default;

    virtual void undo() = 0;
    virtual void redo() = 0;
    /// Whether the window may close now. False keeps it open.
    virtual bool windowShouldClose() = 0;
};

/// The one window of the program.
class CVMainWindow : public QMainWindow
{
    Q_OBJECT

public:
    using QMainWindow::QMainWindow;

    /// Null until set. The delegate must outlive the window or be taken away.
    CVMainWindowDelegate* delegate() const { return m_delegate; }
    void setDelegate(CVMainWindowDelegate* delegate) { m_delegate = delegate; }

public Q_SLOTS:
    /// Hand the command to the delegate.
    void undo();
    void redo();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    CVMainWindowDelegate* m_delegate = nullptr;
};
