#include "widgets/AccessibleRowList.h"

#include "widgets/AccessibleAnnouncements.h"
#include "widgets/AccessibleRow.h"
#include "widgets/AccessibleRowButton.h"
#include "widgets/AddButton.h"
#include "widgets/RowTableView.h"

namespace {

/// Qt asks with the object's class and then with each class that it inherits.
QAccessibleInterface* makeInterface(const QString& className, QObject* object)
{
    if (className == QLatin1String(RowTableView::staticMetaObject.className())) {
        return new AccessibleRowList(static_cast<RowTableView&>(*object));
    }
    if (className == QLatin1String(AddButton::staticMetaObject.className())) {
        return new AccessibleRowButton(static_cast<AddButton&>(*object));
    }
    return nullptr;
}

} // namespace

AccessibleRowList::AccessibleRowList(RowTableView& table)
    : QAccessibleWidget(&table, QAccessible::List)
{}

void AccessibleRowList::installFactory()
{
    QAccessible::installFactory(makeInterface);
}

AccessibleRowList* AccessibleRowList::listening(RowTableView& table)
{
    return AccessibleAnnouncements::areHeard()
               ? dynamic_cast<AccessibleRowList*>(QAccessible::queryAccessibleInterface(&table))
               : nullptr;
}

RowTableView* AccessibleRowList::table() const
{
    return qobject_cast<RowTableView*>(object());
}

AccessibleRow* AccessibleRowList::row(int row) const
{
    auto* const list = table();
    if (!list || row < 0 || row >= list->numberOfRows()) {
        return nullptr;
    }
    const QPersistentModelIndex index(list->model()->index(row, 0));
    return &m_rows.findOrMake(index, [&] {
        return list->makeAccessibleRow(const_cast<AccessibleRowList&>(*this), index);
    });
}

AccessibleRow* AccessibleRowList::existingRow(int row) const
{
    const auto* const list = table();
    return list && row >= 0 && row < list->numberOfRows()
               ? m_rows.find(QPersistentModelIndex(list->model()->index(row, 0)))
               : nullptr;
}

void AccessibleRowList::removeStaleRows()
{
    m_rows.removeIf([](const AccessibleRow& row) { return !row.isListed(); });
}

int AccessibleRowList::childCount() const
{
    const auto* const list = table();
    return list ? list->numberOfRows() : 0;
}

QAccessibleInterface* AccessibleRowList::child(int index) const
{
    return row(index);
}

int AccessibleRowList::indexOfChild(const QAccessibleInterface* child) const
{
    const auto* const row = dynamic_cast<const AccessibleRow*>(child);
    return row && row->parent() == this ? row->row() : -1;
}

QAccessibleInterface* AccessibleRowList::childAt(int x, int y) const
{
    const auto* const list = table();
    const auto point = list ? list->mapFromGlobal(QPoint(x, y)) : QPoint();
    if (!list || !list->visibleRect().contains(point)) {
        return nullptr;
    }
    const auto index = list->rowAtPoint(point);
    return index ? row(*index) : nullptr;
}

QAccessibleInterface* AccessibleRowList::focusChild() const
{
    const auto* const list = table();
    const auto selected = list && list->hasFocus() ? list->selectedRow() : std::nullopt;
    return selected ? &row(*selected)->focusItem() : nullptr;
}
