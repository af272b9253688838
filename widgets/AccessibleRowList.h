#pragma once

#include "widgets/AccessibleItems.h"

#include <QAccessibleWidget>
#include <QPersistentModelIndex>

class AccessibleRow;
class RowTableView;

/// A table of rows, as a screen reader meets it: a list of items, each made when it is first asked
/// for. What the person sees as the table's rows may be widgets of it; the list stands for them.
class AccessibleRowList : public QAccessibleWidget
{
public:
    explicit AccessibleRowList(RowTableView& table);

    /// Lets Qt make these lists for all tables of the program, and what goes with them. Calling it
    /// again changes nothing.
    static void installFactory();
    /// The list of a table, for announcements; null while no assistive technology listens.
    static AccessibleRowList* listening(RowTableView& table);

    /// Null while the table is being destroyed.
    RowTableView* table() const;

    /// Null for a row that is not there.
    AccessibleRow* row(int row) const;
    /// Null also for a row that nobody asked for yet.
    AccessibleRow* existingRow(int row) const;
    template <typename Visit>
    void forEachExistingRow(Visit visit) const
    {
        m_rows.forEach(visit);
    }
    /// Forgets the rows that are gone.
    void removeStaleRows();

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;

private:
    mutable AccessibleItems<QPersistentModelIndex, AccessibleRow> m_rows;
};
