#include "store/ObjectChanges.h"

#include "store/NSManagedObject.h"

#include <unordered_map>

namespace {

/// Which records the steps touched, in the order of their first step, and which of them existed
/// before.
class TouchedRecords
{
public:
    void operator()(const ChangeStep::Inserted& step) { add(step.record, false); }
    void operator()(const ChangeStep::Deleted& step) { add(step.record, true); }
    void operator()(const ChangeStep::AttributeSet& step) { add(step.record, true); }
    void operator()(const ChangeStep::TargetSet& step) { add(step.record, true); }

    /// The owners whose sets a step changed; a record that came and went changed none.
    void addOwners(const ChangeStep::TargetSet& step)
    {
        if (exists(step.record) || m_existedBefore.at(step.record)) {
            for (auto* const owner : {step.oldTarget, step.newTarget}) {
                if (owner) {
                    add(owner, true);
                }
            }
        }
    }

    ObjectChanges netChanges() const
    {
        ObjectChanges changes;
        for (auto* const record : m_order) {
            const bool existed = m_existedBefore.at(record);
            if (existed && exists(record)) {
                changes.updated.push_back(record);
            } else if (exists(record)) {
                changes.inserted.push_back(record);
            } else if (existed) {
                changes.deleted.push_back(record);
            }
        }
        return changes;
    }

private:
    static bool exists(const NSManagedObject* record) { return !record->isDeleted(); }

    void add(NSManagedObject* record, bool existedBefore)
    {
        if (m_existedBefore.try_emplace(record, existedBefore).second) {
            m_order.push_back(record);
        }
    }

    std::vector<NSManagedObject*> m_order;
    std::unordered_map<NSManagedObject*, bool> m_existedBefore;
};

} // namespace

ObjectChanges netChanges(const ChangeLog& log)
{
    TouchedRecords touched;
    for (const auto& step : log) {
        std::visit(touched, step);
    }
    for (const auto& step : log) {
        if (const auto* const targetSet = std::get_if<ChangeStep::TargetSet>(&step)) {
            touched.addOwners(*targetSet);
        }
    }
    return touched.netChanges();
}
