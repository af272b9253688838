#include "store/NSEntityDescription.h"

#include "store/NSManagedObject.h"

#include <algorithm>
#include <utility>

NSEntityDescription::NSEntityDescription(std::string name, std::string managedObjectClassName,
                                         std::vector<NSAttributeDescription> attributes,
                                         std::vector<NSRelationshipDescription> relationships,
                                         std::vector<NSIndexDescription> indexes)
    : m_name(std::move(name))
    , m_className(std::move(managedObjectClassName))
    , m_attributes(std::move(attributes))
    , m_relationships(std::move(relationships))
    , m_indexes(std::move(indexes))
{
    for (auto& attribute : m_attributes) {
        switch (attribute.attributeType) {
        case NSAttributeType::String:
            attribute.offset = m_textCount++;
            break;
        case NSAttributeType::Date:
        case NSAttributeType::Double:
            attribute.offset = std::exchange(m_blockSize, m_blockSize + sizeof(double));
            break;
        case NSAttributeType::Decimal:
            attribute.offset = std::exchange(m_blockSize, m_blockSize + sizeof(NSDecimalNumber));
            break;
        }
    }
    int lastColumn = 0;
    for (auto& relationship : m_relationships) {
        if (relationship.isToMany) {
            relationship.offset = m_toManyCount++;
        } else {
            relationship.offset = std::exchange(m_blockSize, m_blockSize + sizeof(void*));
            relationship.column = ++lastColumn;
        }
    }
    for (auto& attribute : m_attributes) {
        if (!attribute.isTransient) {
            attribute.column = ++lastColumn;
        }
    }
}

std::optional<std::size_t> NSEntityDescription::attributeIndex(std::string_view name) const
{
    const auto found = std::ranges::find(m_attributes, name, &NSAttributeDescription::name);
    if (found == m_attributes.end()) {
        return std::nullopt;
    }
    return static_cast<std::size_t>(found - m_attributes.begin());
}

const NSRelationshipDescription* NSEntityDescription::relationshipNamed(std::string_view name) const
{
    const auto found = std::ranges::find(m_relationships, name, &NSRelationshipDescription::name);
    return found == m_relationships.end() ? nullptr : &*found;
}

std::unique_ptr<NSManagedObject> NSEntityDescription::makeRecord(RecordTable& table) const
{
    return m_make ? m_make(table) : std::make_unique<NSManagedObject>(table);
}
