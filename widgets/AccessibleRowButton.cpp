#include "widgets/AccessibleRowButton.h"

#include "widgets/AccessibleRow.h"
#include "widgets/AccessibleRowList.h"
#include "widgets/RowTableView.h"

#include <QAbstractButton>

AccessibleRowButton::AccessibleRowButton(QAbstractButton& button)
    : QAccessibleWidget(&button, QAccessible::Button)
{}

QAccessibleInterface* AccessibleRowButton::parent() const
{
    auto* table = widget()->parentWidget();
    while (table && !qobject_cast<RowTableView*>(table)) {
        table = table->parentWidget();
    }
    const auto* const list =
        dynamic_cast<AccessibleRowList*>(QAccessible::queryAccessibleInterface(table));
    if (list && widget()->isVisible()) {
        const auto middle = widget()->mapTo(table, widget()->rect().center());
        if (const auto row = list->table()->rowAtPoint(middle)) {
            return list->row(*row);
        }
    }
    return QAccessibleWidget::parent();
}

QStringList AccessibleRowButton::actionNames() const
{
    return widget()->isEnabled() ? QStringList{pressAction()} : QStringList();
}

void AccessibleRowButton::doAction(const QString& action)
{
    if (action == pressAction()) {
        // Does nothing while the button is disabled.
        static_cast<QAbstractButton*>(widget())->click();
    }
}
