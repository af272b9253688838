#pragma once

#include "widgets/AccessibleListItem.h"

class AccessibleTimelineRow;
class CVStatement;

/// A statement on the timeline, as a screen reader meets it: its title, at its dot.
class AccessibleStatement : public AccessibleListItem
{
public:
    /// The row must outlive this.
    AccessibleStatement(AccessibleTimelineRow& row, CVStatement& statement);

    /// To be compared only, when this is not valid: the statement may be gone.
    const CVStatement* statement() const { return &m_statement; }

    bool isValid() const override;
    QAccessibleInterface* parent() const override;
    QString text(QAccessible::Text kind) const override;
    /// The square of the dot; empty when the statement is nowhere.
    QRect rect() const override;
    QAccessible::State state() const override;

    /// "Select", as a click on the dot, "Press", as a double click, and "SetFocus", which is
    /// "Select" and moves the keyboard there as well.
    QStringList actionNames() const override;
    void doAction(const QString& action) override;

private:
    /// Whether keys that are meant for a statement reach this one.
    bool hasFocus() const;

    AccessibleTimelineRow& m_row;
    CVStatement& m_statement;
};
