#pragma once

#include "store/NSEntityDescription.h"
#include "store/NSManagedObject.h"

#include <QHash>

#include <cstdint>
#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

class NSManagedObjectContext;
class StoreRow;

/// The records of one entity in one context: who they are, one object for each, and the members of
/// their to-many relationships. A part of the context.
class RecordTable
{
public:
    RecordTable(NSManagedObjectContext& context, const NSEntityDescription& entity)
        : m_context(context)
        , m_entity(entity)
    {}

    NSManagedObjectContext& context() const { return m_context; }
    const NSEntityDescription& entity() const { return m_entity; }

    /// A new record with the entity's default values, not in the file and without a key.
    NSManagedObject& makeNewRecord();
    /// The one record with this key: known already, or a fault. Null when neither the context nor
    /// the file has it.
    NSManagedObject* recordWithID(std::int64_t id);
    /// The one record that a row of the file stands for. A fault takes the row's values; a record
    /// that has values keeps them.
    NSManagedObject& recordForRow(const StoreRow& row);
    /// Reads the values of a fault. A record whose row is gone has no values.
    void realize(const NSManagedObject& record);
    /// A new record was saved under this key.
    void setRecordID(NSManagedObject& record, std::int64_t id);

    /// The members of an owner's to-many relationship, read from the file when first asked for.
    ///
    /// Whoever changes a record or a relationship asks for the sets concerned first. A set that was
    /// never read therefore stands in the file as it is.
    std::vector<NSManagedObject*>& members(const NSManagedObject& owner,
                                           const NSRelationshipDescription& toMany);
    bool areMembersKnown(const NSManagedObject& owner,
                         const NSRelationshipDescription& toMany) const;

    const std::vector<std::unique_ptr<NSManagedObject>>& records() const { return m_records; }

private:
    using MemberSets = std::vector<std::optional<std::vector<NSManagedObject*>>>;

    NSManagedObject& adopt(std::unique_ptr<NSManagedObject> record);
    NSManagedObject& makeFault(std::int64_t id);
    void takeValues(NSManagedObject& record, const StoreRow& row);

    NSManagedObjectContext& m_context;
    const NSEntityDescription& m_entity;
    std::vector<std::unique_ptr<NSManagedObject>> m_records;
    QHash<qint64, NSManagedObject*> m_recordsByID;
    std::unordered_map<const NSManagedObject*, MemberSets> m_memberSets;
};
