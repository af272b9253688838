#pragma once

#include "widgets/AccessibleRow.h"

class CVCard;
class CVCardTableView;

/// A row of the list of cards, as a screen reader meets it: named by the card, described by what
/// the row says of it, with the row's "+" while the row is in view.
class AccessibleCardRow : public AccessibleRow
{
public:
    using AccessibleRow::AccessibleRow;

    bool isValid() const override;
    QString text(QAccessible::Text kind) const override;
    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;

    /// "Press", too, as a double click on the row.
    QStringList actionNames() const override;
    void doAction(const QString& action) override;

private:
    /// Null while the table is being destroyed.
    CVCardTableView* cardTable() const;
    /// Null when the row is gone.
    CVCard* card() const;
    QString description() const;
    /// Null while the row is not in view.
    QAccessibleInterface* button() const;
};
