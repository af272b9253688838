#include "timeline/AccessibleStatementEvents.h"

#include "model/CVStatement.h"
#include "store/NSManagedObjectContext.h"
#include "timeline/AccessibleStatement.h"
#include "timeline/AccessibleTimelineRow.h"
#include "timeline/CVTimelineTableView.h"
#include "widgets/AccessibleRowList.h"

AccessibleStatementEvents::AccessibleStatementEvents(CVTimelineTableView& table)
    : m_table(table)
{}

void AccessibleStatementEvents::setManagedObjectContext(NSManagedObjectContext* context)
{
    if (m_context) {
        m_context->disconnect(this);
    }
    m_context = context;
    if (m_context) {
        connect(m_context, &NSManagedObjectContext::objectsDidChange, this,
                &AccessibleStatementEvents::objectsDidChange);
    }
}

void AccessibleStatementEvents::selectedStatementDidChange(CVStatement* previous,
                                                           CVStatement* current)
{
    const auto* const list = AccessibleRowList::listening(m_table);
    if (!list || previous == current) {
        return;
    }
    AccessibleListItem::answer([&] {
        const auto* const previousRow = previous ? rowOf(*list, *previous) : nullptr;
        auto* const previousItem =
            previousRow ? previousRow->existingStatement(*previous) : nullptr;
        if (previousItem) {
            previousItem->announce(QAccessible::SelectionRemove);
        }
        if (const auto* const row = current ? rowOf(*list, *current) : nullptr) {
            auto& item = row->statement(*current);
            item.announce(QAccessible::Selection);
            if (item.state().focused) {
                item.announce(QAccessible::Focus);
            }
        }
    });
}

void AccessibleStatementEvents::objectsDidChange(const ObjectChanges& changes)
{
    if (const auto* const list = AccessibleRowList::listening(m_table)) {
        AccessibleListItem::answer([&] { announceChanges(*list, changes); });
    }
}

void AccessibleStatementEvents::announceChanges(const AccessibleRowList& list,
                                                const ObjectChanges& changes)
{
    for (auto* const record : changes.inserted) {
        auto* const statement = dynamic_cast<CVStatement*>(record);
        if (const auto* const row = statement ? rowOf(list, *statement) : nullptr) {
            row->statement(*statement).announce(QAccessible::ObjectCreated);
        }
    }
    for (auto* const record : changes.updated) {
        auto* const statement = dynamic_cast<CVStatement*>(record);
        const auto* const row = statement ? rowOf(list, *statement) : nullptr;
        if (auto* const item = row ? row->existingStatement(*statement) : nullptr) {
            item->announce(QAccessible::NameChanged);
        }
    }
    for (const auto* const record : changes.deleted) {
        if (const auto* const statement = dynamic_cast<const CVStatement*>(record)) {
            // It does not know any more which card it was of.
            list.forEachExistingRow([statement](AccessibleRow& row) {
                static_cast<AccessibleTimelineRow&>(row).removeStatement(*statement);
            });
        }
    }
}

AccessibleTimelineRow* AccessibleStatementEvents::rowOf(const AccessibleRowList& list,
                                                        const CVStatement& statement) const
{
    const auto row = statement.date() ? m_table.rowForCard(statement.card()) : std::nullopt;
    return row ? static_cast<AccessibleTimelineRow*>(list.row(*row)) : nullptr;
}
