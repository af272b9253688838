#include "timeline/AccessibleStatement.h"

#include "model/CVStatement.h"
#include "timeline/AccessibleTimelineRow.h"
#include "timeline/CVTimelineTableView.h"
#include "timeline/StatementText.h"

#include <QApplication>

#include <algorithm>

namespace {

/// Rounded, and within what a widget can be: a balance far above its limit lies very far below.
QPoint roundedPoint(const QPointF& point)
{
    const auto rounded = [](double value) {
        return qRound(std::clamp<double>(value, -QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
    };
    return {rounded(point.x()), rounded(point.y())};
}

} // namespace

AccessibleStatement::AccessibleStatement(AccessibleTimelineRow& row, CVStatement& statement)
    : m_row(row)
    , m_statement(statement)
{}

bool AccessibleStatement::isValid() const
{
    if (!m_row.isValid()) {
        return false;
    }
    return isBeingRemoved() || answer([this] {
               return !m_statement.isDeleted() && m_statement.card() == m_row.card();
           });
}

QAccessibleInterface* AccessibleStatement::parent() const
{
    return &m_row;
}

QString AccessibleStatement::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Name && isValid()
               ? answer([this] { return StatementText::title(m_statement); })
               : QString();
}

QRect AccessibleStatement::rect() const
{
    if (!isValid() || isBeingRemoved()) {
        return {};
    }
    const auto* const table = m_row.timeline();
    const auto rect = answer([&] { return table->rectForStatement(m_statement); });
    return rect ? QRect(table->mapToGlobal(roundedPoint(rect->topLeft())), rect->size().toSize())
                : QRect();
}

QAccessible::State AccessibleStatement::state() const
{
    QAccessible::State state = m_row.state();
    if (!isValid()) {
        state.invalid = true;
        return state;
    }
    const auto& table = *m_row.timeline();
    const QRect visible = table.visibleRect() & table.rectOfRow(m_row.row());
    const QRect square = rect();
    state.selected = table.isStatementSelected(m_statement);
    state.focused = state.selected && hasFocus();
    state.offscreen =
        !visible.intersects(QRect(table.mapFromGlobal(square.topLeft()), square.size()));
    return state;
}

QStringList AccessibleStatement::actionNames() const
{
    return {selectAction(), pressAction(), setFocusAction()};
}

void AccessibleStatement::doAction(const QString& action)
{
    if (!isValid() || !actionNames().contains(action)) {
        return;
    }
    auto& table = *m_row.timeline();
    if (action == setFocusAction()) {
        table.setFocus();
    }
    answer([&] { table.clickStatement(m_statement, action == pressAction() ? 2 : 1); });
}

bool AccessibleStatement::hasFocus() const
{
    // The keys that walk along a card's statements do so from the list of cards as well.
    const auto* const table = qobject_cast<RowTableView*>(QApplication::focusWidget());
    return table && table->model() == m_row.table()->model() && table->selectedRow() == m_row.row();
}
