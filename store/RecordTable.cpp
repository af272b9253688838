#include "store/RecordTable.h"

#include "store/NSManagedObjectContext.h"
#include "store/NSPersistentStoreCoordinator.h"
#include "store/SQLiteStore.h"

#include <utility>

NSManagedObject& RecordTable::makeNewRecord()
{
    auto& record = adopt(m_entity.makeRecord(*this));
    record.allocateValues();
    for (std::size_t i = 0; i < m_entity.attributes().size(); ++i) {
        record.storeValue(i, m_entity.attributes()[i].defaultValue);
    }
    return record;
}

NSManagedObject* RecordTable::recordWithID(std::int64_t id)
{
    if (auto* const known = m_recordsByID.value(id)) {
        return known;
    }
    return m_context.store().hasRow(m_entity, id) ? &makeFault(id) : nullptr;
}

NSManagedObject& RecordTable::recordForRow(const StoreRow& row)
{
    auto* record = m_recordsByID.value(row.recordID());
    if (!record) {
        record = &makeFault(row.recordID());
    }
    if (record->isFault()) {
        takeValues(*record, row);
    }
    return *record;
}

void RecordTable::realize(const NSManagedObject& record)
{
    const bool found = m_context.store().fetchRow(
        m_entity, record.m_id, [this](const StoreRow& row) { recordForRow(row); });
    if (!found) {
        record.allocateValues();
    }
}

void RecordTable::setRecordID(NSManagedObject& record, std::int64_t id)
{
    if (record.hasState(NSManagedObject::HasID)) {
        m_recordsByID.remove(record.m_id);
    }
    record.m_id = id;
    record.setState(NSManagedObject::HasID, true);
    m_recordsByID.insert(id, &record);
}

std::vector<NSManagedObject*>& RecordTable::members(const NSManagedObject& owner,
                                                    const NSRelationshipDescription& toMany)
{
    auto& sets = m_memberSets[&owner];
    sets.resize(m_entity.toManyCount());
    auto& members = sets[toMany.offset];
    if (!members) {
        std::vector<NSManagedObject*> found;
        if (owner.hasState(NSManagedObject::Persisted)) {
            auto& table = m_context.table(*toMany.destinationEntity);
            m_context.store().fetchReferringRows(
                *toMany.destinationEntity, *toMany.inverseRelationship, owner.m_id,
                [&](const StoreRow& row) { found.push_back(&table.recordForRow(row)); });
        }
        members = std::move(found);
    }
    return *members;
}

bool RecordTable::areMembersKnown(const NSManagedObject& owner,
                                  const NSRelationshipDescription& toMany) const
{
    const auto sets = m_memberSets.find(&owner);
    return sets != m_memberSets.end() && sets->second[toMany.offset].has_value();
}

NSManagedObject& RecordTable::adopt(std::unique_ptr<NSManagedObject> record)
{
    m_records.push_back(std::move(record));
    return *m_records.back();
}

NSManagedObject& RecordTable::makeFault(std::int64_t id)
{
    auto& record = adopt(m_entity.makeRecord(*this));
    record.setState(NSManagedObject::Fault, true);
    record.setState(NSManagedObject::Persisted, true);
    setRecordID(record, id);
    return record;
}

void RecordTable::takeValues(NSManagedObject& record, const StoreRow& row)
{
    record.allocateValues();
    try {
        for (std::size_t i = 0; i < m_entity.attributes().size(); ++i) {
            record.storeValue(i, row.attribute(i));
        }
        for (const auto& relationship : m_entity.relationships()) {
            if (const auto id = row.target(relationship)) {
                auto& table = m_context.table(*relationship.destinationEntity);
                record.storeTarget(relationship, table.recordWithID(*id));
            }
        }
    } catch (...) {
        // A record that has only some of its values must not pass for one that has all.
        record.setState(NSManagedObject::Fault, true);
        throw;
    }
}
