#include "widgets/AccessibleRow.h"

#include "widgets/AccessibleRowList.h"
#include "widgets/RowTableView.h"

AccessibleRow::AccessibleRow(AccessibleRowList& list, const QModelIndex& index)
    : m_list(list)
    , m_index(index)
{}

RowTableView* AccessibleRow::table() const
{
    return m_list.table();
}

bool AccessibleRow::isListed() const
{
    return m_index.isValid() && table() && table()->model() == m_index.model();
}

bool AccessibleRow::isValid() const
{
    return isListed();
}

QAccessibleInterface* AccessibleRow::parent() const
{
    return &m_list;
}

QString AccessibleRow::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Name ? answer([this] { return m_index.data().toString(); })
                                     : QString();
}

QRect AccessibleRow::rect() const
{
    if (!isValid()) {
        return {};
    }
    const QRect rect = table()->rectOfRow(row());
    return {table()->mapToGlobal(rect.topLeft()), rect.size()};
}

QAccessible::State AccessibleRow::state() const
{
    QAccessible::State state;
    if (!isValid()) {
        state.invalid = true;
        return state;
    }
    const auto& list = *table();
    const bool isSelected = list.isRowSelected(row());
    state.selectable = true;
    state.selected = isSelected;
    state.focusable = true;
    state.focused = isSelected && list.hasFocus();
    state.disabled = !list.isEnabled();
    state.invisible = !list.isVisible();
    state.offscreen = !list.visibleRect().intersects(list.rectOfRow(row()));
    return state;
}

QStringList AccessibleRow::actionNames() const
{
    return {selectAction(), setFocusAction()};
}

void AccessibleRow::doAction(const QString& action)
{
    if (!isValid() || (action != selectAction() && action != setFocusAction())) {
        return;
    }
    if (action == setFocusAction()) {
        table()->setFocus();
    }
    table()->scrollRowToVisible(row());
    table()->chooseRow(row());
}
