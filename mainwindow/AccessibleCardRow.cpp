#include "mainwindow/AccessibleCardRow.h"

#include "mainwindow/CVCardTableRowView.h"
#include "mainwindow/CVCardTableView.h"
#include "model/CVCard.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QStringList>

bool AccessibleCardRow::isValid() const
{
    const auto* const card = this->card();
    return AccessibleRow::isValid() && card && (isBeingRemoved() || !card->isDeleted());
}

QString AccessibleCardRow::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Description && isValid() ? answer([this] { return description(); })
                                                         : AccessibleRow::text(kind);
}

int AccessibleCardRow::childCount() const
{
    return button() ? 1 : 0;
}

QAccessibleInterface* AccessibleCardRow::child(int index) const
{
    return index == 0 ? button() : nullptr;
}

int AccessibleCardRow::indexOfChild(const QAccessibleInterface* child) const
{
    return child && child == button() ? 0 : -1;
}

QAccessibleInterface* AccessibleCardRow::childAt(int x, int y) const
{
    auto* const button = this->button();
    return button && button->rect().contains(x, y) ? button : nullptr;
}

QStringList AccessibleCardRow::actionNames() const
{
    return {selectAction(), pressAction(), setFocusAction()};
}

void AccessibleCardRow::doAction(const QString& action)
{
    if (!isValid() || action != pressAction()) {
        AccessibleRow::doAction(action);
        return;
    }
    AccessibleRow::doAction(selectAction());
    cardTable()->doubleClickRow(row());
}

CVCardTableView* AccessibleCardRow::cardTable() const
{
    return qobject_cast<CVCardTableView*>(table());
}

CVCard* AccessibleCardRow::card() const
{
    const auto* const table = cardTable();
    return table ? table->cardAtRow(row()) : nullptr;
}

QString AccessibleCardRow::description() const
{
    const auto* const card = this->card();
    QStringList parts{card->formattedBalanceAndLimit().value_or(QString()),
                      card->formattedAPR().value_or(QString()), card->formattedForecast()};
    parts.removeAll(QString());
    return parts.join(
        QCoreApplication::translate("AccessibleCardRow", ", ", "between the parts of a text"));
}

QAccessibleInterface* AccessibleCardRow::button() const
{
    const auto* const table = cardTable();
    auto* const view = table ? table->rowView(row()) : nullptr;
    return view ? QAccessible::queryAccessibleInterface(&view->cellView().addStatementButton())
                : nullptr;
}
