#pragma once

#include "store/NSManagedObjectModel.h"

#include <cstdint>
#include <string>
#include <vector>

/// The SQL that follows from a model: one table per entity, with a key, a column per to-one
/// relationship and a column per stored attribute.
namespace StoreSchema {

/// Marks a file as this program's ("Corv"), where SQLite keeps room for such a mark.
constexpr std::uint32_t applicationID = 0x436F7276;
/// The number by which a file says, in its header, which version of the model it was made for.
std::uint32_t formatVersion(const NSManagedObjectModel& model);

/// The name as an SQL identifier.
std::string quoted(const std::string& name);

/// What makes an empty file a store of the model.
std::vector<std::string> creationStatements(const NSManagedObjectModel& model);

/// The columns of an entity's table in the order of their numbers, the key first.
std::vector<std::string> columns(const NSEntityDescription& entity);
/// "SELECT all columns FROM table", to be followed by a condition.
std::string selectRows(const NSEntityDescription& entity);
std::string insertRow(const NSEntityDescription& entity);
/// Sets the given columns of the row whose key is the last parameter.
std::string updateRow(const NSEntityDescription& entity, const std::vector<int>& columnNumbers);

} // namespace StoreSchema
