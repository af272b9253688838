#include "editors/VRClone.h"

#include "store/NSManagedObject.h"
#include "store/NSManagedObjectContext.h"
#include "store/NSPersistentStoreCoordinator.h"

#include <vector>

namespace VRClone {

namespace {

const NSEntityDescription& entityIn(NSManagedObjectContext& context, const NSManagedObject& object)
{
    const auto& model = context.persistentStoreCoordinator().managedObjectModel();
    return model.entityNamed(object.entity().name());
}

} // namespace

void vrCopyAttributesFromObject(NSManagedObject& receiver, const NSManagedObject& source,
                                NSManagedObjectContext& context)
{
    const auto& entity = entityIn(context, receiver);
    for (const bool isTransient : {true, false}) {
        for (const auto& attribute : entity.attributes()) {
            if (attribute.isTransient != isTransient) {
                continue;
            }
            const auto value = source.valueForKey(attribute.name);
            // A transient one may be computed from a stored one, and setting it may move that one
            // by a rounding, if only for a moment: a change to undo where nothing changed.
            if (!isTransient || value != receiver.valueForKey(attribute.name)) {
                receiver.setValueForKey(value, attribute.name);
            }
        }
    }
}

NSManagedObject& vrShallowCloneInContext(const NSManagedObject& object,
                                         NSManagedObjectContext& context)
{
    auto& clone = context.insertNewObjectForEntityForName(object.entity().name());
    vrCopyAttributesFromObject(clone, object, context);
    return clone;
}

NSManagedObject& vrDeepCloneInContext(const NSManagedObject& object,
                                      NSManagedObjectContext& context)
{
    auto& clone = vrShallowCloneInContext(object, context);
    for (const auto& relationship : entityIn(context, object).relationships()) {
        if (relationship.isToMany) {
            // The set may grow meanwhile: within one context a member's copy joins the set of its
            // original's owner before it moves to the owner's copy.
            std::vector<NSManagedObject*> members(object.relatedObjects(relationship.name));
            for (const auto* const member : members) {
                clone.addRelatedObject(relationship.name, vrDeepCloneInContext(*member, context));
            }
        } else if (auto* const target = object.relatedObject(relationship.name);
                   target && &target->managedObjectContext() == &context) {
            clone.setRelatedObject(relationship.name, target);
        }
    }
    return clone;
}

} // namespace VRClone
