#include "store/StoreSchema.h"

#include <QCryptographicHash>
#include <QtEndian>

#include <algorithm>
#include <cctype>

namespace StoreSchema {

namespace {

std::string sqlType(NSAttributeType type)
{
    switch (type) {
    case NSAttributeType::Date:
    case NSAttributeType::Double:
        return "REAL";
    case NSAttributeType::Decimal:
    case NSAttributeType::String:
        return "TEXT";
    }
    return "BLOB";
}

std::string joined(const std::vector<std::string>& parts, const std::string& separator)
{
    std::string result;
    for (const auto& part : parts) {
        result += (result.empty() ? "" : separator) + part;
    }
    return result;
}

std::vector<std::string> quotedNames(std::vector<std::string> names)
{
    std::ranges::transform(names, names.begin(), quoted);
    return names;
}

std::string tableStatement(const NSEntityDescription& entity)
{
    std::vector<std::string> columns = {"id INTEGER PRIMARY KEY"};
    for (const auto& relationship : entity.relationships()) {
        if (!relationship.isToMany) {
            columns.push_back(quoted(relationship.name) + " INTEGER REFERENCES " +
                              quoted(relationship.destinationName) + "(id)");
        }
    }
    for (const auto& attribute : entity.attributes()) {
        if (!attribute.isTransient) {
            columns.push_back(quoted(attribute.name) + ' ' + sqlType(attribute.attributeType));
        }
    }
    return "CREATE TABLE " + quoted(entity.name()) + " (" + joined(columns, ", ") + ')';
}

std::string indexStatement(const NSEntityDescription& entity, const NSIndexDescription& index)
{
    auto name = entity.name() + '_' + index.name;
    name.front() = static_cast<char>(std::tolower(static_cast<unsigned char>(name.front())));
    return "CREATE INDEX " + name + " ON " + quoted(entity.name()) + '(' +
           joined(quotedNames(index.propertyNames), ", ") + ')';
}

} // namespace

std::uint32_t formatVersion(const NSManagedObjectModel& model)
{
    // Plain numbers stand for themselves, merged versions ("3+5") for a digest of their name.
    bool isNumber = false;
    const auto number = model.versionIdentifier().toUInt(&isNumber);
    if (isNumber) {
        return number;
    }
    const auto digest =
        QCryptographicHash::hash(model.versionIdentifier().toUtf8(), QCryptographicHash::Sha256);
    return qFromBigEndian<std::uint32_t>(digest.constData());
}

std::string quoted(const std::string& name)
{
    return '"' + name + '"';
}

std::vector<std::string> creationStatements(const NSManagedObjectModel& model)
{
    std::vector<std::string> statements = {
        "PRAGMA application_id = " + std::to_string(applicationID),
        "PRAGMA user_version = " + std::to_string(formatVersion(model)),
    };
    for (const auto& entity : model.entities()) {
        statements.push_back(tableStatement(*entity));
        for (const auto& index : entity->indexes()) {
            statements.push_back(indexStatement(*entity, index));
        }
    }
    statements.emplace_back("CREATE TABLE \"Metadata\" (key TEXT PRIMARY KEY, value TEXT)");
    return statements;
}

std::vector<std::string> columns(const NSEntityDescription& entity)
{
    std::vector<std::string> names = {"id"};
    for (const auto& relationship : entity.relationships()) {
        if (!relationship.isToMany) {
            names.push_back(relationship.name);
        }
    }
    for (const auto& attribute : entity.attributes()) {
        if (!attribute.isTransient) {
            names.push_back(attribute.name);
        }
    }
    return names;
}

std::string selectRows(const NSEntityDescription& entity)
{
    return "SELECT " + joined(quotedNames(columns(entity)), ", ") + " FROM " +
           quoted(entity.name());
}

std::string insertRow(const NSEntityDescription& entity)
{
    const auto names = quotedNames(columns(entity));
    return "INSERT INTO " + quoted(entity.name()) + " (" + joined(names, ", ") + ") VALUES (" +
           joined(std::vector<std::string>(names.size(), "?"), ", ") + ')';
}

std::string updateRow(const NSEntityDescription& entity, const std::vector<int>& columnNumbers)
{
    const auto names = quotedNames(columns(entity));
    std::vector<std::string> assignments;
    assignments.reserve(columnNumbers.size());
    for (const auto number : columnNumbers) {
        assignments.push_back(names[static_cast<std::size_t>(number)] + " = ?");
    }
    return "UPDATE " + quoted(entity.name()) + " SET " + joined(assignments, ", ") +
           " WHERE id = ?";
}

} // namespace StoreSchema
