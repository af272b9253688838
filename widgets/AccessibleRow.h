#pragma once

#include "widgets/AccessibleListItem.h"

#include <QPersistentModelIndex>

class AccessibleRowList;
class RowTableView;

/// A row of a table, as a screen reader meets it. It follows its record to wherever the table's
/// model moves it, and is named by what the model displays for it.
class AccessibleRow : public AccessibleListItem
{
public:
    AccessibleRow(AccessibleRowList& list, const QModelIndex& index);

    /// Null while the table is being destroyed.
    RowTableView* table() const;
    /// Negative when the row is gone.
    int row() const { return m_index.row(); }

    /// Whether the table has the row still.
    bool isListed() const;
    /// Whether the row is listed, and its record not deleted either.
    bool isValid() const override;
    QAccessibleInterface* parent() const override;
    QString text(QAccessible::Text kind) const override;
    /// Scrolled-away rows are where the scrolled-away part of the table would be.
    QRect rect() const override;
    QAccessible::State state() const override;

    /// What the keyboard acts on when it comes to the row: the row itself, unless a subclass says
    /// otherwise.
    virtual AccessibleListItem& focusItem() { return *this; }

    /// "Select", as a press on the row, and "SetFocus", which moves the keyboard there as well.
    QStringList actionNames() const override;
    void doAction(const QString& action) override;

private:
    AccessibleRowList& m_list;
    QPersistentModelIndex m_index;
};
