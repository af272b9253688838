#include "mainwindow/UserInterfaceValidations.h"

#include <QAction>
#include <QVariant>

QByteArray UserInterfaceValidations::actionOfItem(const QAction& item)
{
    const auto action = item.property("action").toString();
    return (action.isEmpty() ? item.objectName() : action).toLatin1();
}
