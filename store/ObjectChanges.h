#pragma once

#include "store/PropertyValue.h"

#include <memory>
#include <variant>
#include <vector>

class NSManagedObject;
struct NSRelationshipDescription;

/// The records that changed since the last announcement, each in one of the lists only. A record
/// that came and went in between is in none; the owner of a to-many relationship counts as updated
/// when members joined or left.
struct ObjectChanges
{
    std::vector<NSManagedObject*> inserted;
    std::vector<NSManagedObject*> updated;
    std::vector<NSManagedObject*> deleted;

    bool isEmpty() const { return inserted.empty() && updated.empty() && deleted.empty(); }
};

/// What was done to the records of a context, in order, with what is needed to take each step back:
/// the value and whether the record was edited since the last save.
namespace ChangeStep {

struct Inserted
{
    NSManagedObject* record;
};
struct Deleted
{
    NSManagedObject* record;
};
struct AttributeSet
{
    NSManagedObject* record;
    std::size_t attribute;
    PropertyValue oldValue;
    bool wasEdited;
};
struct TargetSet
{
    NSManagedObject* record;
    const NSRelationshipDescription* relationship;
    NSManagedObject* oldTarget;
    NSManagedObject* newTarget;
    bool wasEdited;
};

} // namespace ChangeStep

using ChangeLog = std::vector<std::variant<ChangeStep::Inserted, ChangeStep::Deleted,
                                           ChangeStep::AttributeSet, ChangeStep::TargetSet>>;

/// The net effect of the steps, given what the records are now.
ObjectChanges netChanges(const ChangeLog& log);
