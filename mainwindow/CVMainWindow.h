#pragma once

#include "mainwindow/UserInterfaceValidations.h"

#include <QMainWindow>

/// Decides for a main window: the controller that the window belongs to.
class CVMainWindowDelegate : public UserInterfaceValidations
{
public:
    virtual void undo() = 0;
    virtual void redo() = 0;
    /// Whether the window may close now. False keeps it open.
    virtual bool windowShouldClose() = 0;
    /// It may, and does.
    virtual void windowWillClose() = 0;
    /// A key that nobody in the window made use of. Whether the delegate did.
    virtual bool keyDown(const QKeyEvent& event) = 0;
    /// Fingers moved apart: their distance grew by this fraction of itself. Negative when they
    /// moved together.
    virtual void magnifyWithEvent(double magnification) = 0;
};

/// The one window of the program.
class CVMainWindow : public QMainWindow, public UserInterfaceValidations
{
    Q_OBJECT

public:
    using QMainWindow::QMainWindow;

    /// Null until set. The delegate must outlive the window or be taken away.
    CVMainWindowDelegate* delegate() const { return m_delegate; }
    void setDelegate(CVMainWindowDelegate* delegate) { m_delegate = delegate; }

    /// The menu of the program itself: the first in the menu bar. Null without one.
    QMenu* applicationMenu() const;

    bool validateUserInterfaceItem(QAction& item) override;

public Q_SLOTS:
    /// Hand the command to the delegate.
    void undo();
    void redo();
    /// The Close command.
    void performClose();

Q_SIGNALS:
    /// Commands may make sense now that did not, or the other way round.
    void userInterfaceItemsDidChange();
    /// The desktop has another font, or the style stronger or softer colours.
    void appearanceDidChange();

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    CVMainWindowDelegate* m_delegate = nullptr;
};
