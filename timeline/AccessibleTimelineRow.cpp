#include "timeline/AccessibleTimelineRow.h"

#include "model/CVCard.h"
#include "model/CVStatement.h"
#include "timeline/AccessibleStatement.h"
#include "timeline/CVTimelineTableView.h"
#include "timeline/CardTimelineGeometry.h"

#include <algorithm>

AccessibleTimelineRow::~AccessibleTimelineRow() = default;

CVTimelineTableView* AccessibleTimelineRow::timeline() const
{
    return qobject_cast<CVTimelineTableView*>(table());
}

CVCard* AccessibleTimelineRow::card() const
{
    const auto* const table = timeline();
    return table ? table->cardAtRow(row()) : nullptr;
}

AccessibleStatement* AccessibleTimelineRow::existingStatement(const CVStatement& statement) const
{
    return m_statements.find(&statement);
}

AccessibleStatement& AccessibleTimelineRow::statement(CVStatement& statement) const
{
    return m_statements.findOrMake(&statement, [&] {
        return std::make_unique<AccessibleStatement>(const_cast<AccessibleTimelineRow&>(*this),
                                                     statement);
    });
}

void AccessibleTimelineRow::removeStatement(const CVStatement& statement)
{
    if (auto* const item = existingStatement(statement)) {
        item->announceRemoval();
        m_statements.removeIf([&](const auto& each) { return each.statement() == &statement; });
    }
}

bool AccessibleTimelineRow::isValid() const
{
    const auto* const card = this->card();
    return AccessibleRow::isValid() && card && (isBeingRemoved() || !card->isDeleted());
}

AccessibleListItem& AccessibleTimelineRow::focusItem()
{
    for (auto* const each : datedStatements()) {
        if (timeline()->isStatementSelected(*each)) {
            return statement(*each);
        }
    }
    return *this;
}

int AccessibleTimelineRow::childCount() const
{
    return static_cast<int>(datedStatements().size());
}

QAccessibleInterface* AccessibleTimelineRow::child(int index) const
{
    const auto statements = datedStatements();
    return index >= 0 && static_cast<std::size_t>(index) < statements.size()
               ? &statement(*statements[static_cast<std::size_t>(index)])
               : nullptr;
}

int AccessibleTimelineRow::indexOfChild(const QAccessibleInterface* child) const
{
    const auto* const item = dynamic_cast<const AccessibleStatement*>(child);
    const auto statements = datedStatements();
    const auto found = item ? std::ranges::find(statements, item->statement()) : statements.end();
    return found == statements.end() ? -1 : static_cast<int>(found - statements.begin());
}

QAccessibleInterface* AccessibleTimelineRow::childAt(int x, int y) const
{
    if (!isValid()) {
        return nullptr;
    }
    const auto& table = *timeline();
    const QPoint point = table.mapFromGlobal(QPoint(x, y));
    if (!(table.visibleRect() & table.rectOfRow(row())).contains(point)) {
        return nullptr;
    }
    const auto hit = answer([&] {
        const auto geometry = table.geometryOfRow(row());
        return geometry ? geometry->hit(point) : std::nullopt;
    });
    return hit ? &statement(*hit->statement) : nullptr;
}

std::vector<CVStatement*> AccessibleTimelineRow::datedStatements() const
{
    return answer([this] {
        auto statements = isValid() ? card()->sortedStatements() : std::vector<CVStatement*>();
        std::erase_if(statements, [](const auto* statement) { return !statement->date(); });
        return statements;
    });
}
