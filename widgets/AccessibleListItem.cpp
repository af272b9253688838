#include "widgets/AccessibleListItem.h"

#include "widgets/AccessibleAnnouncements.h"

#include <QCoreApplication>

const QString& AccessibleListItem::selectAction()
{
    static const QString name = QStringLiteral("Select");
    return name;
}

void* AccessibleListItem::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                : nullptr;
}

QString AccessibleListItem::localizedActionName(const QString& action) const
{
    return action == selectAction() ? QCoreApplication::translate("AccessibleListItem", "Select")
                                    : QAccessibleActionInterface::localizedActionName(action);
}

QString AccessibleListItem::localizedActionDescription(const QString& action) const
{
    return action == selectAction()
               ? QCoreApplication::translate("AccessibleListItem", "Selects the item")
               : QAccessibleActionInterface::localizedActionDescription(action);
}

void AccessibleListItem::announce(QAccessible::Event type)
{
    if (isValid()) {
        QAccessibleEvent event(this, type);
        AccessibleAnnouncements::make(event);
    }
}

void AccessibleListItem::announceRemoval()
{
    m_isBeingRemoved = true;
    announce(QAccessible::ObjectDestroyed);
    m_isBeingRemoved = false;
}
