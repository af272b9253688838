#pragma once

#include "widgets/AccessibleListItem.h"

class AccessibleDateGrid;

/// A day in the grid of a month, as a screen reader meets it: named by its whole date.
class AccessibleDate : public AccessibleListItem
{
public:
    AccessibleDate(AccessibleDateGrid& list, int place);

    int place() const { return m_place; }

    bool isValid() const override;
    QAccessibleInterface* parent() const override;
    QString text(QAccessible::Text kind) const override;
    QRect rect() const override;
    QAccessible::State state() const override;

    /// "Select" picks the day, and "Press", as a double click, closes the calendar too.
    QStringList actionNames() const override;
    void doAction(const QString& action) override;

private:
    AccessibleDateGrid& m_list;
    int m_place;
};
