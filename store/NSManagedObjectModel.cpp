#include "store/NSManagedObjectModel.h"

#include "store/NSError.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace {

/// Presence and changes of a record's properties are kept as bits of one word.
constexpr std::size_t maximumProperties = 32;

/// Reads one description, gathering everything that is wrong with it.
class DescriptionReader
{
public:
    explicit DescriptionReader(QStringList& errors)
        : m_errors(errors)
    {}

    std::vector<std::unique_ptr<NSEntityDescription>> entities(const QJsonObject& description)
    {
        std::vector<std::unique_ptr<NSEntityDescription>> result;
        for (const auto& value : description[u"entities"].toArray()) {
            result.push_back(entity(value.toObject()));
        }
        return result;
    }

private:
    std::unique_ptr<NSEntityDescription> entity(const QJsonObject& object)
    {
        std::vector<NSAttributeDescription> attributes;
        for (const auto& value : object[u"attributes"].toArray()) {
            attributes.push_back(attribute(value.toObject()));
        }
        std::vector<NSRelationshipDescription> relationships;
        for (const auto& value : object[u"relationships"].toArray()) {
            relationships.push_back(relationship(value.toObject()));
        }
        std::vector<NSIndexDescription> indexes;
        for (const auto& value : object[u"indexes"].toArray()) {
            indexes.push_back(index(value.toObject()));
        }
        if (attributes.size() + relationships.size() > maximumProperties) {
            m_errors.append(u"entity " + object[u"name"].toString() + u" has too many properties");
        }
        return std::make_unique<NSEntityDescription>(
            name(object), object[u"class"].toString().toStdString(), std::move(attributes),
            std::move(relationships), std::move(indexes));
    }

    NSAttributeDescription attribute(const QJsonObject& object)
    {
        NSAttributeDescription result;
        result.name = name(object);
        result.isTransient = object[u"transient"].toBool();
        const auto given = object[u"default"];
        const auto type = object[u"type"].toString();
        if (type == u"text") {
            result.attributeType = NSAttributeType::String;
            if (given.isString()) {
                result.defaultValue = given.toString();
            }
        } else if (type == u"date") {
            result.attributeType = NSAttributeType::Date;
        } else if (type == u"decimal") {
            result.attributeType = NSAttributeType::Decimal;
            result.defaultValue =
                propertyValue(NSDecimalNumber::fromText(given.toString().toStdString()));
        } else if (type == u"double") {
            result.attributeType = NSAttributeType::Double;
            if (given.isDouble()) {
                result.defaultValue = given.toDouble();
            }
        } else {
            m_errors.append(u"attribute " + object[u"name"].toString() + u" has no known type");
        }
        return result;
    }

    NSRelationshipDescription relationship(const QJsonObject& object)
    {
        NSRelationshipDescription result;
        result.name = name(object);
        result.isToMany = object[u"toMany"].toBool();
        result.destinationName = object[u"destination"].toString().toStdString();
        result.inverseName = object[u"inverse"].toString().toStdString();
        const auto rule = object[u"deleteRule"].toString();
        if (rule == u"cascade") {
            result.deleteRule = NSDeleteRule::Cascade;
        } else if (rule != u"nullify") {
            m_errors.append(u"relationship " + object[u"name"].toString() + u" has no delete rule");
        }
        return result;
    }

    NSIndexDescription index(const QJsonObject& object)
    {
        NSIndexDescription result;
        result.name = name(object);
        for (const auto& value : object[u"properties"].toArray()) {
            result.propertyNames.push_back(value.toString().toStdString());
        }
        return result;
    }

    /// Names become identifiers of the store file.
    std::string name(const QJsonObject& object)
    {
        auto result = object[u"name"].toString().toStdString();
        const auto isLetterOrDigit = [](char c) {
            return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
        };
        if (result.empty() || !std::ranges::all_of(result, isLetterOrDigit)) {
            m_errors.append(u"\"" + object[u"name"].toString() + u"\" is no name");
        }
        return result;
    }

    QStringList& m_errors;
};

