#pragma once

#include <QAccessibleWidget>

class QAbstractButton;

/// A button that stands in a row of a table: to a screen reader it is a part of the row's item,
/// whatever widgets lie between them.
class AccessibleRowButton : public QAccessibleWidget
{
public:
    explicit AccessibleRowButton(QAbstractButton& button);

    QAccessibleInterface* parent() const override;
    QStringList actionNames() const override;
    void doAction(const QString& action) override;
};
