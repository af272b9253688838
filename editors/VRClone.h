#pragma once

class NSManagedObject;
class NSManagedObjectContext;

/// Copies of records, made by what their entities describe. An editor works on a copy in a context
/// of its own, and what was confirmed is copied back onto the record.
///
/// The entity is looked up by name in the model of `context`: throws std::out_of_range when that
/// does not know it, NSError when a record to be read cannot be.
namespace VRClone {

/// Gives the receiver all the attribute values of `source`, through its ordinary setters; a value
/// that is absent there is absent here after. Relationships stay as they are. The transient
/// attributes go first, where they differ: they may set stored ones as well, which then get their
/// exact value. Throws std::invalid_argument when `source` has no such attribute.
void vrCopyAttributesFromObject(NSManagedObject& receiver, const NSManagedObject& source,
                                NSManagedObjectContext& context);

/// A new record in `context` with the attribute values of `object` and without relationships.
NSManagedObject& vrShallowCloneInContext(const NSManagedObject& object,
                                         NSManagedObjectContext& context);

/// A new record in `context` with the attribute values of `object` and copies, as deep, of the
/// members of its to-many relationships. To-many relationships must not lead in a circle.
///
/// A to-one relationship holds the very record that it holds in `object`. When that is a record of
/// another context, which no relationship can cross to, it stays empty; the copy of a member refers
/// to the copy of its owner in any case.
NSManagedObject& vrDeepCloneInContext(const NSManagedObject& object,
                                      NSManagedObjectContext& context);

} // namespace VRClone