[[noreturn]] void throwModelError(const QStringList& errors)
{
    throw NSError(QStringLiteral("NSManagedObjectModelErrorDomain"), 1,
                  ErrorText::verbatim(QStringLiteral("The object model could not be read.")),
                  ErrorText::verbatim(errors.join(QStringLiteral("; "))));
}

} // namespace

std::optional<NSManagedObjectModel>
NSManagedObjectModel::mergedModelFromDirectory(const QString& directory)
{
    std::vector<QByteArray> descriptions;
    const QDir folder(directory);
    for (const auto& name : folder.entryList({QStringLiteral("*.json")}, QDir::Files, QDir::Name)) {
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::ReadOnly)) {
            throwModelError({name + u": " + file.errorString()});
        }
        descriptions.push_back(file.readAll());
    }
    if (descriptions.empty()) {
        return std::nullopt;
    }
    return mergedModel(descriptions);
}

NSManagedObjectModel NSManagedObjectModel::mergedModel(const std::vector<QByteArray>& descriptions)
{
    NSManagedObjectModel model;
    QStringList errors;
    QStringList versions;
    DescriptionReader reader(errors);
    for (const auto& description : descriptions) {
        QJsonParseError parseError;
        const auto document = QJsonDocument::fromJson(description, &parseError);
        if (!document.isObject()) {
            errors.append(u"no description: " + parseError.errorString());
            continue;
        }
        versions.append(document[u"version"].toString());
        std::ranges::move(reader.entities(document.object()), std::back_inserter(model.m_entities));
    }
    model.m_version = versions.join(u'+');

    const auto entityNamed = [&model](std::string_view name) -> NSEntityDescription* {
        const auto found = std::ranges::find(
            model.m_entities, name, [](const auto& entity) -> auto& { return entity->name(); });
        return found == model.m_entities.end() ? nullptr : found->get();
    };
    for (const auto& entity : model.m_entities) {
        if (entityNamed(entity->name()) != entity.get()) {
            errors.append(u"two entities are named " + QString::fromStdString(entity->name()));
        }
        for (auto& relationship : entity->m_relationships) {
            const auto path = QString::fromStdString(entity->name() + '.' + relationship.name);
            relationship.destinationEntity = entityNamed(relationship.destinationName);
            if (!relationship.destinationEntity) {
                errors.append(path + u" leads to no entity");
                continue;
            }
            relationship.inverseRelationship =
                relationship.destinationEntity->relationshipNamed(relationship.inverseName);
            const auto* const inverse = relationship.inverseRelationship;
            const bool isMutual = inverse && inverse->destinationName == entity->name() &&
                                  inverse->inverseName == relationship.name &&
                                  inverse->isToMany != relationship.isToMany;
            if (inverse ? !isMutual : relationship.isToMany || !relationship.inverseName.empty()) {
                errors.append(path + u" has no inverse that fits");
            }
        }
        for (const auto& index : entity->indexes()) {
            for (const auto& property : index.propertyNames) {
                const auto* const relationship = entity->relationshipNamed(property);
                const auto attribute = entity->attributeIndex(property);
                const bool isColumn = (relationship && !relationship->isToMany) ||
                                      (attribute && !entity->attributes()[*attribute].isTransient);
                if (!isColumn) {
                    errors.append(u"index " + QString::fromStdString(index.name) +
                                  u" names no column: " + QString::fromStdString(property));
                }
            }
        }
    }
    if (!errors.isEmpty()) {
        throwModelError(errors);
    }
    return model;
}

const NSEntityDescription& NSManagedObjectModel::entityNamed(std::string_view name) const
{
    for (const auto& entity : m_entities) {
        if (entity->name() == name) {
            return *entity;
        }
    }
    throw std::out_of_range("no entity named " + std::string(name));
}

void NSManagedObjectModel::bindClass(const ManagedObjectClass& managedObjectClass)
{
    for (const auto& entity : m_entities) {
        if (entity->managedObjectClassName() != managedObjectClass.name) {
            continue;
        }
        if (!std::ranges::equal(entity->attributes(), managedObjectClass.attributeNames, {},
                                &NSAttributeDescription::name)) {
            throw std::invalid_argument("the attributes of entity " + entity->name() +
                                        " are not those of class " + managedObjectClass.name);
        }
        entity->m_make = managedObjectClass.make;
    }
}
