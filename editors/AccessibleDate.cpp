#include "editors/AccessibleDate.h"

#include "editors/AccessibleDateGrid.h"
#include "editors/OADateGrid.h"

AccessibleDate::AccessibleDate(AccessibleDateGrid& list, int place)
    : m_list(list)
    , m_place(place)
{}

bool AccessibleDate::isValid() const
{
    return m_list.grid() != nullptr;
}

QAccessibleInterface* AccessibleDate::parent() const
{
    return &m_list;
}

QString AccessibleDate::text(QAccessible::Text kind) const
{
    return isValid() && kind == QAccessible::Name ? m_list.grid()->nameOfPlace(m_place) : QString();
}

QRect AccessibleDate::rect() const
{
    if (!isValid()) {
        return {};
    }
    const auto rect = m_list.grid()->rectOfPlace(m_place);
    return {m_list.grid()->mapToGlobal(rect.topLeft()), rect.size()};
}

QAccessible::State AccessibleDate::state() const
{
    QAccessible::State state;
    if (!isValid()) {
        state.invalid = true;
        return state;
    }
    const auto& grid = *m_list.grid();
    const bool isDay = grid.month().dayAtPlace(m_place).has_value();
    const bool isSelected = grid.selectedPlace() == m_place;
    state.selectable = isDay;
    state.selected = isSelected;
    state.focusable = isDay;
    state.focused = isSelected && grid.hasFocus();
    state.disabled = !isDay;
    state.invisible = !isDay || !grid.isVisible();
    return state;
}

QStringList AccessibleDate::actionNames() const
{
    return {selectAction(), pressAction()};
}

void AccessibleDate::doAction(const QString& action)
{
    if (!isValid() || (action != selectAction() && action != pressAction()) ||
        !m_list.grid()->month().dayAtPlace(m_place)) {
        return;
    }
    m_list.grid()->pickPlace(m_place);
    if (action == pressAction() && m_list.grid()) {
        Q_EMIT m_list.grid()->dayDoubleClicked();
    }
}
