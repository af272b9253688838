#pragma once

#include "widgets/AccessibleItems.h"
#include "widgets/AccessibleRow.h"

#include <vector>

class AccessibleStatement;
class CVCard;
class CVStatement;
class CVTimelineTableView;

/// A card's row of the timeline, as a screen reader meets it: named by the card, with an item for
/// each statement that has a date, the earliest first.
class AccessibleTimelineRow : public AccessibleRow
{
public:
    using AccessibleRow::AccessibleRow;
    ~AccessibleTimelineRow() override;

    /// Null while the table is being destroyed.
    CVTimelineTableView* timeline() const;
    /// Null when the row is gone.
    CVCard* card() const;

    /// Null for a statement that nobody asked for yet.
    AccessibleStatement* existingStatement(const CVStatement& statement) const;
    AccessibleStatement& statement(CVStatement& statement) const;
    /// Tells assistive technology that a statement left the row, and forgets it.
    void removeStatement(const CVStatement& statement);

    bool isValid() const override;
    /// The selected statement, if it is one of the row's.
    AccessibleListItem& focusItem() override;
    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;

private:
    std::vector<CVStatement*> datedStatements() const;

    mutable AccessibleItems<const CVStatement*, AccessibleStatement> m_statements;
};
