#pragma once

#include "widgets/AccessibleItems.h"

#include <QAccessibleWidget>

class AccessibleDate;
class OADateGrid;

/// The days of a month, as a screen reader meets them: a list with an item for each place.
class AccessibleDateGrid : public QAccessibleWidget
{
public:
    explicit AccessibleDateGrid(OADateGrid& grid);

    /// Lets Qt make these lists for all grids of the program. Calling it again changes nothing.
    static void installFactory();
    /// The list of a grid, for announcements; null while no assistive technology listens.
    static AccessibleDateGrid* listening(OADateGrid& grid);

    /// Null while the grid is being destroyed.
    OADateGrid* grid() const;

    /// The places stand for other days now.
    void daysDidChange() const;
    /// Another day is held, or the grid got the focus.
    void selectionDidChange() const;

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;

private:
    mutable AccessibleItems<int, AccessibleDate> m_dates;
};
