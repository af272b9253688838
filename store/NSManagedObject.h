#pragma once

#include "foundation/KeyValueObserving.h"
#include "store/NSEntityDescription.h"
#include "store/PropertyValue.h"

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <optional>
#include <string_view>
#include <type_traits>
#include <vector>

class NSManagedObjectContext;
class RecordTable;

/// One record of the store, as an object of one context.
///
/// A context holds one object per record and owns it until the context itself goes, so a reference
/// to a record never dangles. A deleted record stays too: it answers "absent" to everything and
/// takes no value, until an undo revives it. A record that was fetched by reference only is a
/// fault: its values are read from the file when one is first asked for, and that read throws
/// NSError when the file fails.
///
/// All changes of values go through setAttribute() and setRelatedObject(); observing, undo, the
/// inverse relationships and the marks that a save goes by hang there and nowhere else.
class NSManagedObject : public KeyValueObservable
{
public:
    /// Records are made by their context:
    /// NSManagedObjectContext::insertNewObjectForEntityForName().
    explicit NSManagedObject(RecordTable& table)
        : m_table(&table)
    {}

    const NSEntityDescription& entity() const;
    NSManagedObjectContext& managedObjectContext() const;

    /// The record's key in the file. Absent until it is first saved; kept when it is deleted.
    std::optional<std::int64_t> recordID() const;

    /// A fault's values are still in the file only.
    bool isFault() const { return hasState(Fault); }
    /// The record is new, and not in the file yet.
    bool isInserted() const { return !hasState(Persisted) && !isDeleted(); }
    /// The record is in the file, with other values than here.
    bool isUpdated() const { return hasState(Persisted) && !isDeleted() && m_changed != 0; }
    bool isDeleted() const { return hasState(Deleted); }

    // Values by key. Attributes first: these throw std::invalid_argument for a key that is no
    // attribute and for a value of another type than the attribute's. A class may override them for
    // attributes that it computes.
    virtual PropertyValue valueForKey(std::string_view key) const;
    virtual void setValueForKey(const PropertyValue& value, std::string_view key);

    /// The record that the to-one relationship `key` refers to; null when there is none, also when
    /// the file names one that does not exist. Throws std::invalid_argument for any other key.
    NSManagedObject* relatedObject(std::string_view key) const;
    /// Null ends the relationship. The sets on the other side follow. Throws std::invalid_argument
    /// when the record belongs to another context or is of another entity.
    void setRelatedObject(std::string_view key, NSManagedObject* object);

    /// The members of the to-many relationship `key`, in no particular order. The reference is good
    /// until the next change of the relationship.
    const std::vector<NSManagedObject*>& relatedObjects(std::string_view key) const;
    void addRelatedObject(std::string_view key, NSManagedObject& object);

    /// Called for each changed record before it is saved, and free to change the record: what it
    /// corrects is saved too, and undone together with the change that it corrects. Answers whether
    /// the record may be saved. Records that are new to the file are not asked, nor those that only
    /// undo or redo changed: these are saved as they were.
    virtual bool validateForUpdate();

    KeyValueObservable* observableValueForKey(std::string_view key) override;

protected:
    /// The value of the attribute at `index` of the entity's attributes; absent when the record has
    /// none, or is deleted. `Value` must be the attribute's type.
    template <typename Value>
    std::optional<Value> attribute(std::size_t index) const;
    PropertyValue attribute(std::size_t index) const;
    /// Does nothing on a deleted record. A value equal to the present one is announced to observers
    /// but is no change; a number that is not finite and a date that is not supported are absent,
    /// as the file would have it.
    void setAttribute(std::size_t index, const PropertyValue& newValue);

private:
    friend class NSManagedObjectContext;
    friend class RecordTable;
    friend class SQLiteStore;

    enum State : std::uint8_t
    {
        /// The file holds a row for the record, as of the last save.
        Persisted = 1,
        Deleted = 2,
        Fault = 4,
        /// Somebody has observed the record: its observers are in the context's table.
        Observed = 8,
        /// The context counts the record among those that a save must look at.
        Touched = 16,
        /// The record has a key: it was saved once.
        HasID = 32,
        /// Somebody changed the record since the last save, other than by undo or redo.
        Edited = 64,
    };

    bool hasState(State state) const { return (m_state & state) != 0; }
    void setState(State state, bool on);

    KeyValueObserverList* observerList() const override;
    KeyValueObserverList& requiredObserverList() override;

    // Properties are numbered attributes first, then relationships.
    std::size_t attributeIndex(std::string_view key) const;
    const NSRelationshipDescription& relationship(std::string_view key, bool isToMany) const;
    std::size_t propertyNumber(const NSRelationshipDescription& relationship) const;
    bool isPresent(std::size_t property) const { return (m_present >> property & 1U) != 0; }
    void setPresent(std::size_t property, bool on);

    /// Makes room for the values, all absent. The record is no fault any more.
    void allocateValues() const;
    /// Reads the values of a fault.
    void realize() const;

    template <typename Value>
    Value readBlock(std::size_t offset) const;
    template <typename Value>
    void writeBlock(std::size_t offset, const Value& value);
    PropertyValue storedValue(std::size_t index) const;
    void storeValue(std::size_t index, const PropertyValue& value);
    NSManagedObject* storedTarget(const NSRelationshipDescription& relationship) const;
    void storeTarget(const NSRelationshipDescription& relationship, NSManagedObject* target);

    RecordTable* m_table;
    std::int64_t m_id = 0;
    // Six hundred thousand records must fit: dates, numbers, decimals and references share one
    // block laid out by the entity, texts (which few records have) a second one.
    mutable std::unique_ptr<std::byte[]> m_block;
    mutable std::unique_ptr<QString[]> m_texts;
    mutable std::uint32_t m_present = 0;
    std::uint32_t m_changed = 0;
    mutable std::uint8_t m_state = 0;
};

template <typename Value>
Value NSManagedObject::readBlock(std::size_t offset) const
{
    // A reference to another record is read as a pointer: its size is meant.
    std::array<std::byte, sizeof(Value)> bytes = {}; // NOLINT(bugprone-sizeof-expression)
    std::memcpy(bytes.data(), m_block.get() + offset, bytes.size());
    return std::bit_cast<Value>(bytes);
}

template <typename Value>
void NSManagedObject::writeBlock(std::size_t offset, const Value& value)
{
    static_assert(std::is_trivially_copyable_v<Value>);
    std::memcpy(m_block.get() + offset, &value,
                sizeof(Value)); // NOLINT(bugprone-sizeof-expression)
}

template <typename Value>
std::optional<Value> NSManagedObject::attribute(std::size_t index) const
{
    realize();
    if (isDeleted() || !isPresent(index)) {
        return std::nullopt;
    }
    const auto offset = entity().attributes()[index].offset;
    if constexpr (std::is_same_v<Value, QString>) {
        return m_texts[offset];
    } else {
        return readBlock<Value>(offset);
    }
}
