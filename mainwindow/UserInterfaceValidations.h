#pragma once

#include <QByteArray>

class QAction;

/// One who carries out commands, and knows when they make sense.
class UserInterfaceValidations
{
public:
    virtual ~UserInterfaceValidations() = default;

    /// Whether the command of a menu item makes sense now. Gives the item the title and the check
    /// mark that it has now.
    virtual bool validateUserInterfaceItem(QAction& item) = 0;

    /// The command of an item: its property "action", for several items of one command; else its
    /// object name. Empty when it has none.
    static QByteArray actionOfItem(const QAction& item);
};
