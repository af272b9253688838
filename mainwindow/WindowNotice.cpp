#include "mainwindow/WindowNotice.h"

#include "widgets/NoticeBar.h"

#include <utility>

WindowNotice::WindowNotice(NoticeBar& bar, QObject* parent)
    : QObject(parent)
    , m_bar(bar)
{
    connect(&bar, &NoticeBar::actionTriggered, this, &WindowNotice::perform);
    connect(&bar, &NoticeBar::dismissed, this, &WindowNotice::dismiss);
}

void WindowNotice::tell(const QString& text, const QString& actionTitle,
                        std::function<void()> action)
{
    m_told = Content{text, actionTitle, std::move(action)};
    showUnlessUnsaved();
}

void WindowNotice::withdraw()
{
    m_told.reset();
    showUnlessUnsaved();
}

void WindowNotice::tellUnsaved(const QString& text, const QString& actionTitle,
                               std::function<void()> action)
{
    m_unsaved = Content{text, actionTitle, std::move(action)};
    show();
}

bool WindowNotice::withdrawUnsaved()
{
    const bool wasTold = std::exchange(m_unsaved, std::nullopt).has_value();
    if (wasTold) {
        show();
    }
    return wasTold;
}

/// What goes before all else is announced once, and not anew whenever something happens behind it.
void WindowNotice::showUnlessUnsaved()
{
    if (!m_unsaved) {
        show();
    }
}

void WindowNotice::show()
{
    const auto& content = m_unsaved ? m_unsaved : m_told;
    m_bar.setDismissible(!m_unsaved);
    if (content) {
        m_bar.showNotice(content->text, content->actionTitle);
    } else {
        m_bar.clearNotice();
    }
}

/// What the button does may tell the next thing.
void WindowNotice::perform()
{
    if (m_unsaved) {
        const auto action = m_unsaved->action;
        action();
    } else if (const auto told = std::exchange(m_told, std::nullopt)) {
        show();
        told->action();
    }
}

void WindowNotice::dismiss()
{
    if (!m_unsaved) {
        m_told.reset();
    }
    show();
}
