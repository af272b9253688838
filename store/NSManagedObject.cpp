#include "store/NSManagedObject.h"

#include "store/NSManagedObjectContext.h"
#include "store/RecordTable.h"

#include <cmath>
#include <stdexcept>
#include <string>

namespace {

bool isOfType(const PropertyValue& value, NSAttributeType type)
{
    if (std::holds_alternative<std::monostate>(value)) {
        return true;
    }
    switch (type) {
    case NSAttributeType::String:
        return std::holds_alternative<QString>(value);
    case NSAttributeType::Date:
        return std::holds_alternative<Instant>(value);
    case NSAttributeType::Decimal:
        return std::holds_alternative<NSDecimalNumber>(value);
    case NSAttributeType::Double:
        return std::holds_alternative<double>(value);
    }
    return false;
}

/// Whether the file would answer the value again: it takes no number that is not finite, and no
/// date beyond all calendars.
bool isStorable(const PropertyValue& value)
{
    if (const auto* const date = std::get_if<Instant>(&value)) {
        return date->isSupported();
    }
    const auto* const number = std::get_if<double>(&value);
    return !number || std::isfinite(*number);
}

} // namespace

const NSEntityDescription& NSManagedObject::entity() const
{
    return m_table->entity();
}

NSManagedObjectContext& NSManagedObject::managedObjectContext() const
{
    return m_table->context();
}

std::optional<std::int64_t> NSManagedObject::recordID() const
{
    return hasState(HasID) ? std::optional(m_id) : std::nullopt;
}

PropertyValue NSManagedObject::valueForKey(std::string_view key) const
{
    return attribute(attributeIndex(key));
}

void NSManagedObject::setValueForKey(const PropertyValue& value, std::string_view key)
{
    setAttribute(attributeIndex(key), value);
}

NSManagedObject* NSManagedObject::relatedObject(std::string_view key) const
{
    const auto& toOne = relationship(key, false);
    realize();
    return isDeleted() ? nullptr : storedTarget(toOne);
}

void NSManagedObject::setRelatedObject(std::string_view key, NSManagedObject* object)
{
    const auto& toOne = relationship(key, false);
    if (object && (&object->managedObjectContext() != &managedObjectContext() ||
                   &object->entity() != toOne.destinationEntity)) {
        throw std::invalid_argument("no record for the relationship " + std::string(key));
    }
    if (!isDeleted()) {
        realize();
        managedObjectContext().changeTarget(*this, toOne, object);
    }
}

const std::vector<NSManagedObject*>& NSManagedObject::relatedObjects(std::string_view key) const
{
    static const std::vector<NSManagedObject*> none;
    const auto& toMany = relationship(key, true);
    return isDeleted() ? none : m_table->members(*this, toMany);
}

void NSManagedObject::addRelatedObject(std::string_view key, NSManagedObject& object)
{
    object.setRelatedObject(relationship(key, true).inverseName, this);
}

bool NSManagedObject::validateForUpdate()
{
    return true;
}

KeyValueObservable* NSManagedObject::observableValueForKey(std::string_view key)
{
    const auto* const found = entity().relationshipNamed(key);
    return found && !found->isToMany ? relatedObject(key) : nullptr;
}

PropertyValue NSManagedObject::attribute(std::size_t index) const
{
    realize();
    return isDeleted() ? PropertyValue() : storedValue(index);
}

void NSManagedObject::setAttribute(std::size_t index, const PropertyValue& newValue)
{
    const auto value = isStorable(newValue) ? newValue : PropertyValue();
    const auto& description = entity().attributes()[index];
    if (!isOfType(value, description.attributeType)) {
        throw std::invalid_argument("the attribute " + description.name + " is of another type");
    }
    if (isDeleted()) {
        return;
    }
    realize();
    const KeyValueChange change(*this, description.name);
    auto oldValue = storedValue(index);
    if (oldValue != value) {
        managedObjectContext().willChangeAttribute(*this, index, std::move(oldValue));
        storeValue(index, value);
    }
}

void NSManagedObject::setState(State state, bool on)
{
    m_state = static_cast<std::uint8_t>(on ? m_state | state : m_state & ~state);
}

KeyValueObserverList* NSManagedObject::observerList() const
{
    return hasState(Observed) ? &managedObjectContext().observersOf(*this) : nullptr;
}

KeyValueObserverList& NSManagedObject::requiredObserverList()
{
    setState(Observed, true);
    return managedObjectContext().observersOf(*this);
}

std::size_t NSManagedObject::attributeIndex(std::string_view key) const
{
    if (const auto index = entity().attributeIndex(key)) {
        return *index;
    }
    throw std::invalid_argument("no attribute " + std::string(key) + " of " + entity().name());
}

const NSRelationshipDescription& NSManagedObject::relationship(std::string_view key,
                                                               bool isToMany) const
{
    const auto* const found = entity().relationshipNamed(key);
    if (!found || found->isToMany != isToMany) {
        throw std::invalid_argument("no such relationship " + std::string(key) + " of " +
                                    entity().name());
    }
    return *found;
}

std::size_t NSManagedObject::propertyNumber(const NSRelationshipDescription& relationship) const
{
    const auto position = &relationship - entity().relationships().data();
    return entity().attributes().size() + static_cast<std::size_t>(position);
}

void NSManagedObject::setPresent(std::size_t property, bool on)
{
    const auto bit = std::uint32_t(1) << property;
    m_present = on ? m_present | bit : m_present & ~bit;
}

void NSManagedObject::allocateValues() const
{
    if (entity().blockSize() > 0) {
        m_block = std::make_unique<std::byte[]>(entity().blockSize());
    }
    if (entity().textCount() > 0) {
        m_texts = std::make_unique<QString[]>(entity().textCount());
    }
    m_present = 0;
    m_state = static_cast<std::uint8_t>(m_state & ~Fault);
}

void NSManagedObject::realize() const
{
    if (isFault()) {
        m_table->realize(*this);
    }
}

PropertyValue NSManagedObject::storedValue(std::size_t index) const
{
    if (!isPresent(index)) {
        return {};
    }
    const auto& description = entity().attributes()[index];
    switch (description.attributeType) {
    case NSAttributeType::String:
        return m_texts[description.offset];
    case NSAttributeType::Date:
        return readBlock<Instant>(description.offset);
    case NSAttributeType::Decimal:
        return readBlock<NSDecimalNumber>(description.offset);
    case NSAttributeType::Double:
        return readBlock<double>(description.offset);
    }
    return {};
}

void NSManagedObject::storeValue(std::size_t index, const PropertyValue& value)
{
    const auto offset = entity().attributes()[index].offset;
    setPresent(index, !std::holds_alternative<std::monostate>(value));
    if (const auto* const text = std::get_if<QString>(&value)) {
        m_texts[offset] = *text;
    } else if (const auto* const date = std::get_if<Instant>(&value)) {
        writeBlock(offset, *date);
    } else if (const auto* const decimal = std::get_if<NSDecimalNumber>(&value)) {
        writeBlock(offset, *decimal);
    } else if (const auto* const number = std::get_if<double>(&value)) {
        writeBlock(offset, *number);
    }
}

NSManagedObject* NSManagedObject::storedTarget(const NSRelationshipDescription& relationship) const
{
    return isPresent(propertyNumber(relationship))
               ? readBlock<NSManagedObject*>(relationship.offset)
               : nullptr;
}

void NSManagedObject::storeTarget(const NSRelationshipDescription& relationship,
                                  NSManagedObject* target)
{
    setPresent(propertyNumber(relationship), target != nullptr);
    writeBlock(relationship.offset, target);
}
