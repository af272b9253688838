#pragma once

#include "editors/CVPopoverController.h"
#include "widgets/NSPopover.h"

#include <QApplication>
#include <QWidget>

/// Shows an editor in a window, as its owner does.
class EditorPopover
{
public:
    explicit EditorPopover(CVPopoverController& editor)
        : m_editor(editor)
        , m_popover(editor.view())
    {
        m_window.resize(640, 480);
        m_window.show();
        QApplication::setActiveWindow(&m_window);
    }

    void show()
    {
        m_popover.showRelativeToRect({300, 20, 10, 10}, m_window, NSRectEdge::MaxY);
        m_editor.setPopover(&m_popover);
    }
    bool isShown() const { return m_popover.isShown(); }
    QWidget& window() { return m_window; }

private:
    CVPopoverController& m_editor;
    QWidget m_window;
    NSPopover m_popover;
};
