#include "widgets/AnchoredButtonBar.h"

#include "widgets/AnchoredBarButton.h"

#include <QAction>
#include <QActionEvent>
#include <QHBoxLayout>

#include <algorithm>

AnchoredButtonBar::AnchoredButtonBar(QWidget* parent)
    : GradientBox(parent)
    , m_layout(new QHBoxLayout(this))
{
    setHasTopBorder(true);
    // The buttons begin below the border.
    m_layout->setContentsMargins(0, 1, 0, 0);
    m_layout->setSpacing(0);
    m_layout->addStretch();
}

void AnchoredButtonBar::setDividerColor(const QColor& color)
{
    m_dividerColor = color;
    for (const auto& entry : m_entries) {
        entry.button->setDividerColor(color);
    }
}

QAbstractButton* AnchoredButtonBar::buttonForAction(const QAction* action) const
{
    const auto found = find(action);
    return found == m_entries.end() ? nullptr : found->button;
}

void AnchoredButtonBar::actionEvent(QActionEvent* event)
{
    switch (event->type()) {
    case QEvent::ActionAdded:
        if (!event->action()->isSeparator()) {
            insertButton(*event->action(), event->before());
        }
        break;
    case QEvent::ActionChanged:
        if (const auto found = find(event->action()); found != m_entries.end()) {
            found->button->updateFromAction();
        }
        break;
    case QEvent::ActionRemoved:
        removeButton(event->action());
        break;
    default:
        break;
    }
    GradientBox::actionEvent(event);
}

std::vector<AnchoredButtonBar::Entry>::const_iterator
AnchoredButtonBar::find(const QAction* action) const
{
    return std::find_if(m_entries.begin(), m_entries.end(),
                        [action](const Entry& entry) { return entry.action == action; });
}

void AnchoredButtonBar::insertButton(QAction& action, const QAction* before)
{
    auto* const button = new AnchoredBarButton(action, this);
    button->setDividerColor(m_dividerColor);
    const auto place = find(before);
    m_layout->insertWidget(static_cast<int>(place - m_entries.begin()), button);
    m_entries.insert(place, {&action, button});
    // The keyboard goes through them in the order that is seen.
    for (std::size_t index = 1; index < m_entries.size(); ++index) {
        setTabOrder(m_entries[index - 1].button, m_entries[index].button);
    }
}

void AnchoredButtonBar::removeButton(const QAction* action)
{
    const auto found = find(action);
    if (found == m_entries.end()) {
        return;
    }
    // Not at once: it may be this button's click that takes the action away.
    found->button->hide();
    found->button->deleteLater();
    m_layout->removeWidget(found->button);
    m_entries.erase(found);
}
