#include "editors/AccessibleDateGrid.h"

#include "editors/AccessibleDate.h"
#include "editors/OADateGrid.h"

namespace {

QAccessibleInterface* makeInterface(const QString& /*className*/, QObject* object)
{
    auto* const grid = qobject_cast<OADateGrid*>(object);
    return grid ? new AccessibleDateGrid(*grid) : nullptr;
}

} // namespace

AccessibleDateGrid::AccessibleDateGrid(OADateGrid& grid)
    : QAccessibleWidget(&grid, QAccessible::List)
{}

void AccessibleDateGrid::installFactory()
{
    QAccessible::installFactory(makeInterface);
}

AccessibleDateGrid* AccessibleDateGrid::listening(OADateGrid& grid)
{
    return QAccessible::isActive()
               ? dynamic_cast<AccessibleDateGrid*>(QAccessible::queryAccessibleInterface(&grid))
               : nullptr;
}

OADateGrid* AccessibleDateGrid::grid() const
{
    return qobject_cast<OADateGrid*>(object());
}

void AccessibleDateGrid::daysDidChange() const
{
    m_dates.forEach([](AccessibleDate& date) { date.announce(QAccessible::NameChanged); });
}

void AccessibleDateGrid::selectionDidChange() const
{
    const auto place = grid() ? grid()->selectedPlace() : std::nullopt;
    if (!place) {
        return;
    }
    auto* const date = static_cast<AccessibleDate*>(child(*place));
    date->announce(QAccessible::Selection);
    if (grid()->hasFocus()) {
        date->announce(QAccessible::Focus);
    }
}

int AccessibleDateGrid::childCount() const
{
    return grid() ? OADateMonth::numberOfPlaces : 0;
}

QAccessibleInterface* AccessibleDateGrid::child(int index) const
{
    if (index < 0 || index >= childCount()) {
        return nullptr;
    }
    return &m_dates.findOrMake(index, [this, index] {
        return std::make_unique<AccessibleDate>(const_cast<AccessibleDateGrid&>(*this), index);
    });
}

int AccessibleDateGrid::indexOfChild(const QAccessibleInterface* child) const
{
    const auto* const date = dynamic_cast<const AccessibleDate*>(child);
    return date && date->parent() == this ? date->place() : -1;
}

QAccessibleInterface* AccessibleDateGrid::childAt(int x, int y) const
{
    const auto place =
        grid() ? grid()->placeAtPoint(grid()->mapFromGlobal(QPoint(x, y))) : std::nullopt;
    return place ? child(*place) : nullptr;
}

QAccessibleInterface* AccessibleDateGrid::focusChild() const
{
    const auto place = grid() && grid()->hasFocus() ? grid()->selectedPlace() : std::nullopt;
    return place ? child(*place) : nullptr;
}
