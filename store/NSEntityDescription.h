#pragma once

#include "store/PropertyValue.h"

#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

class NSEntityDescription;
class NSManagedObject;
class RecordTable;

enum class NSAttributeType
{
    String,
    Date,
    Decimal,
    Double,
};

struct NSAttributeDescription
{
    std::string name;
    NSAttributeType attributeType = NSAttributeType::String;
    /// A transient attribute lives in the record only; the file has no column for it.
    bool isTransient = false;
    /// The value of a new record. Absent unless the description gives one.
    PropertyValue defaultValue;
    /// Where the value lies in the block of a record's values, in bytes; for a text, its position
    /// among the record's texts.
    std::size_t offset = 0;
    /// The column of the entity's table; 0 (the key's) when there is none.
    int column = 0;
};

enum class NSDeleteRule
{
    /// The other side forgets the deleted record.
    Nullify,
    /// The records on the other side are deleted too.
    Cascade,
};

struct NSRelationshipDescription
{
    std::string name;
    bool isToMany = false;
    NSDeleteRule deleteRule = NSDeleteRule::Nullify;
    std::string destinationName;
    std::string inverseName;

    // Resolved once the whole model is read.
    const NSEntityDescription* destinationEntity = nullptr;
    /// Null when the relationship has no inverse. A to-many relationship always has one: it is the
    /// set of those records whose inverse refers to the owner.
    const NSRelationshipDescription* inverseRelationship = nullptr;

    /// A to-one value: where it lies in the block of a record's values, in bytes. A to-many value:
    /// its position among the entity's to-many relationships.
    std::size_t offset = 0;
    /// The column of the entity's table; 0 for a to-many relationship, which has none.
    int column = 0;
};

/// An index of the entity's table, over columns in order.
struct NSIndexDescription
{
    std::string name;
    std::vector<std::string> propertyNames;
};

/// The class that stands for an entity's records.
struct ManagedObjectClass
{
    std::string name;
    /// The attributes in the order in which the class numbers them; the entity's must be the same.
    std::vector<std::string_view> attributeNames;
    std::function<std::unique_ptr<NSManagedObject>(RecordTable&)> make;
};

/// One kind of record: its attributes, its relationships and the class of its records.
class NSEntityDescription
{
public:
    NSEntityDescription(std::string name, std::string managedObjectClassName,
                        std::vector<NSAttributeDescription> attributes,
                        std::vector<NSRelationshipDescription> relationships,
                        std::vector<NSIndexDescription> indexes);

    const std::string& name() const { return m_name; }
    const std::string& managedObjectClassName() const { return m_className; }
    /// Transient ones included.
    std::span<const NSAttributeDescription> attributes() const { return m_attributes; }
    std::span<const NSRelationshipDescription> relationships() const { return m_relationships; }
    std::span<const NSIndexDescription> indexes() const { return m_indexes; }

    /// The position of an attribute in attributes(); absent when there is none of that name.
    std::optional<std::size_t> attributeIndex(std::string_view name) const;
    /// Null when there is no relationship of that name.
    const NSRelationshipDescription* relationshipNamed(std::string_view name) const;

    /// The bytes that one record's dates, numbers, decimals and to-one references take.
    std::size_t blockSize() const { return m_blockSize; }
    std::size_t textCount() const { return m_textCount; }
    std::size_t toManyCount() const { return m_toManyCount; }

    /// Makes a record of the entity's class; a plain NSManagedObject when no class was bound.
    std::unique_ptr<NSManagedObject> makeRecord(RecordTable& table) const;

private:
    friend class NSManagedObjectModel;

    std::string m_name;
    std::string m_className;
    std::vector<NSAttributeDescription> m_attributes;
    std::vector<NSRelationshipDescription> m_relationships;
    std::vector<NSIndexDescription> m_indexes;
    std::size_t m_blockSize = 0;
    std::size_t m_textCount = 0;
    std::size_t m_toManyCount = 0;
    std::function<std::unique_ptr<NSManagedObject>(RecordTable&)> m_make;
};
